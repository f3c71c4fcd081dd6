// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/error_diffusion.h"

#include <algorithm>
#include <numeric>

#include <gtest/gtest.h>

namespace gdi::screenquality {
namespace {

using Values = std::vector<std::uint8_t>;

Values flat(const Tile& field, int level, int steps) {
  return errorDiffusion(field, Values(field.size(), static_cast<std::uint8_t>(level)), steps);
}

TEST(ErrorDiffusion, BlankAndSolidStayAsTheyAre) {
  EXPECT_EQ(flat({9, 7}, 0, 1), Values(63, 0));
  EXPECT_EQ(flat({9, 7}, 255, 1), Values(63, 1));
  EXPECT_EQ(flat({9, 7}, 255, 15), Values(63, 15));
}

// 100 / 255 is 0.392: blank, and 7/16 of it make the next pixel 0.564, which is dark and leaves
// -0.436; so the third is 0.201.
TEST(ErrorDiffusion, AnErrorGoesToTheNextPixel) {
  EXPECT_EQ(flat({3, 1}, 100, 1), (Values{0, 1, 0}));
}

// 60 / 255 is 0.235. The first row stays blank with 0.235, 0.338 and 0.383 and leaves 0.181, 0.192
// and 0.333 to the second. From the right, that is 0.568, dark, which leaves -0.432; 0.239; 0.521,
// dark again.
TEST(ErrorDiffusion, EverySecondRowRunsBack) {
  const Values values = flat({3, 2}, 60, 1);
  // Left to right the second row would be 0, 1, 0.
  EXPECT_EQ(values, (Values{0, 0, 0, 1, 0, 1}));
}

TEST(ErrorDiffusion, TonesKeepTheirMeans) {
  constexpr Tile kField{128, 128};
  for (const int steps : {1, 3, 15}) {
    for (const int level : {3, 64, 100, 201, 250}) {
      const Values values = flat(kField, level, steps);
      const double mean = std::accumulate(values.begin(), values.end(), 0.0) / kField.pixels();
      EXPECT_NEAR(mean / steps, level / 255.0, 0.004) << level << " in " << steps;
    }
  }
}

TEST(ErrorDiffusion, ATintIsMadeOfTheTwoValuesNextToIt) {
  Values values = flat({64, 64}, 100, 15);  // 5.88 of 15
  std::ranges::sort(values);
  EXPECT_EQ(values.front(), 5);
  EXPECT_EQ(values.back(), 6);
}

}  // namespace
}  // namespace gdi::screenquality
