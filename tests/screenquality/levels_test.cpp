// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/levels.h"

#include <cmath>
#include <cstddef>
#include <numeric>
#include <vector>

#include <gtest/gtest.h>

namespace gdi::screenquality {
namespace {

TEST(LevelWeights, EachIsHalfTheWayBetweenItsNeighbours) {
  // Half the ways are 5, 15, 30, 20; together 70.
  const std::vector<double> weights = levelWeights(std::vector<double>{100.0, 90.0, 70.0, 30.0});
  ASSERT_EQ(weights.size(), 4U);
  EXPECT_NEAR(weights[0], 5.0 / 70.0, 1e-12);
  EXPECT_NEAR(weights[1], 15.0 / 70.0, 1e-12);
  EXPECT_NEAR(weights[2], 30.0 / 70.0, 1e-12);
  EXPECT_NEAR(weights[3], 20.0 / 70.0, 1e-12);
}

TEST(LevelWeights, TheySumToOne) {
  const std::vector<double> weights = levelWeights(std::vector<double>{98.0, 97.9, 40.0, 41.0});
  EXPECT_NEAR(std::accumulate(weights.begin(), weights.end(), 0.0), 1.0, 1e-12);
}

TEST(LevelWeights, WithoutAnyWayBetweenThemLevelsCountAlike) {
  EXPECT_EQ(levelWeights(std::vector<double>(4, 50.0)), std::vector<double>(4, 0.25));
  EXPECT_EQ(levelWeights(std::vector<double>{50.0}), std::vector<double>{1.0});
}

TEST(RootMeanSquare, IsWeighted) {
  EXPECT_NEAR(rootMeanSquare(std::vector<double>{2.0, 10.0}, std::vector<double>{0.75, 0.25}),
              std::sqrt(28.0), 1e-12);
  EXPECT_NEAR(rootMeanSquare(std::vector<double>(3, -4.0), std::vector<double>(3, 1.0 / 3.0)), 4.0,
              1e-12);
}

TEST(JudgedLevels, RiseFrom2To254CloserTogetherAtBothEnds) {
  EXPECT_EQ(kJudgedLevels.front(), 2U);
  EXPECT_EQ(kJudgedLevels.back(), 254U);
  for (std::size_t i = 1; i < kJudgedLevels.size(); ++i) {
    ASSERT_GT(kJudgedLevels.at(i), kJudgedLevels.at(i - 1));
    const std::size_t step = kJudgedLevels.at(i) - kJudgedLevels.at(i - 1);
    EXPECT_LE(step, 12U);
    if (kJudgedLevels.at(i) < 10 || kJudgedLevels.at(i) > 246) {
      EXPECT_EQ(step, 2U);
    }
  }
}

}  // namespace
}  // namespace gdi::screenquality
