// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Where toner comes to lie: laser pulses that blur into each other, toner that sticks or does not.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "tools/printmodel/PaperModel.h"
#include "tools/printmodel/Tile.h"

namespace gdi::printmodel {

constexpr int kPointsAcross = 4;  // points across and down a pixel at which toner is looked at

// Exposure at the points of a tile, a solid's being 1: kPointsAcross rows of points for each row of
// pixels, from left to right.
using Exposure = std::vector<double>;

// A pixel of value v is a pulse v / steps of a pixel wide, centred in its pixel and a pixel high.
class LaserEngine {
 public:
  // Requires: steps >= 1.
  LaserEngine(const PaperModel& paper, int steps);

  // The exposure of a tile that repeats for ever.
  // Requires: one value of 0 to steps for each pixel, row by row.
  [[nodiscard]] Exposure exposure(const Tile& tile, std::span<const std::uint8_t> values) const;

  // The share of each pixel that toner covers, with the laser `swing` times as strong.
  [[nodiscard]] std::vector<double> coverage(const Tile& tile, const Exposure& exposure,
                                             double swing = 1.0) const;

  // By how much the tile's mean coverage grows with the logarithm of the exposure.
  [[nodiscard]] double sensitivity(const Exposure& exposure) const;

  // The share of toner at a point of that exposure.
  [[nodiscard]] double toner(double exposure) const;

 private:
  double threshold_;
  double softness_;
  std::vector<double> across_;  // exposure by pulse value, pixel offset and point in the pixel
  std::vector<double> down_;    // the same of a pulse's height, by pixel offset and point
  std::vector<double> toner_;   // by distance from the threshold
};

}  // namespace gdi::printmodel
