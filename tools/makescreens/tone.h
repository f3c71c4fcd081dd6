// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// How many units of a tile each of the 256 input levels darkens.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <span>

namespace gdi::makescreens {

constexpr int kLevels = 256;
using LevelUnits = std::array<std::size_t, kLevels>;

// The printed area after so many of the growth's units, about 0 to 1 and about rising.
using PrintedAreaOf = std::function<double(std::size_t units)>;

// The share of paper that the level should look covered with: straight, lifted by `gain` times
// 4 t (1 - t), so by `gain` in the middle.
double targetArea(int level, double gain);

// Units per level: 0 for level 0, `units` for level 255, and else as many as print the target best,
// so that levels may be alike. `printedArea` is asked with never falling counts.
LevelUnits nearestUnits(std::size_t units, double gain, const PrintedAreaOf& printedArea);

// Units per level: 0 for level 0, `units` for level 255, at least one more for each level, and
// otherwise as many as print the target. `printedArea` is asked with never falling counts.
// Requires: units >= 255.
LevelUnits unitsOfLevels(std::size_t units, double gain, const PrintedAreaOf& printedArea);

}  // namespace gdi::makescreens
