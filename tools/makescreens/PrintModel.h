// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// How dark a repeated tile prints: laser pulses, toner that sticks or does not, light in the paper.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "tools/makescreens/lattice.h"

namespace gdi::makescreens {

// One kind of paper in the printer; lengths in pixels.
struct PaperModel {
  double spot = 0.55;       // standard deviation of the laser spot, above 0
  double threshold = 0.43;  // exposure, as a share of a solid's, at which toner covers half
  double softness = 0.05;   // how gradually toner follows exposure, above 0
  double spread = 0.9;      // standard deviation of the light's spread in the paper, above 0
  double solid = 0.035;     // reflectance of a solid, 0 <= solid < 1
};

// A pixel of value v is a pulse v / steps of a pixel wide, centred in its pixel.
class PrintModel {
 public:
  PrintModel(const PaperModel& paper, const Tile& tile, int steps);

  // The printed area that tile looks like: 0 for bare paper, 1 for a full solid.
  // Requires: one value of 0 to steps for each pixel, row by row.
  [[nodiscard]] double printedArea(std::span<const std::uint8_t> values) const;

 private:
  [[nodiscard]] std::vector<double> coverage(std::span<const std::uint8_t> values) const;
  [[nodiscard]] double toner(double exposure) const;
  [[nodiscard]] std::vector<double> spreadLight(std::span<const double> transmission) const;

  PaperModel paper_;
  Tile tile_;
  std::vector<double> across_;  // exposure by pulse value, pixel offset and point in the pixel
  std::vector<double> down_;    // the same of a pulse's height, by pixel offset and point
  std::vector<double> spread_;  // the light's spread by pixel offset
};

}  // namespace gdi::makescreens
