// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/eye/colour.h"

#include <cmath>
#include <cstddef>

#include <gtest/gtest.h>

namespace gdi::eye {
namespace {

TEST(Lightness, WhiteIsHundredBlackNothing) {
  EXPECT_NEAR(lightness(1.0), 100.0, 1e-12);
  EXPECT_NEAR(lightness(0.0), 0.0, 1e-12);
}

TEST(Lightness, AReflectanceOf18PercentIsHalf) {
  EXPECT_NEAR(lightness(0.1842), 50.0, 0.01);
  EXPECT_NEAR(lightness(66.0 * 66.0 * 66.0 / (116.0 * 116.0 * 116.0)), 50.0, 1e-9);
}

TEST(Lightness, IsStraightInTheDark) {
  // 903.3 Y up to 8.
  EXPECT_NEAR(lightness(0.004), 0.004 * 24389.0 / 27.0, 1e-9);
  EXPECT_NEAR(lightness(216.0 / 24389.0), 8.0, 1e-9);
}

TEST(Lightness, ItsSlopeIsThatOfTheCurve) {
  for (const double reflectance : {0.003, 0.035, 0.2, 0.9}) {
    constexpr double kStep = 1e-6;
    const double slope =
        (lightness(reflectance + kStep) - lightness(reflectance - kStep)) / (2.0 * kStep);
    EXPECT_NEAR(lightnessSlope(reflectance), slope, 1e-5 * slope);
  }
}

TEST(Lab, WhiteHasNoHue) {
  const Lab white = labOf({1.0, 1.0, 1.0});
  EXPECT_NEAR(white[0], 100.0, 1e-9);
  EXPECT_NEAR(white[1], 0.0, 1e-9);
  EXPECT_NEAR(white[2], 0.0, 1e-9);
}

TEST(Lab, GreysHaveNoHue) {
  const Lab grey = labOf({0.2, 0.2, 0.2});
  EXPECT_NEAR(grey[0], lightness(0.2), 1e-9);
  EXPECT_NEAR(grey[1], 0.0, 1e-9);
  EXPECT_NEAR(grey[2], 0.0, 1e-9);
}

TEST(Lab, ThePrimariesAreThoseOfSRgb) {
  // As tables of sRGB give them for the white of D65.
  const Lab red = labOf({1.0, 0.0, 0.0});
  EXPECT_NEAR(red[0], 53.24, 0.02);
  EXPECT_NEAR(red[1], 80.09, 0.05);
  EXPECT_NEAR(red[2], 67.20, 0.05);
  const Lab green = labOf({0.0, 1.0, 0.0});
  EXPECT_NEAR(green[0], 87.73, 0.02);
  EXPECT_NEAR(green[1], -86.18, 0.05);
  EXPECT_NEAR(green[2], 83.18, 0.05);
  const Lab blue = labOf({0.0, 0.0, 1.0});
  EXPECT_NEAR(blue[0], 32.30, 0.02);
  EXPECT_NEAR(blue[1], 79.19, 0.05);
  EXPECT_NEAR(blue[2], -107.86, 0.05);
}

TEST(Lab, ItsSlopesAreThoseOfTheColours) {
  for (const Rgb& rgb : {Rgb{0.5, 0.3, 0.2}, Rgb{0.04, 0.33, 0.70}, Rgb{0.001, 0.002, 0.003}}) {
    const auto slopes = labSlopes(rgb);
    for (std::size_t channel = 0; channel < 3; ++channel) {
      constexpr double kStep = 1e-7;
      Rgb more = rgb;
      Rgb less = rgb;
      more.at(channel) += kStep;
      less.at(channel) -= kStep;
      const Lab above = labOf(more);
      const Lab below = labOf(less);
      for (std::size_t lab = 0; lab < 3; ++lab) {
        EXPECT_NEAR(slopes.at(lab).at(channel), (above.at(lab) - below.at(lab)) / (2.0 * kStep),
                    1e-3);
      }
    }
  }
}

TEST(Inks, EachTakesItsComplementsLight) {
  const auto& [cyan, magenta, yellow, black] = kInks;
  EXPECT_LT(cyan[0], cyan[1]);
  EXPECT_LT(cyan[1], cyan[2]);
  EXPECT_LT(magenta[1], magenta[0]);
  EXPECT_LT(magenta[1], magenta[2]);
  EXPECT_LT(yellow[2], yellow[1]);
  EXPECT_EQ(black, (Rgb{0.035, 0.035, 0.035}));
}

}  // namespace
}  // namespace gdi::eye
