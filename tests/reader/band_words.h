// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Band data spelt out word by word, and what the reader says of them in short.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "reader/band_data.h"

namespace gdi::reader {

using Words = std::vector<std::uint16_t>;
using Bytes = std::vector<std::uint8_t>;

inline constexpr std::size_t kRowBytes = 16;  // 8 pixel words, of which the last two are no pixels
inline constexpr std::uint16_t kNop = 0x00FE;

inline Words operator+(Words left, const Words& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

inline Words nops(std::size_t count) {
  Words words(count, kNop);
  return words;
}

// A first record of 18 bytes with n, whose row is blank.
inline Words blankFirst() {
  return Words{0x3F00, 0xFFFF} + nops(6);
}

inline Words trailer() {
  return {0x0002, 0x3F00, 0xFFFF, 0x0000};
}

inline Bytes bytesOf(const Words& words) {
  Bytes bytes;
  for (const std::uint16_t word : words) {
    bytes.push_back(static_cast<std::uint8_t>(word));
    bytes.push_back(static_cast<std::uint8_t>(word >> 8));
  }
  return bytes;
}

// The records' code words with n before each.
inline Words recordsOf(const std::vector<Words>& codeWords) {
  Words words;
  for (const Words& codes : codeWords) {
    words.push_back(static_cast<std::uint16_t>(codes.size()));
    words = words + codes;
  }
  return words;
}

inline BandDataReport examine(const Words& words, std::uint32_t rows, bool last = false,
                              std::size_t rowBytes = kRowBytes) {
  return examineBandData(bytesOf(words), rows, rowBytes, last);
}

// "18 record-minimum: row 1 has 3 code words", one for each flaw.
inline std::vector<std::string> said(const BandDataReport& report) {
  std::vector<std::string> lines;
  for (const Flaw& flaw : report.flaws) {
    lines.push_back(std::to_string(flaw.offset) + " " + std::string(textOf(flaw.rule).name) + ": " +
                    flaw.text);
  }
  return lines;
}

using Lines = std::vector<std::string>;

}  // namespace gdi::reader
