// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// How many units of a tile print a tone.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <vector>

namespace gdi::makescreens {

constexpr int kLevels = 256;
using LevelUnits = std::array<std::size_t, kLevels>;

// The printed area after so many of the growth's units, about 0 to 1 and about rising.
using PrintedAreaOf = std::function<double(std::size_t units)>;

// The printed area of every count of units from 0 to all: smoothed, and rising.
class PrintedCurve {
 public:
  // Asks with never falling counts. Requires: a unit at least.
  PrintedCurve(std::size_t units, const PrintedAreaOf& printedArea);

  [[nodiscard]] std::size_t units() const { return units_; }
  [[nodiscard]] double areaAt(double units) const;
  // Where the curve reaches the area, within 0 and all.
  [[nodiscard]] double unitsFor(double area) const;

 private:
  std::size_t units_;
  std::vector<double> counts_;  // of the samples, rising from 0 to all
  std::vector<double> areas_;   // at those counts
};

// The share of paper that the level should look covered with: straight, lifted by `gain` times
// 4 t (1 - t), so by `gain` in the middle.
double targetArea(int level, double gain);

// Units per level: 0 for level 0, all for level 255, and else as many as print the target best, so
// that levels may be alike.
LevelUnits nearestUnits(const PrintedCurve& curve, double gain);

}  // namespace gdi::makescreens
