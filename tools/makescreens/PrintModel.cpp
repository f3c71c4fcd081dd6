// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/makescreens/PrintModel.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace gdi::makescreens {
namespace {

constexpr int kPulseReach = 2;  // pixels on each side that a pulse exposes
constexpr int kPoints = 4;      // points across and down a pixel at which toner is looked at
constexpr double kFarFromThreshold = 7.0;  // in softnesses
constexpr std::size_t kProfile = std::size_t{2 * kPulseReach + 1} * kPoints;

std::size_t wrapped(int position, int length) {
  return static_cast<std::size_t>((position % length + length) % length);
}

// The exposure that a pulse of `width` pixels, `offset` pixels away, gives each point of a pixel.
void appendProfile(std::vector<double>& profiles, double width, double sigma) {
  const double scale = 1.0 / (sigma * std::numbers::sqrt2);
  for (int offset = -kPulseReach; offset <= kPulseReach; ++offset) {
    for (int point = 0; point < kPoints; ++point) {
      const double distance = (point + 0.5) / kPoints - 0.5 - offset;
      profiles.push_back(0.5 * (std::erf((distance + width / 2) * scale) -
                                std::erf((distance - width / 2) * scale)));
    }
  }
}

// Scales profiles so that a row of the last one, the widest, exposes to 1 on average.
void normalise(std::vector<double>& profiles) {
  double sum = 0.0;
  for (std::size_t i = profiles.size() - kProfile; i < profiles.size(); ++i) {
    sum += profiles[i];
  }
  for (double& value : profiles) {
    value *= kPoints / sum;
  }
}

}  // namespace

PrintModel::PrintModel(const PaperModel& paper, const Tile& tile, int steps)
    : paper_(paper), tile_(tile) {
  for (int value = 0; value <= steps; ++value) {
    appendProfile(across_, static_cast<double>(value) / steps, paper.spot);
  }
  normalise(across_);
  appendProfile(down_, 1.0, paper.spot);
  normalise(down_);

  const int reach = static_cast<int>(std::ceil(4.0 * paper.spread));
  double sum = 0.0;
  for (int offset = -reach; offset <= reach; ++offset) {
    spread_.push_back(std::exp(-0.5 * offset * offset / (paper.spread * paper.spread)));
    sum += spread_.back();
  }
  for (double& value : spread_) {
    value /= sum;
  }
}

std::vector<double> PrintModel::coverage(std::span<const std::uint8_t> values) const {
  const auto width = static_cast<std::size_t>(tile_.width);
  std::vector<double> rows(values.size() * kPoints, 0.0);
  for (std::size_t y = 0; y < static_cast<std::size_t>(tile_.height); ++y) {
    for (std::size_t x = 0; x < width; ++x) {
      double* point = &rows[(y * width + x) * kPoints];
      for (int offset = -kPulseReach; offset <= kPulseReach; ++offset) {
        const std::size_t value =
            values[y * width + wrapped(static_cast<int>(x) + offset, tile_.width)];
        const double* profile =
            &across_[value * kProfile + static_cast<std::size_t>(offset + kPulseReach) * kPoints];
        for (int i = 0; i < kPoints; ++i) {
          point[i] += profile[i];
        }
      }
    }
  }
  std::vector<double> covered(values.size(), 0.0);
  std::vector<double> exposure(width * kPoints);
  for (int y = 0; y < tile_.height; ++y) {
    double* line = &covered[static_cast<std::size_t>(y) * width];
    for (std::size_t point = 0; point < kPoints; ++point) {
      std::fill(exposure.begin(), exposure.end(), 0.0);
      for (int offset = -kPulseReach; offset <= kPulseReach; ++offset) {
        const double weight =
            down_[static_cast<std::size_t>(offset + kPulseReach) * kPoints + point];
        const double* row = &rows[wrapped(y + offset, tile_.height) * exposure.size()];
        for (std::size_t i = 0; i < exposure.size(); ++i) {
          exposure[i] += weight * row[i];
        }
      }
      for (std::size_t i = 0; i < exposure.size(); ++i) {
        line[i / kPoints] += toner(exposure[i]) / (kPoints * kPoints);
      }
    }
  }
  return covered;
}

// The share of toner at a point of that exposure. Far from the threshold it is all or nothing.
double PrintModel::toner(double exposure) const {
  const double distance = (exposure - paper_.threshold) / paper_.softness;
  if (std::abs(distance) > kFarFromThreshold) {
    return distance > 0.0 ? 1.0 : 0.0;
  }
  return 1.0 / (1.0 + std::exp(-distance));
}

std::vector<double> PrintModel::spreadLight(std::span<const double> transmission) const {
  const auto width = static_cast<std::size_t>(tile_.width);
  const int reach = static_cast<int>(spread_.size()) / 2;
  std::vector<double> rows(transmission.size(), 0.0);
  std::vector<double> light(transmission.size(), 0.0);
  for (int y = 0; y < tile_.height; ++y) {
    const std::size_t first = static_cast<std::size_t>(y) * width;
    for (int x = 0; x < tile_.width; ++x) {
      double sum = 0.0;
      int from = x - reach;
      for (const double weight : spread_) {
        sum += weight * transmission[first + wrapped(from++, tile_.width)];
      }
      rows[first + static_cast<std::size_t>(x)] = sum;
    }
  }
  for (int y = 0; y < tile_.height; ++y) {
    const std::size_t to = static_cast<std::size_t>(y) * width;
    int row = y - reach;
    for (const double weight : spread_) {
      const std::size_t from = wrapped(row++, tile_.height) * width;
      for (std::size_t x = 0; x < width; ++x) {
        light[to + x] += weight * rows[from + x];
      }
    }
  }
  return light;
}

double PrintModel::printedArea(std::span<const std::uint8_t> values) const {
  const double absorbed = 1.0 - std::sqrt(paper_.solid);
  std::vector<double> transmission = coverage(values);
  for (double& value : transmission) {
    value = 1.0 - value * absorbed;
  }
  const std::vector<double> light = spreadLight(transmission);
  double reflected = 0.0;
  for (std::size_t i = 0; i < light.size(); ++i) {
    reflected += transmission[i] * light[i];
  }
  reflected /= static_cast<double>(light.size());
  return (1.0 - reflected) / (1.0 - paper_.solid);
}

}  // namespace gdi::makescreens
