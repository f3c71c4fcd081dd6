// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/judging.h"

#include <algorithm>
#include <sstream>

#include <gtest/gtest.h>

#include "tests/screenquality/small_bundle.h"

namespace gdi::screenquality {
namespace {

TEST(Repeat, IsTheMostOfTheScreensThatPrint) {
  ScreenSet set = validSet();
  EXPECT_EQ(repeatOf(set), 1);  // 16 pixels of a bit
  set.screens[1].screen.tile = {24, 1};
  set.mode = "Color";
  EXPECT_EQ(repeatOf(set), 3);
  set.depth = 2;
  EXPECT_EQ(repeatOf(set), 3);  // 48 bits
  set.mode = "Mono";
  EXPECT_EQ(repeatOf(set), 2);
}

TEST(Judging, TheWorstSetAgainstItsGoalComesFirst) {
  // The second screen of two shows lines across 16 pixels, the first single pixels.
  ScreenSet fine = validSet();
  for (std::size_t level = 0; level < kLevels; ++level) {
    for (std::size_t pixel = 0; pixel < kLevels; ++pixel) {
      const std::size_t spread = pixel * 167 % kLevels;
      fine.screens[3].screen.outputs[level * kLevels + pixel] =
          spread < level || level == kLevels - 1 ? 1 : 0;
    }
  }
  const std::vector sets{fine, validSet()};
  const Judgement judgement = judge(sets, false);
  ASSERT_EQ(judgement.sets.size(), 2U);
  EXPECT_TRUE(judgement.baselines.empty());
  EXPECT_EQ(judgement.sets[0].set, &sets[1]);
  EXPECT_EQ(judgement.sets[0].goal, goalOf("Fast", "plain", "Mono"));
  EXPECT_GT(judgement.sets[0].shareOfGoal(), judgement.sets[1].shareOfGoal());
  EXPECT_FALSE(judgement.sets[0].bestBaseline);
  const Reached reached = judgement.sets[0].reached();
  EXPECT_EQ(reached.title, "Fast Mono plain");
  EXPECT_FALSE(reached.colour);
}

#ifndef GDI_SLOW_BUILD
TEST(Judging, BaselinesAreMadeOnceForAClassAndDepth) {
  std::vector sets{validSet(), validSet()};
  sets[1].mode = "Color";
  const std::vector<MadeBaseline> made = baselinesFor(sets);
  ASSERT_EQ(made.size(), kBaselines.size());
  for (const MadeBaseline& one : made) {
    EXPECT_EQ(one.conditions, sets[0].conditions);
    for (const Screen& screen : one.screens) {
      EXPECT_EQ(screen.outputs.size(), kLevels * screen.tile.size()) << one.name;
    }
  }
}
#endif

#ifndef GDI_SLOW_BUILD
TEST(Judging, ASetIsComparedWithTheBestBaselineAndErrorDiffusionIsNone) {
  const std::vector sets{validSet()};
  const Judgement judgement = judge(sets, true);
  ASSERT_EQ(judgement.baselines.size(), kBaselines.size() + 1);
  double least = 100.0;
  for (const JudgedBaseline& baseline : judgement.baselines) {
    EXPECT_GT(baseline.quality.composite(), 0.5) << baseline.name;
    if (!baseline.isReference) {
      least = std::min(least, baseline.quality.composite());
    }
  }
  EXPECT_EQ(judgement.sets[0].bestBaseline, least);
  // Dispersed like Bayer's pixels, error diffusion is as dark and as unsteady.
  const JudgedBaseline& diffused = judgement.baselines.back();
  ASSERT_TRUE(diffused.isReference);
  const Quality& bayer = judgement.baselines.front().quality;
  EXPECT_NEAR(diffused.quality.swing, bayer.swing, 1.0);
  EXPECT_NEAR(diffused.quality.curve, bayer.curve, 1.0);
  EXPECT_NEAR(diffused.quality.grain, bayer.grain, 0.5);
}
#endif

}  // namespace
}  // namespace gdi::screenquality
