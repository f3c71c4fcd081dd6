// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/eye/sight.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace gdi::eye {
namespace {

// The oblique effect begins at the first frequency and is whole at the second, in cycles a degree.
constexpr double kObliqueBegins = 3.0;
constexpr double kObliqueWhole = 11.0;

template <typename Seen>
Sight sightOf(const Tile& field, double inches, Seen seen) {
  const double degree = pixelsPerDegree(inches);
  Sight sight;
  for (int row = 0; row < field.height; ++row) {
    const int down = 2 * row > field.height ? row - field.height : row;
    for (int across = 0; across <= field.width / 2; ++across) {
      sight.push_back(seen(degree * across / field.width, degree * down / field.height));
    }
  }
  return sight;
}

}  // namespace

double pixelsPerDegree(double inches) {
  return inches * std::tan(std::numbers::pi / 180.0) * kDotsPerInch;
}

double lightnessSeen(double x, double y) {
  const double frequency = std::hypot(x, y);
  const double slant = 0.925 + 0.075 * std::cos(4.0 * std::atan2(y, x));
  const double part =
      std::clamp((frequency - kObliqueBegins) / (kObliqueWhole - kObliqueBegins), 0.0, 1.0);
  const double oblique = 1.0 + part * (slant - 1.0);
  return std::exp(-std::max(frequency / oblique - 3.0, 0.0) / 7.0);
}

double chromaSeen(double x, double y) {
  return std::exp(-0.419 * std::hypot(x, y));
}

Sight lightnessSight(const Tile& field, double inches) {
  return sightOf(field, inches, lightnessSeen);
}

Sight chromaSight(const Tile& field, double inches) {
  return sightOf(field, inches, chromaSeen);
}

NoiseSeen noiseSeen(double correlation, double inches) {
  constexpr int kHalf = 128;  // steps from no to the highest frequency, half a cycle a pixel
  const double degree = pixelsPerDegree(inches);
  double power = 0.0;
  NoiseSeen seen;
  for (int row = -kHalf; row < kHalf; ++row) {
    for (int column = -kHalf; column < kHalf; ++column) {
      const double x = 0.5 * column / kHalf;
      const double y = 0.5 * row / kHalf;
      const double turn = 2.0 * std::numbers::pi * correlation;
      const double here = std::exp(-turn * turn * (x * x + y * y));
      const double lightness = lightnessSeen(x * degree, y * degree);
      const double chroma = chromaSeen(x * degree, y * degree);
      power += here;
      seen.lightness += here * lightness * lightness;
      seen.chroma += here * chroma * chroma;
    }
  }
  return {std::sqrt(seen.lightness / power), std::sqrt(seen.chroma / power)};
}

}  // namespace gdi::eye
