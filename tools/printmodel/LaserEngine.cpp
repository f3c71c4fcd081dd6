// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/printmodel/LaserEngine.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace gdi::printmodel {
namespace {

constexpr int kPulseReach = 2;  // pixels on each side that a pulse exposes
constexpr std::size_t kPoints = kPointsAcross;
constexpr std::size_t kProfile = std::size_t{2 * kPulseReach + 1} * kPoints;

// Toner is tabulated up to so many softnesses from the threshold; further off it is all or nothing.
constexpr double kFarFromThreshold = 12.0;
constexpr double kTonerStepsPerSoftness = 256.0;

// The exposure that a pulse of `width` pixels, `offset` pixels away, gives each point of a pixel.
void appendProfile(std::vector<double>& profiles, double width, double sigma) {
  const double scale = 1.0 / (sigma * std::numbers::sqrt2);
  for (int offset = -kPulseReach; offset <= kPulseReach; ++offset) {
    for (int point = 0; point < kPointsAcross; ++point) {
      const double distance = (point + 0.5) / kPointsAcross - 0.5 - offset;
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
    value *= kPointsAcross / sum;
  }
}

}  // namespace

LaserEngine::LaserEngine(const PaperModel& paper, int steps)
    : threshold_(paper.threshold), softness_(paper.softness) {
  for (int value = 0; value <= steps; ++value) {
    appendProfile(across_, static_cast<double>(value) / steps, paper.spot);
  }
  normalise(across_);
  appendProfile(down_, 1.0, paper.spot);
  normalise(down_);
  const int last = static_cast<int>(kFarFromThreshold * kTonerStepsPerSoftness);
  for (int step = -last; step <= last + 1; ++step) {
    toner_.push_back(1.0 / (1.0 + std::exp(-step / kTonerStepsPerSoftness)));
  }
}

Exposure LaserEngine::exposure(const Tile& tile, std::span<const std::uint8_t> values) const {
  const auto width = static_cast<std::size_t>(tile.width);
  const std::size_t rowPoints = width * kPoints;
  std::vector<double> rows(values.size() * kPoints, 0.0);
  for (std::size_t y = 0; y < static_cast<std::size_t>(tile.height); ++y) {
    for (std::size_t x = 0; x < width; ++x) {
      double* point = &rows[y * rowPoints + x * kPoints];
      for (int offset = -kPulseReach; offset <= kPulseReach; ++offset) {
        const std::size_t value =
            values[y * width + wrapped(static_cast<int>(x) + offset, tile.width)];
        const double* profile =
            &across_[value * kProfile + static_cast<std::size_t>(offset + kPulseReach) * kPoints];
        for (std::size_t i = 0; i < kPoints; ++i) {
          point[i] += profile[i];
        }
      }
    }
  }
  Exposure exposure(rows.size() * kPoints, 0.0);
  double* line = exposure.data();
  for (int y = 0; y < tile.height; ++y) {
    for (std::size_t point = 0; point < kPoints; ++point) {
      for (int offset = -kPulseReach; offset <= kPulseReach; ++offset) {
        const double weight =
            down_[static_cast<std::size_t>(offset + kPulseReach) * kPoints + point];
        const double* row = &rows[wrapped(y + offset, tile.height) * rowPoints];
        for (std::size_t i = 0; i < rowPoints; ++i) {
          line[i] += weight * row[i];
        }
      }
      line += rowPoints;
    }
  }
  return exposure;
}

std::vector<double> LaserEngine::coverage(const Tile& tile, const Exposure& exposure,
                                          double swing) const {
  const auto width = static_cast<std::size_t>(tile.width);
  std::vector<double> covered(tile.size(), 0.0);
  const double* point = exposure.data();
  for (std::size_t row = 0; row < static_cast<std::size_t>(tile.height) * kPoints; ++row) {
    double* line = &covered[row / kPoints * width];
    for (std::size_t x = 0; x < width; ++x) {
      for (std::size_t i = 0; i < kPoints; ++i) {
        line[x] += toner(*point++ * swing) / (kPointsAcross * kPointsAcross);
      }
    }
  }
  return covered;
}

double LaserEngine::sensitivity(const Exposure& exposure) const {
  double sum = 0.0;
  for (const double value : exposure) {
    const double covered = toner(value);
    sum += value * covered * (1.0 - covered);
  }
  return sum / softness_ / static_cast<double>(exposure.size());
}

// The logistic function, between its table's steps.
double LaserEngine::toner(double exposure) const {
  const double distance = (exposure - threshold_) / softness_;
  if (distance <= -kFarFromThreshold || distance >= kFarFromThreshold) {
    return distance > 0.0 ? 1.0 : 0.0;
  }
  const double step = (distance + kFarFromThreshold) * kTonerStepsPerSoftness;
  const auto below = static_cast<std::size_t>(step);
  const double part = step - static_cast<double>(below);
  return toner_[below] + part * (toner_[below + 1] - toner_[below]);
}

}  // namespace gdi::printmodel
