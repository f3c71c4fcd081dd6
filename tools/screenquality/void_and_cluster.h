// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Blue noise: the pixels of a tile in an order in which each next one falls into the widest void.
#pragma once

#include <cstdint>
#include <vector>

#include "tools/printmodel/Tile.h"

namespace gdi::screenquality {

using printmodel::Tile;

// The void-and-cluster method (R. Ulichney, 1993), its voids found with a Gaussian of 1.5 pixels,
// from a first pattern of a tenth of the pixels, strewn by `seed`.
std::vector<std::uint32_t> voidAndCluster(const Tile& tile, std::uint32_t seed);

}  // namespace gdi::screenquality
