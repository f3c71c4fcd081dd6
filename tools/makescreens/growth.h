// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The order in which the units of a tile darken, so that dots stay clustered and grow evenly.
#pragma once

#include <cstdint>
#include <vector>

#include "tools/makescreens/lattice.h"
#include "tools/makescreens/spot.h"

namespace gdi::makescreens {

struct GrowthRule {
  double evenness = 6.0;  // how strongly crowded places are put off, at least 0
  double reach = 1.0;     // widths over which crowding is felt, as a multiple of the usual ones
  SpotShape dots;         // while dots grow out of white
  SpotShape holes;        // while holes close
  int leastDot = 2;       // pixels that a dot is given before another is begun, at least 1
  int leastHole = 3;      // the same of a hole, seen from solid, at least 1
  bool operator==(const GrowthRule&) const = default;
};

// Where growth begins in the tile, as shares of its width and height, 0 <= share < 1.
struct GrowthStart {
  double x = 0.0;
  double y = 0.0;
};

// The pixels (row by row) that take one unit of output each, in order; each pixel occurs `steps`
// times. Light tones grow dots out of white; dark tones are found backwards, as holes that grow
// out of solid until they meet the half-filled tile.
std::vector<std::uint32_t> growthOrder(const Lattice& lattice, const Tile& tile, int steps,
                                       double softEdge, const GrowthRule& rule,
                                       const GrowthStart& start);

}  // namespace gdi::makescreens
