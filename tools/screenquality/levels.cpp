// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/levels.h"

#include <algorithm>
#include <cmath>

namespace gdi::screenquality {

std::vector<double> levelWeights(std::span<const double> lightnesses) {
  std::vector<double> weights;
  double sum = 0.0;
  for (std::size_t i = 0; i < lightnesses.size(); ++i) {
    const std::size_t before = i == 0 ? 0 : i - 1;
    const std::size_t after = std::min(i + 1, lightnesses.size() - 1);
    weights.push_back(std::abs(lightnesses[after] - lightnesses[before]) / 2.0);
    sum += weights.back();
  }
  for (double& weight : weights) {
    weight = sum > 0.0 ? weight / sum : 1.0 / static_cast<double>(weights.size());
  }
  return weights;
}

double rootMeanSquare(std::span<const double> values, std::span<const double> weights) {
  double sum = 0.0;
  for (std::size_t i = 0; i < values.size(); ++i) {
    sum += weights[i] * values[i] * values[i];
  }
  return std::sqrt(sum);
}

}  // namespace gdi::screenquality
