// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/validity.h"

#include <sstream>

#include <gtest/gtest.h>

#include "tests/screenquality/small_bundle.h"

namespace gdi::screenquality {
namespace {

using Lines = std::vector<std::string>;

// Changes the set's fourth screen, under a name of its own.
BundledScreen& other(ScreenSet& set) {
  set.screens[3].name = "other";
  return set.screens[3];
}

std::uint8_t& value(BundledScreen& screen, std::size_t pixel, std::size_t level) {
  return screen.screen.outputs[level * screen.screen.tile.size() + pixel];
}

TEST(Validity, AValidSetBreaksNothing) {
  EXPECT_EQ(breachesOf(validSet()), Lines{});
}

TEST(Validity, TheBundlesSetsBreakNothing) {
  std::ostringstream errors;
  const auto sets = loadScreenSets(GDI_BUNDLE, errors);
  ASSERT_TRUE(sets) << errors.str();
  for (const ScreenSet& set : *sets) {
    EXPECT_EQ(breachesOf(set), Lines{});
  }
}

TEST(Validity, ADepthThatThePagesHaveNotIsTold) {
  ScreenSet set = validSet();
  set.quality = "Standard";
  EXPECT_EQ(breachesOf(set), Lines{"StandardPlainMono: depth 1 where its pages need 2"});
  set.quality = "Fine";
  EXPECT_EQ(breachesOf(set), Lines{"FinePlainMono: depth 1 where its pages need 4"});
}

TEST(Validity, AScreenOfAnotherDepthThanItsSetIsTold) {
  ScreenSet set = validSet();
  other(set).outputDepth = 2;
  EXPECT_EQ(breachesOf(set),
            Lines{"FastPlainMono: screen other: output depth 2 where the set has 1"});
}

TEST(Validity, AnInputDepthBelowEightIsTold) {
  ScreenSet set = validSet();
  other(set).inputDepth = 4;
  EXPECT_EQ(breachesOf(set),
            Lines{"FastPlainMono: screen other: input depth 4 where samples have 8 bits"});
}

TEST(Validity, FilesOfTwelveToAHundredAndFiftyThousandBytesAreWithinBounds) {
  ScreenSet set = validSet();
  for (const std::uintmax_t bytes : {12'000U, 150'000U}) {
    other(set).bytes = bytes;
    EXPECT_EQ(breachesOf(set), Lines{});
  }
  other(set).bytes = 11'999;
  EXPECT_EQ(breachesOf(set), Lines{"FastPlainMono: screen other: the file has 11999 bytes, outside "
                                   "12000 to 150000"});
  other(set).bytes = 150'001;
  EXPECT_EQ(breachesOf(set).size(), 1U);
}

TEST(Validity, APixelThatIsNotBlankAtLevelZeroIsTold) {
  ScreenSet set = validSet();
  for (std::size_t level = 0; level < kLevels; ++level) {
    value(other(set), 37, level) = 1;
  }
  EXPECT_EQ(breachesOf(set),
            Lines{"FastPlainMono: screen other: pixel 5, 2 at level 0 has 1, not blank"});
}

TEST(Validity, APixelThatIsNotFullAtTheLastLevelIsTold) {
  ScreenSet set = validSet();
  value(other(set), 255, 255) = 0;
  EXPECT_EQ(breachesOf(set), Lines{"FastPlainMono: screen other: pixel 15, 15 at level 255 has 0, "
                                   "not the full 1"});
}

TEST(Validity, APixelThatFallsIsTold) {
  ScreenSet set = validSet();
  value(other(set), 20, 30) = 0;
  EXPECT_EQ(breachesOf(set),
            Lines{"FastPlainMono: screen other: pixel 4, 1 at level 30 falls from 1 to 0"});
}

TEST(Validity, FewerThanTwoHundredAndFiftyTonesAreTold) {
  ScreenSet set = validSet();
  // Levels 3 to 8 become those before them: 6 tones go, 250 are left.
  const auto repeat = [&](std::size_t level) {
    for (std::size_t pixel = 0; pixel < kLevels; ++pixel) {
      value(other(set), pixel, level) = value(other(set), pixel, level - 1);
    }
  };
  for (std::size_t level = 3; level <= 8; ++level) {
    repeat(level);
  }
  EXPECT_EQ(breachesOf(set), Lines{});
  repeat(9);
  EXPECT_EQ(breachesOf(set),
            Lines{"FastPlainMono: screen other: 249 different mean tones, fewer than 250"});
}

// Pixels that darken one after the other in reading order, all of them at the last level.
Screen inReadingOrder(const Tile& tile) {
  Screen screen{tile, 1, {}};
  for (std::size_t level = 0; level < kLevels; ++level) {
    for (std::size_t pixel = 0; pixel < tile.size(); ++pixel) {
      screen.outputs.push_back(pixel * 255 / tile.size() < level ? 1 : 0);
    }
  }
  return screen;
}

TEST(Validity, AFlatTintThatRepeatsBeyondTheReachOfACopyIsTold) {
  ScreenSet set = validSet();
  other(set).screen = inReadingOrder({127, 3});  // 127 words of 16 bits hold 127 tiles of 16
  EXPECT_EQ(breachesOf(set), Lines{});
  other(set).screen = inReadingOrder({129, 3});
  EXPECT_EQ(breachesOf(set), Lines{"FastPlainMono: screen other: a flat tint repeats after 129 "
                                   "words, more than 128"});
}

TEST(Validity, AScreenThatSeveralPlanesShareIsToldOnce) {
  ScreenSet set = validSet();
  for (BundledScreen& screen : set.screens) {
    screen.bytes = 1;
  }
  EXPECT_EQ(breachesOf(set).size(), 1U);
}

}  // namespace
}  // namespace gdi::screenquality
