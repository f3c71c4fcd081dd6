// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/baselines.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <string_view>

#include <gtest/gtest.h>

#include "tools/screenquality/Conditions.h"
#include "tools/screenquality/PrintedScreen.h"

namespace gdi::screenquality {
namespace {

const PaperModel kPlain = kPaperClasses[1].paper;
constexpr double kGain = 0.16;

FourScreens made(std::string_view name, int steps) {
  const auto* const found =
      std::find_if(kBaselines.begin(), kBaselines.end(),
                   [name](const Baseline& baseline) { return baseline.name == name; });
  EXPECT_NE(found, kBaselines.end()) << name;
  return found->make(steps, kPlain, kGain);
}

std::size_t unitsOf(const Screen& screen, std::size_t level) {
  const auto values = screen.level(level);
  return std::accumulate(values.begin(), values.end(), std::size_t{0});
}

// The first level at which the pixel is not blank.
std::size_t firstLevel(const Screen& screen, std::size_t x, std::size_t y) {
  const std::size_t pixel = y * static_cast<std::size_t>(screen.tile.width) + x;
  std::size_t level = 0;
  while (screen.level(level)[pixel] == 0) {
    ++level;
  }
  return level;
}

// How many pixels in ink have two neighbours in ink or more, of their four.
std::size_t insiders(const Screen& screen, std::size_t level) {
  const Tile& tile = screen.tile;
  const auto inkAt = [&](int x, int y) {
    const std::size_t row = printmodel::wrapped(y, tile.height);
    return int{screen.level(
        level)[row * static_cast<std::size_t>(tile.width) + printmodel::wrapped(x, tile.width)]};
  };
  std::size_t count = 0;
  for (int y = 0; y < tile.height; ++y) {
    for (int x = 0; x < tile.width; ++x) {
      const int beside = inkAt(x - 1, y) + inkAt(x + 1, y) + inkAt(x, y - 1) + inkAt(x, y + 1);
      count += inkAt(x, y) == 1 && beside >= 2 ? 1 : 0;
    }
  }
  return count;
}

void expectValid(const Screen& screen, int steps) {
  ASSERT_EQ(screen.steps, steps);
  ASSERT_EQ(screen.outputs.size(), kLevels * screen.tile.size());
  for (std::size_t pixel = 0; pixel < screen.tile.size(); ++pixel) {
    EXPECT_EQ(screen.level(0)[pixel], 0);
    EXPECT_EQ(screen.level(255)[pixel], steps);
    for (std::size_t level = 1; level < kLevels; ++level) {
      ASSERT_LE(screen.level(level - 1)[pixel], screen.level(level)[pixel]);
    }
  }
}

void expectOnCurve(const Screen& screen) {
  const PrintedScreen print(screen, kPlain);
  for (const std::size_t level : {30U, 64U, 128U, 192U, 230U}) {
    const double tone = static_cast<double>(level) / 255.0;
    EXPECT_NEAR(print.area(level), tone + kGain * 4.0 * tone * (1.0 - tone), 0.04) << level;
  }
}

TEST(Baselines, AllGoFromBlankToSolidAndNeverFall) {
  for (const int steps : {1, 3}) {
    for (const char* name : {"Bayer", "45 degrees", "rational angles"}) {
      for (const Screen& screen : made(name, steps)) {
        expectValid(screen, steps);
      }
    }
  }
}

TEST(Baselines, BayersSmallestSquareRisesByQuarters) {
  const FourScreens screens = made("Bayer", 1);
  const Screen& screen = screens[0];
  EXPECT_EQ(screen.tile, (Tile{16, 16}));
  // Ranks 0, 128, 192, 64 of 256: the levels after 0, 127.5, 191.3 and 63.8 of 255.
  EXPECT_EQ(firstLevel(screen, 0, 0), 1U);
  EXPECT_NEAR(static_cast<double>(firstLevel(screen, 1, 1)), 64.0, 1.0);
  EXPECT_NEAR(static_cast<double>(firstLevel(screen, 1, 0)), 128.0, 1.0);
  EXPECT_NEAR(static_cast<double>(firstLevel(screen, 0, 1)), 192.0, 1.0);
}

TEST(Baselines, BayersHalfHoldsAWholeCheckerboard) {
  const FourScreens screens = made("Bayer", 1);
  // 128.5 units, rounded up: the first of the other half is there.
  const auto half = screens[0].level(128);
  ASSERT_EQ(unitsOf(screens[0], 128), 129U);
  for (std::size_t pixel = 0; pixel < 256; ++pixel) {
    if ((pixel + pixel / 16) % 2 == 0) {
      EXPECT_EQ(half[pixel], 1) << pixel;
    }
  }
}

TEST(Baselines, BayersLevelsAreEvenAndAlikeOnAllPlanes) {
  const FourScreens screens = made("Bayer", 3);
  for (std::size_t level = 0; level < kLevels; ++level) {
    EXPECT_NEAR(static_cast<double>(unitsOf(screens[0], level)),
                static_cast<double>(level) * 768.0 / 255.0, 0.51);
  }
  EXPECT_EQ(screens[0].outputs, screens[3].outputs);
}

TEST(Baselines, DotsAt45DegreesAreClusteredAndCompensated) {
  const FourScreens screens = made("45 degrees", 1);
  EXPECT_EQ(screens[0].tile, (Tile{16, 16}));
  EXPECT_EQ(screens[1].outputs, screens[2].outputs);
  expectOnCurve(screens[0]);
  EXPECT_GT(insiders(screens[0], 60), unitsOf(screens[0], 60) / 2);
  EXPECT_EQ(insiders(made("Bayer", 1)[0], 60), 0U);
}

TEST(Baselines, RationalAnglesHaveAnotherScreenOnEachPlane) {
  const FourScreens screens = made("rational angles", 1);
  for (std::size_t plane = 0; plane < 4; ++plane) {
    for (std::size_t other = 0; other < plane; ++other) {
      EXPECT_NE(screens.at(plane).outputs, screens.at(other).outputs);
    }
  }
  // Cells of 40, 40, 36 and 32 pixels, at least eight of them.
  EXPECT_EQ(screens[0].tile.pixels() % 40, 0);
  EXPECT_EQ(screens[1].tile.pixels() % 40, 0);
  EXPECT_EQ(screens[2].tile.pixels() % 36, 0);
  EXPECT_EQ(screens[3].tile.pixels() % 32, 0);
  EXPECT_GE(screens[2].tile.pixels(), 8 * 36);
}

#ifndef GDI_SLOW_BUILD
TEST(Baselines, BlueNoiseIsAnotherOnEachPlaneAndCompensated) {
  const FourScreens screens = made("blue noise", 1);
  for (const Screen& screen : screens) {
    EXPECT_EQ(screen.tile, (Tile{64, 64}));
    expectValid(screen, 1);
  }
  EXPECT_NE(screens[0].outputs, screens[1].outputs);
  EXPECT_NE(screens[2].outputs, screens[3].outputs);
  expectOnCurve(screens[3]);
}
#endif

}  // namespace
}  // namespace gdi::screenquality
