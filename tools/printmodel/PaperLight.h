// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What comes back from printed paper: light passes the toner, spreads in the paper, passes it
// again.
#pragma once

#include <span>
#include <vector>

#include "tools/printmodel/Tile.h"

namespace gdi::printmodel {

class PaperLight {
 public:
  // spread: standard deviation of the light's spread, in pixels, above 0.
  explicit PaperLight(double spread);

  // The share of light that each pixel of a repeating tile sends back, when its toner lets the
  // share `transmission` of the pixel's light through, one way.
  [[nodiscard]] std::vector<double> reflectance(const Tile& tile,
                                                std::span<const double> transmission) const;

  // The spread at each whole pixel's distance, the middle of the list being 0; sums to 1.
  [[nodiscard]] std::span<const double> kernel() const { return kernel_; }

 private:
  std::vector<double> kernel_;
};

// What a pixel lets through that toner covers to the share `coverage`; a solid of that reflectance
// lets its root through, since light passes twice.
std::vector<double> transmissionOf(std::span<const double> coverage, double solidReflectance);

}  // namespace gdi::printmodel
