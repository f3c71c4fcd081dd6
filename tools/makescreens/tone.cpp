// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/makescreens/tone.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace gdi::makescreens {
namespace {

constexpr std::size_t kSamples = 240;
constexpr int kSmoothings = 3;

// The printed curve at kSamples + 1 evenly spaced counts of units, smoothed, from 0 to 1, rising.
std::vector<double> sampledCurve(std::size_t units, const PrintedAreaOf& printedArea) {
  std::vector<double> raw;
  for (std::size_t i = 0; i <= kSamples; ++i) {
    raw.push_back(printedArea(units * i / kSamples));
  }
  std::vector<double> curve = raw;
  for (int pass = 0; pass < kSmoothings; ++pass) {
    raw = curve;
    for (std::size_t i = 1; i < kSamples; ++i) {
      curve[i] = (raw[i - 1] + 2.0 * raw[i] + raw[i + 1]) / 4.0;
    }
  }
  const double blank = curve.front();
  const double range = std::max(curve.back() - blank, 1e-9);
  for (double& area : curve) {
    area = (area - blank) / range;
  }
  for (std::size_t i = 1; i <= kSamples; ++i) {
    curve[i] = std::max(curve[i], curve[i - 1] + 1e-9);
  }
  return curve;
}

// Where the rising curve reaches `area`, as a count of samples.
double samplesAt(const std::vector<double>& curve, double area) {
  const auto above = std::lower_bound(curve.begin() + 1, curve.end() - 1, area);
  const double low = *(above - 1);
  const double part = std::clamp((area - low) / (*above - low), 0.0, 1.0);
  return static_cast<double>(above - curve.begin() - 1) + part;
}

}  // namespace

double targetArea(int level, double gain) {
  const double tone = static_cast<double>(level) / (kLevels - 1);
  return tone + gain * 4.0 * tone * (1.0 - tone);
}

LevelUnits nearestUnits(std::size_t units, double gain, const PrintedAreaOf& printedArea) {
  const std::vector<double> curve = sampledCurve(units, printedArea);
  LevelUnits result{};
  for (int level = 1; level < kLevels - 1; ++level) {
    const double share = samplesAt(curve, targetArea(level, gain)) / kSamples;
    result.at(static_cast<std::size_t>(level)) =
        static_cast<std::size_t>(std::lround(share * static_cast<double>(units)));
  }
  result.back() = units;
  return result;
}

LevelUnits unitsOfLevels(std::size_t units, double gain, const PrintedAreaOf& printedArea) {
  LevelUnits result = nearestUnits(units, gain, printedArea);
  for (std::size_t level = 1; level < kLevels - 1; ++level) {
    result.at(level) = std::max(result.at(level), result.at(level - 1) + 1);
  }
  for (std::size_t level = kLevels - 1; level > 0; --level) {
    result.at(level - 1) = std::min(result.at(level - 1), result.at(level) - 1);
  }
  return result;
}

}  // namespace gdi::makescreens
