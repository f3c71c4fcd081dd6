// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/printmodel/PaperLight.h"

#include <cmath>
#include <cstddef>

namespace gdi::printmodel {
namespace {

constexpr double kReach = 4.0;  // standard deviations that the spread is followed

}  // namespace

PaperLight::PaperLight(double spread) {
  const int reach = static_cast<int>(std::ceil(kReach * spread));
  double sum = 0.0;
  for (int offset = -reach; offset <= reach; ++offset) {
    kernel_.push_back(std::exp(-0.5 * offset * offset / (spread * spread)));
    sum += kernel_.back();
  }
  for (double& value : kernel_) {
    value /= sum;
  }
}

std::vector<double> PaperLight::reflectance(const Tile& tile,
                                            std::span<const double> transmission) const {
  const auto width = static_cast<std::size_t>(tile.width);
  const int reach = static_cast<int>(kernel_.size()) / 2;
  const std::size_t border = static_cast<std::size_t>(reach);
  std::vector<double> rows(transmission.size(), 0.0);
  std::vector<double> line(width + 2 * border);
  for (std::size_t y = 0; y < static_cast<std::size_t>(tile.height); ++y) {
    const std::span<const double> from = transmission.subspan(y * width, width);
    for (std::size_t x = 0; x < line.size(); ++x) {
      line[x] = from[wrapped(static_cast<int>(x) - reach, tile.width)];
    }
    double* to = &rows[y * width];
    for (std::size_t i = 0; i < kernel_.size(); ++i) {
      for (std::size_t x = 0; x < width; ++x) {
        to[x] += kernel_[i] * line[x + i];
      }
    }
  }
  std::vector<double> light(transmission.size(), 0.0);
  for (int y = 0; y < tile.height; ++y) {
    double* to = &light[static_cast<std::size_t>(y) * width];
    int row = y - reach;
    for (const double weight : kernel_) {
      const double* from = &rows[wrapped(row++, tile.height) * width];
      for (std::size_t x = 0; x < width; ++x) {
        to[x] += weight * from[x];
      }
    }
  }
  for (std::size_t i = 0; i < light.size(); ++i) {
    light[i] *= transmission[i];
  }
  return light;
}

std::vector<double> transmissionOf(std::span<const double> coverage, double solidReflectance) {
  const double absorbed = 1.0 - std::sqrt(solidReflectance);
  std::vector<double> transmission;
  transmission.reserve(coverage.size());
  for (const double covered : coverage) {
    transmission.push_back(1.0 - covered * absorbed);
  }
  return transmission;
}

}  // namespace gdi::printmodel
