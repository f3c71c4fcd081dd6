// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/searchscreens/Random.h"

#include <array>
#include <cmath>
#include <cstddef>

#include <gtest/gtest.h>

namespace gdi::searchscreens {
namespace {

TEST(Random, ASeedGivesTheSameNumbers) {
  Random first(7);
  Random second(7);
  Random other(8);
  bool differs = false;
  for (int i = 0; i < 10; ++i) {
    const double share = first.share();
    EXPECT_EQ(share, second.share());
    differs = differs || share != other.share();
  }
  EXPECT_TRUE(differs);
}

TEST(Random, WholeNumbersReachBothEndsAndNoFurther) {
  Random random(1);
  std::array<int, 5> counts{};
  for (int i = 0; i < 5000; ++i) {
    const int number = random.whole(-2, 2);
    ++counts.at(static_cast<std::size_t>(number) + 2);
  }
  for (const int count : counts) {
    EXPECT_NEAR(count, 1000, 150);
  }
}

TEST(Random, NormalNumbersHaveMean0AndDeviation1) {
  Random random(1);
  double sum = 0.0;
  double squares = 0.0;
  for (int i = 0; i < 10000; ++i) {
    const double number = random.normal();
    sum += number;
    squares += number * number;
  }
  EXPECT_NEAR(sum / 10000, 0.0, 0.05);
  EXPECT_NEAR(std::sqrt(squares / 10000), 1.0, 0.05);
}

}  // namespace
}  // namespace gdi::searchscreens
