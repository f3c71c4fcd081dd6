// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Screening by thresholds pixel by pixel, for processors without wide instructions.
#pragma once

#include <cstddef>
#include <cstdint>

#include "halftone/screens/ThresholdTile.h"

namespace gdi {

// What screenSamples does, with the same arguments.
void screenSamplesPlain(const std::uint8_t* input, std::size_t width, std::ptrdiff_t stride,
                        const ThresholdRow& row, int depth, std::uint8_t* output);

}  // namespace gdi
