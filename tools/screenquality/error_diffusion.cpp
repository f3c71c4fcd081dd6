// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/error_diffusion.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace gdi::screenquality {

std::vector<std::uint8_t> errorDiffusion(const Tile& field, std::span<const std::uint8_t> levels,
                                         int steps) {
  std::vector<std::uint8_t> values(field.size());
  const auto width = static_cast<std::size_t>(field.width);
  std::vector<double> here(width, 0.0);   // errors that this row has been given
  std::vector<double> below(width, 0.0);  // and the next one
  for (int row = 0; row < field.height; ++row) {
    const int direction = row % 2 == 0 ? 1 : -1;
    for (int step = 0; step < field.width; ++step) {
      const int column = direction > 0 ? step : field.width - 1 - step;
      const std::size_t pixel =
          static_cast<std::size_t>(row) * width + static_cast<std::size_t>(column);
      const auto at = [&](std::vector<double>& errors, int ahead) -> double& {
        return errors[static_cast<std::size_t>(
            std::clamp(column + direction * ahead, 0, field.width - 1))];
      };
      const double wanted = levels[pixel] * steps / 255.0 + at(here, 0);
      const double value = std::clamp(std::round(wanted), 0.0, static_cast<double>(steps));
      values[pixel] = static_cast<std::uint8_t>(value);
      const double error = wanted - value;
      const bool last = step + 1 == field.width;
      // What would leave the field on the row's end goes down.
      (last ? at(below, 0) : at(here, 1)) += error * 7.0 / 16.0;
      at(below, -1) += error * 3.0 / 16.0;
      at(below, 0) += error * 5.0 / 16.0;
      at(below, 1) += error * 1.0 / 16.0;
    }
    here.swap(below);
    std::ranges::fill(below, 0.0);
  }
  return values;
}

}  // namespace gdi::screenquality
