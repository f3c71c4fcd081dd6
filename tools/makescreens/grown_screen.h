// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A screen whose growth and tone are settled, before it becomes a table or a file.
#pragma once

#include <cstdint>
#include <vector>

#include "tools/makescreens/parameters.h"
#include "tools/makescreens/tone.h"

namespace gdi::makescreens {

struct GrownScreen {
  Tile tile;
  int depth = 1;                     // bits a pixel
  std::vector<std::uint32_t> order;  // the pixels that take one unit each
  LevelUnits levels{};               // how many of them each level has taken
};

// Grows the screen in a tile that begins at `start`, its tones right for the paper in printers
// that differ by `variation`. Requires: no tileProblem.
GrownScreen growScreen(const ScreenParameters& screen, int depth, const PaperClass& paper,
                       const Variation& variation, const GrowthStart& start);

}  // namespace gdi::makescreens
