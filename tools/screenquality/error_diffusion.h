// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Error diffusion, which keeps tones without a tile: no screen, but something to compare with.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "tools/printmodel/Tile.h"

namespace gdi::screenquality {

using printmodel::Tile;

// Values of 0 to `steps` for the levels of a field's pixels, row by row, after Floyd and Steinberg
// (1976): each pixel takes the nearest value, and what it is off by goes to the neighbours that
// follow, 7, 3, 5 and 1 sixteenths. Rows run to and fro; errors at the borders stay in the field.
// Requires: one level for each pixel, steps >= 1.
std::vector<std::uint8_t> errorDiffusion(const Tile& field, std::span<const std::uint8_t> levels,
                                         int steps);

}  // namespace gdi::screenquality
