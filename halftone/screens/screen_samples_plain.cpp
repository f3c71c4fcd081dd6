// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "halftone/screens/screen_samples_plain.h"

namespace gdi {
namespace {

// How many of a column's thresholds, which never decrease with the rank, the sample reaches.
unsigned ranksReached(std::uint8_t sample, const ThresholdRow& row, std::size_t column) {
  const auto flipped = static_cast<std::int8_t>(sample ^ 0x80);
  unsigned reached = 0;
  for (auto half = static_cast<unsigned>(row.ranks + 1) / 2; half > 0; half /= 2) {
    const std::size_t rank = reached + half - 1;
    const auto threshold = static_cast<std::int8_t>(row.thresholds[rank * row.rankPitch + column]);
    reached += flipped > threshold ? half : 0;
  }
  return reached;
}

}  // namespace

void screenSamplesPlain(const std::uint8_t* input, std::size_t width, std::ptrdiff_t stride,
                        const ThresholdRow& row, int depth, std::uint8_t* output) {
  std::size_t column = 0;
  unsigned packed = 0;
  int bitsFree = 8;
  for (std::size_t x = 0; x < width; ++x) {
    bitsFree -= depth;
    packed |= ranksReached(input[static_cast<std::ptrdiff_t>(x) * stride], row, column) << bitsFree;
    if (bitsFree == 0 || x + 1 == width) {
      *output++ = static_cast<std::uint8_t>(packed);
      packed = 0;
      bitsFree = 8;
    }
    column = column + 1 == row.period ? 0 : column + 1;
  }
}

}  // namespace gdi
