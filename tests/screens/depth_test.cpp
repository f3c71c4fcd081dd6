// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "halftone/screens/depth.h"

#include <cstdint>
#include <limits>

#include <gtest/gtest.h>

namespace gdi {
namespace {

TEST(Depth, Only1And2And4And8AreValid) {
  for (int depth = -16; depth <= 64; ++depth) {
    EXPECT_EQ(isValidDepth(depth), depth == 1 || depth == 2 || depth == 4 || depth == 8) << depth;
  }
  EXPECT_FALSE(isValidDepth(std::numeric_limits<int>::min()));
  EXPECT_FALSE(isValidDepth(std::numeric_limits<int>::max()));
}

TEST(IntegerPower, MultipliesTheBaseByItself) {
  EXPECT_EQ(integerPower(2, 0), 1);
  EXPECT_EQ(integerPower(0, 0), 1);
  EXPECT_EQ(integerPower(7, 1), 7);
  EXPECT_EQ(integerPower(2, 8), 256);
  EXPECT_EQ(integerPower(-3, 3), -27);
  EXPECT_EQ(integerPower(2, 40), 1099511627776);
}

TEST(IntegerPower, ANegativeExponentGivesTheBase) {
  EXPECT_EQ(integerPower(5, -1), 5);
  EXPECT_EQ(integerPower(5, -1000), 5);
}

TEST(IntegerPower, AProductOutside64BitsKeepsItsLowBits) {
  EXPECT_EQ(integerPower(2, 63), std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(integerPower(2, 64), 0);
}

}  // namespace
}  // namespace gdi
