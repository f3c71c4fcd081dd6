// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/goals.h"

#include <gtest/gtest.h>

#include "tools/screenquality/Conditions.h"

namespace gdi::screenquality {
namespace {

using Lines = std::vector<std::string>;

TEST(Goals, EveryQualityClassAndModeHasOne) {
  for (const char* quality : {"Fast", "Standard", "Fine"}) {
    for (const Conditions& conditions : kPaperClasses) {
      for (const char* mode : {"Color", "Mono"}) {
        const auto goal = goalOf(quality, conditions.name, mode);
        ASSERT_TRUE(goal) << quality << ' ' << conditions.name << ' ' << mode;
        EXPECT_GT(*goal, 0.5);
        EXPECT_LT(*goal, 2.0);
      }
    }
  }
}

TEST(Goals, OtherWordsHaveNone) {
  EXPECT_FALSE(goalOf("Draft", "plain", "Mono"));
  EXPECT_FALSE(goalOf("Fast", "glossy", "Mono"));
  EXPECT_FALSE(goalOf("Fast", "plain", "Grey"));
}

TEST(Goals, ASetMayExceedItsGoalByTwoPercent) {
  EXPECT_EQ(missesOf({"Fast Mono plain", 1.019, 1.0, std::nullopt, false}), Lines{});
  EXPECT_EQ(missesOf({"Fast Mono plain", 1.021, 1.0, std::nullopt, false}),
            Lines{"Fast Mono plain: J 1.021 misses its goal 1.000"});
}

TEST(Goals, ColourHasAtMostTwoThirdsOfTheBestBaselinesJ) {
  EXPECT_EQ(missesOf({"Fast Color plain", 1.99, 2.0, 3.0, true}), Lines{});
  EXPECT_EQ(missesOf({"Fast Color plain", 2.01, 2.0, 3.0, true}),
            Lines{"Fast Color plain: J 2.010 misses two thirds of the best baseline, 2.000"});
}

TEST(Goals, MonoIsBehindNoBaseline) {
  EXPECT_EQ(missesOf({"Fast Mono plain", 1.5, 1.5, 1.5, false}), Lines{});
  EXPECT_EQ(missesOf({"Fast Mono plain", 1.501, 1.5, 1.5, false}),
            Lines{"Fast Mono plain: J 1.501 misses the best baseline, 1.500"});
}

TEST(Goals, ASetCanMissBoth) {
  EXPECT_EQ(missesOf({"Fast Mono plain", 1.6, 1.5, 1.5, false}).size(), 2U);
}

TEST(Goals, WithoutGoalAndBaselineNothingIsMissed) {
  EXPECT_EQ(missesOf({"Fast Mono plain", 9.0, std::nullopt, std::nullopt, false}), Lines{});
}

}  // namespace
}  // namespace gdi::screenquality
