// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Bitmap bands in the tests' terms: rows of pixel words, the left-hand byte in the high half.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace gdi::codectest {

using Words = std::vector<std::uint16_t>;

struct Band {
  std::uint32_t rowBytes = 0;
  std::uint32_t rows = 0;
  std::vector<std::uint8_t> bytes;  // rows x stride()

  [[nodiscard]] std::size_t stride() const { return (std::size_t{rowBytes} + 3) / 4 * 4; }
  [[nodiscard]] std::uint32_t byteCount() const { return rows * rowBytes; }
};

// All rows are of the same, even number of words.
Band bandOf(const std::vector<Words>& rows);

Words repeated(std::uint16_t word, std::size_t count);
// `count` words that are all different, outside the alphabet and not zero; below 4096 of them.
Words distinctWords(std::size_t count);
Words operator+(Words left, const Words& right);

// Stream words to bytes and back.
std::vector<std::uint8_t> streamBytes(const Words& words);
Words streamWords(const std::vector<std::uint8_t>& bytes);

// What the encoder makes of `band` with ample room; empty when it refuses.
std::vector<std::uint8_t> compressed(const Band& band, bool finalBand = false);

// The code words of the last row of a band that consists of `rows`, without padding and without
// the clear-row command. The last code word must not look like a NOP.
Words codesOfLastRow(const std::vector<Words>& rows);

}  // namespace gdi::codectest
