// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// How soon a row of a flat tint repeats for the band codec, which sees it in words of 16 bits.
#pragma once

#include <cstdint>
#include <numeric>

namespace gdi::samplepages {

// Words after which a row of a flat tint repeats, for a tile `tileWidth` pixels wide (at least 1)
// at `depth` bits a pixel: the least number that is a whole number of tiles. A copy code reaches
// pc4sc4::kMaxDistance words back, a tile that repeats within 32 leaves room for its neighbours.
constexpr std::int64_t flatRepeatWords(int tileWidth, int depth) {
  constexpr std::int64_t kWordBits = 16;
  return std::lcm(std::int64_t{tileWidth} * depth, kWordBits) / kWordBits;
}

}  // namespace gdi::samplepages
