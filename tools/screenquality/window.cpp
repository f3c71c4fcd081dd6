// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/window.h"

#include <cmath>
#include <cstddef>
#include <numbers>

namespace gdi::screenquality {

std::vector<double> hannWindow(int side) {
  std::vector<double> line;
  line.reserve(static_cast<std::size_t>(side));
  for (int i = 0; i < side; ++i) {
    line.push_back((1.0 - std::cos(2.0 * std::numbers::pi * (i + 0.5) / side)) *
                   std::sqrt(2.0 / 3.0));
  }
  std::vector<double> window;
  for (const double down : line) {
    for (const double across : line) {
      window.push_back(down * across);
    }
  }
  return window;
}

}  // namespace gdi::screenquality
