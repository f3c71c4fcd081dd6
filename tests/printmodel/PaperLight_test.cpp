// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/printmodel/PaperLight.h"

#include <cmath>
#include <cstddef>
#include <numeric>
#include <vector>

#include <gtest/gtest.h>

namespace gdi::printmodel {
namespace {

TEST(PaperLight, TheSpreadSumsToOne) {
  for (const double spread : {0.05, 0.9, 1.1, 1.4, 6.0}) {
    const PaperLight light(spread);
    EXPECT_NEAR(std::accumulate(light.kernel().begin(), light.kernel().end(), 0.0), 1.0, 1e-12);
  }
}

TEST(PaperLight, TheSpreadIsAGaussianAroundItsMiddle) {
  const PaperLight light(1.1);
  const auto kernel = light.kernel();
  ASSERT_EQ(kernel.size() % 2, 1U);
  const std::size_t middle = kernel.size() / 2;
  EXPECT_GE(middle, 4U) << "followed to nearly nothing";
  EXPECT_NEAR(kernel[middle], 1.0 / (1.1 * std::sqrt(2.0 * 3.14159265)), 1e-4);
  for (const int away : {1, 2, 3}) {
    const auto distance = static_cast<std::size_t>(away);
    EXPECT_DOUBLE_EQ(kernel[middle + distance], kernel[middle - distance]);
    EXPECT_NEAR(kernel[middle + distance] / kernel[middle],
                std::exp(-away * away / (2.0 * 1.1 * 1.1)), 1e-12);
  }
}

TEST(PaperLight, AnEvenTintReflectsTheSquareOfWhatItLetsThrough) {
  for (const Tile& tile : {Tile{5, 3}, Tile{1, 1}}) {
    const std::vector<double> light =
        PaperLight(1.4).reflectance(tile, std::vector<double>(tile.size(), 0.6));
    ASSERT_EQ(light.size(), tile.size());
    for (const double value : light) {
      EXPECT_NEAR(value, 0.36, 1e-12);
    }
  }
}

TEST(PaperLight, LightSpreadsBetweenTheTwoPassages) {
  const PaperLight paper(0.9);
  constexpr Tile kTile{11, 10};
  std::vector<double> transmission(kTile.size(), 1.0);
  transmission[4 * 11 + 5] = 0.25;
  const std::vector<double> light = paper.reflectance(kTile, transmission);
  // Of the light below each pixel the dark one takes three quarters of its share.
  const auto kernel = paper.kernel();
  const double middle = kernel[kernel.size() / 2];
  const double beside = kernel[kernel.size() / 2 + 1];
  EXPECT_NEAR(light[4 * 11 + 5], 0.25 * (1.0 - 0.75 * middle * middle), 1e-12);
  EXPECT_NEAR(light[4 * 11 + 6], 1.0 - 0.75 * middle * beside, 1e-12);
  EXPECT_NEAR(light[3 * 11 + 4], 1.0 - 0.75 * beside * beside, 1e-12);
}

TEST(PaperLight, LightLeavesATileOnOneSideAndComesInOnTheOther) {
  const PaperLight paper(1.1);
  constexpr Tile kTile{6, 7};
  std::vector<double> corner(kTile.size(), 1.0);
  corner[0] = 0.2;
  std::vector<double> middle(kTile.size(), 1.0);
  middle[3 * 6 + 2] = 0.2;
  const std::vector<double> fromCorner = paper.reflectance(kTile, corner);
  const std::vector<double> fromMiddle = paper.reflectance(kTile, middle);
  for (std::size_t y = 0; y < 7; ++y) {
    for (std::size_t x = 0; x < 6; ++x) {
      EXPECT_NEAR(fromMiddle[(y + 3) % 7 * 6 + (x + 2) % 6], fromCorner[y * 6 + x], 1e-12);
    }
  }
}

TEST(PaperLight, ATileNarrowerThanTheSpreadWrapsMoreThanOnce) {
  // A column of two rows is as wide a tile of them.
  const PaperLight paper(1.4);
  const std::vector<double> narrow = paper.reflectance({1, 2}, std::vector<double>{0.9, 0.3});
  std::vector<double> rows(30, 0.9);
  for (std::size_t pixel = 0; pixel < 30; ++pixel) {
    rows[pixel] = pixel / 3 % 2 == 0 ? 0.9 : 0.3;
  }
  const std::vector<double> wide = paper.reflectance({3, 10}, rows);
  EXPECT_NEAR(narrow[0], wide[12], 1e-12);
  EXPECT_NEAR(narrow[1], wide[15], 1e-12);
}

TEST(TransmissionOf, BarePaperLetsAllThroughAndASolidTheRootOfItsReflectance) {
  const std::vector<double> transmission = transmissionOf(std::vector<double>{0.0, 0.5, 1.0}, 0.04);
  ASSERT_EQ(transmission.size(), 3U);
  EXPECT_DOUBLE_EQ(transmission[0], 1.0);
  EXPECT_DOUBLE_EQ(transmission[1], 0.6);
  EXPECT_DOUBLE_EQ(transmission[2], 0.2);
}

}  // namespace
}  // namespace gdi::printmodel
