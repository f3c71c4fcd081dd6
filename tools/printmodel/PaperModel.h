// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// One kind of paper in the printer, as the model of print sees it.
#pragma once

namespace gdi::printmodel {

struct PaperModel {
  double spot = 0.55;       // standard deviation of the laser spot, in pixels, above 0
  double threshold = 0.43;  // exposure, as a share of a solid's, at which toner covers half
  double softness = 0.05;   // how gradually toner follows exposure, above 0
  double spread = 0.9;      // standard deviation of the light's spread in the paper, in pixels
  double solid = 0.035;     // reflectance of a solid, 0 <= solid < 1
  bool operator==(const PaperModel&) const = default;
};

}  // namespace gdi::printmodel
