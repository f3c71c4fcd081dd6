// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Reading and writing the 16-bit words of bands and of bitmap rows, on any host, at any alignment.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "codec/pc4sc4_format.h"

namespace gdi::pc4sc4 {

// A pixel word's place in its row: word i is the row's bytes 2i and 2i+1.
using Position = std::ptrdiff_t;

// A stream word, little-endian in memory.
inline Word loadStreamWord(const std::uint8_t* at) {
  return static_cast<Word>(at[0] | (at[1] << 8));
}
inline void storeStreamWord(std::uint8_t* at, Word word) {
  at[0] = static_cast<std::uint8_t>(word);
  at[1] = static_cast<std::uint8_t>(word >> 8);
}

// A pixel word in the host's byte order: for comparing and moving, never for its value.
inline Word loadPixelWord(const std::uint8_t* row, Position p) {
  Word word{};
  std::memcpy(&word, row + 2 * p, sizeof word);
  return word;
}

// A pixel word as literal data: the left-hand byte in the high half.
inline Word literalDataWord(const std::uint8_t* row, Position p) {
  return static_cast<Word>((row[2 * p] << 8) | row[2 * p + 1]);
}

// Which of the `count` pixel words, 64 at most, at `a` differ from those at `b`: a bit for each,
// the first word's the lowest.
inline std::uint64_t unequalWords(const std::uint8_t* a, const std::uint8_t* b, Position count) {
  std::uint64_t bits = 0;
  for (Position p = 0; p < count; ++p) {
    if (count - p >= 4 && std::memcmp(a + 2 * p, b + 2 * p, 8) == 0) {
      p += 3;
    } else if (loadPixelWord(a, p) != loadPixelWord(b, p)) {
      bits |= std::uint64_t{1} << p;
    }
  }
  return bits;
}

// The bytes between the starts of two bitmap rows: `rowBytes` rounded up to a multiple of 4.
inline std::size_t rowStride(std::uint32_t rowBytes) {
  return (static_cast<std::size_t>(rowBytes) + 3) / 4 * 4;
}

}  // namespace gdi::pc4sc4
