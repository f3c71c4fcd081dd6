// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/PrintedScreen.h"

#include <cstddef>
#include <numeric>
#include <span>
#include <vector>

#include <gtest/gtest.h>

#include "tests/screenquality/test_screens.h"

namespace gdi::screenquality {
namespace {

double meanOf(std::span<const double> values) {
  return std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
}

TEST(PrintedScreen, ABlankLevelIsBarePaperAndASolidOneIsInk) {
  const Screen screen = barScreen({3, 8}, [](std::size_t level) { return level < 255 ? 0 : 8; });
  const PrintedScreen print(screen, kPlainPrinter);
  EXPECT_NEAR(print.area(0), 0.0, 1e-3);
  EXPECT_NEAR(print.reflectance(0), 1.0, 1e-3);
  EXPECT_NEAR(print.area(255), 1.0, 1e-3);
  EXPECT_NEAR(print.reflectance(255), 0.035, 1e-3);
  EXPECT_EQ(print.sensitivity(0), 0.0);
}

TEST(PrintedScreen, ABarPrintsItsShareOfTheTile) {
  const Screen screen =
      barScreen({1, 1000}, [](std::size_t level) { return static_cast<int>(level) * 3; });
  const PrintedScreen print(screen, kPlainPrinter);
  for (const std::size_t level : {1U, 50U, 128U, 255U}) {
    EXPECT_NEAR(print.area(level), 0.003 * static_cast<double>(level), 2e-4);
    EXPECT_NEAR(meanOf(print.coverage(level)), 0.003 * static_cast<double>(level), 1e-4);
  }
}

TEST(PrintedScreen, ReflectanceIsTheMeanOfTheLightThatComesBack) {
  const Screen screen = uprightLines(7);
  const PrintedScreen print(screen, {0.58, 0.42, 0.055, 1.1, 0.035});
  for (const std::size_t level : {0U, 60U, 200U}) {
    const std::vector<double> light = print.light(level);
    ASSERT_EQ(light.size(), 7U);
    EXPECT_NEAR(print.reflectance(level), meanOf(light), 1e-12);
  }
}

TEST(PrintedScreen, InkIsDarkerThanThePaperBesideIt) {
  const Screen screen = uprightLines(8);
  const PrintedScreen print(screen, {0.58, 0.42, 0.055, 1.1, 0.035});
  const std::vector<double> light = print.light(128);  // columns 0 to 3 are ink
  for (std::size_t column = 4; column < 8; ++column) {
    EXPECT_LT(light[column - 4], 0.3);
    EXPECT_GT(light[column], 0.5);
  }
  EXPECT_NEAR(light[0], light[3], 1e-12);
  EXPECT_LT(light[1], light[0]);
  EXPECT_LT(light[4], light[5]) << "light lost under the ink beside";
}

}  // namespace
}  // namespace gdi::screenquality
