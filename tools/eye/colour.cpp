// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/eye/colour.h"

#include <cmath>
#include <cstddef>

namespace gdi::eye {
namespace {

constexpr double kCubeRootBegins = 216.0 / 24389.0;
constexpr double kStraightSlope = 841.0 / 108.0;

double response(double share) {
  return share > kCubeRootBegins ? std::cbrt(share) : kStraightSlope * share + 4.0 / 29.0;
}

double responseSlope(double share) {
  return share > kCubeRootBegins ? 1.0 / (3.0 * std::pow(share, 2.0 / 3.0)) : kStraightSlope;
}

// XYZ of the sRGB primaries, rows scaled so that white is 1, 1, 1.
constexpr std::array<Rgb, 3> kPrimaries{{
    {0.4124 / 0.9505, 0.3576 / 0.9505, 0.1805 / 0.9505},
    {0.2126, 0.7152, 0.0722},
    {0.0193 / 1.0890, 0.1192 / 1.0890, 0.9505 / 1.0890},
}};

std::array<double, 3> xyzOf(const Rgb& rgb) {
  std::array<double, 3> xyz{};
  for (std::size_t i = 0; i < 3; ++i) {
    for (std::size_t j = 0; j < 3; ++j) {
      xyz.at(i) += kPrimaries.at(i).at(j) * rgb.at(j);
    }
  }
  return xyz;
}

}  // namespace

const std::array<Rgb, 4> kInks{{
    {0.04, 0.33, 0.70},
    {0.72, 0.035, 0.22},
    {0.95, 0.80, 0.04},
    {0.035, 0.035, 0.035},
}};

double lightness(double reflectance) {
  return 116.0 * response(reflectance) - 16.0;
}

double lightnessSlope(double reflectance) {
  return 116.0 * responseSlope(reflectance);
}

Lab labOf(const Rgb& rgb) {
  const auto [x, y, z] = xyzOf(rgb);
  return {lightness(y), 500.0 * (response(x) - response(y)), 200.0 * (response(y) - response(z))};
}

std::array<Rgb, 3> labSlopes(const Rgb& rgb) {
  const auto [x, y, z] = xyzOf(rgb);
  std::array<Rgb, 3> slopes{};
  for (std::size_t i = 0; i < 3; ++i) {
    const double byX = kPrimaries[0].at(i) * responseSlope(x);
    const double byY = kPrimaries[1].at(i) * responseSlope(y);
    const double byZ = kPrimaries[2].at(i) * responseSlope(z);
    slopes[0].at(i) = 116.0 * byY;
    slopes[1].at(i) = 500.0 * (byX - byY);
    slopes[2].at(i) = 200.0 * (byY - byZ);
  }
  return slopes;
}

}  // namespace gdi::eye
