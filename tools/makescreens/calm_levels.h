// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Which states of a growing tile become its 256 tones: those near the target that also look even.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "tools/makescreens/tone.h"
#include "tools/makescreens/tone_errors.h"
#include "tools/printmodel/Tile.h"

namespace gdi::makescreens {

using printmodel::Tile;

// How uneven the tile is after each count of units, from 0 to all of `order` (the pixels that take
// one unit each): the variance that the eye sees from 12 inches, in units squared, of the pulses'
// waves of 8 pixels and longer. Coarse ones count 3.25 times, 1 + 1.5^2 as in the measure.
std::vector<double> unevennessOf(const Tile& tile, std::span<const std::uint32_t> order);

// Units per level: 0 for level 0, all for level 255, at least one more for each level. Of all such
// rows the one with the least sum, over the levels, of 4 times the tone's error and of the
// unevenness times the square of the L* that one unit makes there.
// Requires: 255 units at least; an unevenness for each count of them.
LevelUnits calmLevels(const ToneErrors& errors, std::span<const double> unevenness);

}  // namespace gdi::makescreens
