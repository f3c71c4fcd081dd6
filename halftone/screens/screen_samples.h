// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Screening by thresholds, with the widest instructions that the processor has.
#pragma once

#include <cstddef>
#include <cstdint>

#include "halftone/screens/ThresholdTile.h"

namespace gdi {

// Screens one channel of a line from the tile's first column on.
//   input   the first sample, then one every `stride` bytes; nothing beyond the last is read
//   width   samples, at least 1
//   row     the thresholds for `depth`
//   depth   1, 2, 4 or 8 bits a pixel
//   output  receives exactly ceil(width x depth / 8) bytes, the first pixel in the most significant
//           bits, zeros after the last
void screenSamples(const std::uint8_t* input, std::size_t width, std::ptrdiff_t stride,
                   const ThresholdRow& row, int depth, std::uint8_t* output);

}  // namespace gdi
