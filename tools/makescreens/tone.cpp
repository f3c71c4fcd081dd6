// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/makescreens/tone.h"

#include <algorithm>
#include <cmath>

namespace gdi::makescreens {
namespace {

constexpr std::size_t kMostSamples = 240;  // besides that of no units
constexpr int kSmoothings = 3;

// Where `value` lies between rising `from`: as the line through the two about it has it in `to`.
double interpolated(const std::vector<double>& from, const std::vector<double>& to, double value) {
  const auto above = std::lower_bound(from.begin() + 1, from.end() - 1, value) - from.begin();
  const auto high = static_cast<std::size_t>(above);
  const double part =
      std::clamp((value - from[high - 1]) / (from[high] - from[high - 1]), 0.0, 1.0);
  return std::lerp(to[high - 1], to[high], part);
}

}  // namespace

PrintedCurve::PrintedCurve(std::size_t units, const PrintedAreaOf& printedArea) : units_(units) {
  const std::size_t samples = std::min(units, kMostSamples);
  std::vector<double> raw;
  for (std::size_t i = 0; i <= samples; ++i) {
    const std::size_t count = units * i / samples;
    counts_.push_back(static_cast<double>(count));
    raw.push_back(printedArea(count));
  }
  areas_ = raw;
  for (int pass = 0; pass < kSmoothings; ++pass) {
    raw = areas_;
    for (std::size_t i = 1; i < samples; ++i) {
      areas_[i] = (raw[i - 1] + 2.0 * raw[i] + raw[i + 1]) / 4.0;
    }
  }
  for (std::size_t i = 1; i <= samples; ++i) {
    areas_[i] = std::max(areas_[i], areas_[i - 1] + 1e-9);
  }
}

double PrintedCurve::areaAt(double units) const {
  return interpolated(counts_, areas_, units);
}

double PrintedCurve::unitsFor(double area) const {
  return interpolated(areas_, counts_, area);
}

double targetArea(int level, double gain) {
  const double tone = static_cast<double>(level) / (kLevels - 1);
  return tone + gain * 4.0 * tone * (1.0 - tone);
}

LevelUnits nearestUnits(const PrintedCurve& curve, double gain) {
  LevelUnits result{};
  for (int level = 1; level < kLevels - 1; ++level) {
    result.at(static_cast<std::size_t>(level)) =
        static_cast<std::size_t>(std::lround(curve.unitsFor(targetArea(level, gain))));
  }
  result.back() = curve.units();
  return result;
}

}  // namespace gdi::makescreens
