// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/makescreens/spot.h"

#include <cstdint>
#include <numeric>
#include <vector>

#include <gtest/gtest.h>

namespace gdi::makescreens {
namespace {

constexpr Lattice kSquares{4, 1, 0, 0, 1, 0, 0};
constexpr Tile kSquare{4, 4};

TEST(SpotShares, PixelsAlikeBySymmetryHaveTheSameShare) {
  const std::vector<std::int64_t> shares = spotShares(kSquares, kSquare, 1, 0.0);
  // The dot is at the tile's corner, the hole in its middle.
  EXPECT_EQ(shares[0], shares[3]);
  EXPECT_EQ(shares[0], shares[12]);
  EXPECT_EQ(shares[0], shares[15]);
  EXPECT_EQ(shares[5], shares[10]);
  EXPECT_EQ(shares[1], shares[4]);
  EXPECT_LT(shares[0], shares[1]);
  EXPECT_LT(shares[1], shares[5]);
}

TEST(SpotShares, AllTogetherTheyAreHalfACellEach) {
  const std::vector<std::int64_t> shares = spotShares(kSquares, kSquare, 1, 0.0);
  const std::int64_t sum = std::accumulate(shares.begin(), shares.end(), std::int64_t{0});
  EXPECT_NEAR(static_cast<double>(sum) / static_cast<double>(16 * kWholeCell), 0.5, 1e-5);
}

TEST(SpotShares, WithAHardEdgeAPixelsUnitsComeTogether) {
  const std::vector<std::int64_t> mean = spotShares(kSquares, kSquare, 1, 0.0);
  const std::vector<std::int64_t> hard = spotShares(kSquares, kSquare, 15, 0.0);
  for (std::size_t unit = 0; unit < hard.size(); ++unit) {
    EXPECT_EQ(hard[unit], mean[unit / 15]);
  }
}

TEST(SpotShares, WithASoftEdgeTheyRiseAroundTheSameMean) {
  const std::vector<std::int64_t> mean = spotShares(kSquares, kSquare, 1, 0.0);
  const std::vector<std::int64_t> soft = spotShares(kSquares, kSquare, 3, 1.0);
  for (std::size_t pixel = 0; pixel < mean.size(); ++pixel) {
    const std::int64_t first = soft[3 * pixel], last = soft[3 * pixel + 2];
    EXPECT_LT(first, soft[3 * pixel + 1]);
    EXPECT_LT(soft[3 * pixel + 1], last);
    EXPECT_LT(first, mean[pixel]);
    EXPECT_GT(last, mean[pixel]);
  }
}

TEST(SpotShares, HalfASoftEdgeSpreadsHalfAsFar) {
  const std::vector<std::int64_t> full = spotShares(kSquares, kSquare, 3, 1.0);
  const std::vector<std::int64_t> half = spotShares(kSquares, kSquare, 3, 0.5);
  EXPECT_NEAR(static_cast<double>(half[2] - half[0]), static_cast<double>(full[2] - full[0]) / 2.0,
              2.0);
}

}  // namespace
}  // namespace gdi::makescreens
