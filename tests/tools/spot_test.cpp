// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/makescreens/spot.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <set>
#include <vector>

#include <gtest/gtest.h>

namespace gdi::makescreens {
namespace {

constexpr Lattice kSquares{4, 1, 0, 0, 1, 0, 0};
constexpr Tile kSquare{4, 4};

// 2 x 2 cells of 16 x 16 pixels, dots at their corners, holes in their middles; U runs across the
// tile, V down.
constexpr Lattice kLarge{16, 1, 0, 0, 1, 0, 0};
constexpr Tile kLargeTile{32, 32};

// Shares of a cell, 0 to 1, of the pixels of a shape's dots.
class Shares {
 public:
  explicit Shares(const SpotShape& shape)
      : shares_(spotShares(kLarge, kLargeTile, 1, 0.0, shape)) {}

  [[nodiscard]] double at(int x, int y) const {
    return static_cast<double>(
               shares_[static_cast<std::size_t>(y) * static_cast<std::size_t>(kLargeTile.width) +
                       static_cast<std::size_t>(x)]) /
           static_cast<double>(kWholeCell);
  }
  // How many pixels of 16 x 16 from there have shares between those.
  [[nodiscard]] int countBetween(double low, double high, int left, int top) const {
    int count = 0;
    for (int y = top; y < top + 16; ++y) {
      for (int x = left; x < left + 16; ++x) {
        const double share = at((x + 32) % 32, (y + 32) % 32);
        count += share > low && share < high ? 1 : 0;
      }
    }
    return count;
  }
  [[nodiscard]] double mean() const {
    return std::accumulate(shares_.begin(), shares_.end(), 0.0) /
           static_cast<double>(shares_.size()) / static_cast<double>(kWholeCell);
  }

 private:
  std::vector<std::int64_t> shares_;
};

SpotShape elliptic(double ellipse) {
  SpotShape shape;
  shape.ellipse = ellipse;
  return shape;
}

SpotShape rounder(double roundness) {
  SpotShape shape;
  shape.roundness = roundness;
  return shape;
}

SpotShape paired(double pairs) {
  SpotShape shape;
  shape.pairs = pairs;
  return shape;
}

TEST(SpotShares, PixelsAlikeBySymmetryHaveTheSameShare) {
  const std::vector<std::int64_t> shares = spotShares(kSquares, kSquare, 1, 0.0, {});
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
  const std::vector<std::int64_t> shares = spotShares(kSquares, kSquare, 1, 0.0, {});
  const std::int64_t sum = std::accumulate(shares.begin(), shares.end(), std::int64_t{0});
  EXPECT_NEAR(static_cast<double>(sum) / static_cast<double>(16 * kWholeCell), 0.5, 1e-5);
}

TEST(SpotShares, WithAHardEdgeAPixelsUnitsComeTogether) {
  const std::vector<std::int64_t> mean = spotShares(kSquares, kSquare, 1, 0.0, {});
  const std::vector<std::int64_t> hard = spotShares(kSquares, kSquare, 15, 0.0, {});
  for (std::size_t unit = 0; unit < hard.size(); ++unit) {
    EXPECT_EQ(hard[unit], mean[unit / 15]);
  }
}

TEST(SpotShares, WithASoftEdgeTheyRiseAroundTheSameMean) {
  const std::vector<std::int64_t> mean = spotShares(kSquares, kSquare, 1, 0.0, {});
  const std::vector<std::int64_t> soft = spotShares(kSquares, kSquare, 3, 1.0, {});
  for (std::size_t pixel = 0; pixel < mean.size(); ++pixel) {
    const std::int64_t first = soft[3 * pixel], last = soft[3 * pixel + 2];
    EXPECT_LT(first, soft[3 * pixel + 1]);
    EXPECT_LT(soft[3 * pixel + 1], last);
    EXPECT_LT(first, mean[pixel]);
    EXPECT_GT(last, mean[pixel]);
  }
}

TEST(SpotShares, HalfASoftEdgeSpreadsHalfAsFar) {
  const std::vector<std::int64_t> full = spotShares(kSquares, kSquare, 3, 1.0, {});
  const std::vector<std::int64_t> half = spotShares(kSquares, kSquare, 3, 0.5, {});
  EXPECT_NEAR(static_cast<double>(half[2] - half[0]), static_cast<double>(full[2] - full[0]) / 2.0,
              2.0);
}

TEST(SpotShape, APlainDotMeetsItsFourNeighboursAtHalf) {
  const Shares plain{SpotShape{}};
  EXPECT_DOUBLE_EQ(plain.at(8, 0), plain.at(0, 8));
  EXPECT_NEAR(plain.at(8, 0), 0.5, 0.01);
}

TEST(SpotShape, EllipticDotsJoinToChainsAlongVBeforeTheChainsJoin) {
  const Shares flat(elliptic(0.8));
  EXPECT_LT(flat.at(0, 8), 0.46) << "where dots meet along V";
  EXPECT_GT(flat.at(8, 0), 0.54) << "where the chains meet";
  // Between the two the chains are whole, and the white between them is too.
  for (int along = 0; along < 32; ++along) {
    EXPECT_LT(flat.at(0, along), 0.5);
    EXPECT_GT(flat.at(8, along), 0.5);
  }
}

TEST(SpotShape, TheFlatterTheEllipseTheSoonerDotsJoin) {
  EXPECT_LT(Shares(elliptic(0.6)).at(0, 8), Shares(elliptic(0.8)).at(0, 8));
}

TEST(SpotShape, RounderDotsJoinLaterThanAtHalf) {
  const Shares round(rounder(0.5));
  EXPECT_DOUBLE_EQ(round.at(8, 0), round.at(0, 8));
  EXPECT_GT(round.at(8, 0), 0.55);
  EXPECT_GT(Shares(rounder(0.8)).at(8, 0), round.at(8, 0));
}

TEST(SpotShape, OfPairsEverySecondDotIsLarger) {
  const Shares pairs(paired(0.3));
  // Dots lie at (0, 0) and its neighbours; that on the diagonal is its like.
  const int here = pairs.countBetween(-1.0, 0.25, -8, -8);
  const int beside = pairs.countBetween(-1.0, 0.25, 8, -8);
  EXPECT_GT(here, beside + 20);
  EXPECT_EQ(pairs.countBetween(-1.0, 0.25, 8, 8), here);
  EXPECT_EQ(pairs.countBetween(-1.0, 0.25, -8, 8), beside);
  EXPECT_NEAR(here + beside, 2 * 64, 8) << "a quarter of two cells";
}

TEST(SpotShape, OfPairsEverySecondHoleIsLarger) {
  const Shares pairs(paired(0.3));
  const int here = pairs.countBetween(0.75, 2.0, 0, 0);
  const int beside = pairs.countBetween(0.75, 2.0, 16, 0);
  EXPECT_GT(here, beside + 20);
  EXPECT_EQ(pairs.countBetween(0.75, 2.0, 16, 16), here);
  EXPECT_EQ(pairs.countBetween(0.75, 2.0, 0, 16), beside);
}

TEST(SpotShape, WithoutPairsDotsAreAlike) {
  const Shares plain(paired(0.0));
  EXPECT_EQ(plain.countBetween(-1.0, 0.25, -8, -8), plain.countBetween(-1.0, 0.25, 8, -8));
}

TEST(SpotShape, SharesOfAnyShapeAreHalfACellOnAverage) {
  for (const SpotShape& shape : {elliptic(0.7), rounder(0.6), paired(0.4)}) {
    EXPECT_NEAR(Shares(shape).mean(), 0.5, 1e-5);
  }
}

// A lattice of cells of 5 pixels, all different.
constexpr Lattice kFives{5, 1, 2, -2, 1, 100, 30};
constexpr Tile kFive{5, 5};

TEST(SpotOrder, PixelsTakeTheSharesOfThePlacesThatAreNamed) {
  ASSERT_EQ(pixelKinds(kFives, {}), 5U);
  const std::vector<std::int64_t> plain = spotShares(kFives, kFive, 1, 0.0, {});
  std::vector<std::int64_t> rising(plain.begin(), plain.begin() + 5);
  std::sort(rising.begin(), rising.end());
  SpotShape shape;
  shape.order = {0, 3, 1, 2, 4};
  const std::vector<std::int64_t> ordered = spotShares(kFives, kFive, 1, 0.0, shape);
  for (std::size_t pixel = 0; pixel < plain.size(); ++pixel) {
    const auto kind = std::find(rising.begin(), rising.end(), plain[pixel]) - rising.begin();
    const auto place = static_cast<std::size_t>(shape.order.at(static_cast<std::size_t>(kind)));
    EXPECT_EQ(ordered[pixel], rising[place]) << pixel;
  }
}

TEST(SpotOrder, AllStepsOfAPixelMoveTogether) {
  SpotShape shape;
  shape.order = {4, 3, 2, 1, 0};
  const std::vector<std::int64_t> plain = spotShares(kFives, kFive, 3, 1.0, {});
  std::vector<std::int64_t> ordered = spotShares(kFives, kFive, 3, 1.0, shape);
  EXPECT_NE(ordered, plain);
  for (std::size_t first = 0; first < ordered.size(); first += 3) {
    EXPECT_LE(ordered[first], ordered[first + 1]);
    EXPECT_LE(ordered[first + 1], ordered[first + 2]);
  }
  std::vector<std::int64_t> all = plain;
  std::sort(all.begin(), all.end());
  std::sort(ordered.begin(), ordered.end());
  EXPECT_EQ(ordered, all);
}

TEST(SpotOrder, InItsOwnOrderNothingMoves) {
  SpotShape shape;
  shape.order = {0, 1, 2, 3, 4};
  EXPECT_EQ(spotShares(kFives, kFive, 3, 0.5, shape), spotShares(kFives, kFive, 3, 0.5, {}));
}

TEST(SpotOrder, PixelsAlikeBySymmetryAreOneKind) {
  // Cells of 4 x 4 pixels about their corners: 4 inner pixels, 8 edge ones, 4 outer ones.
  EXPECT_EQ(pixelKinds(kSquares, {}), 3U);
}

TEST(SpotOrder, WhereEverySecondDotIsLargerTwoCellsHaveKinds) {
  SpotShape paired;
  paired.pairs = 0.2;
  EXPECT_EQ(pixelKinds(kFives, paired), 10U);
}

TEST(SpotOrder, IsTheSameInEveryRepeatOfALargerTile) {
  SpotShape shape;
  shape.order = {0, 3, 1, 2, 4};
  const std::vector<std::int64_t> once = spotShares(kFives, kFive, 1, 0.0, shape);
  const std::vector<std::int64_t> repeated = spotShares(kFives, {10, 5}, 1, 0.0, shape);
  for (std::size_t y = 0; y < 5; ++y) {
    for (std::size_t x = 0; x < 10; ++x) {
      EXPECT_EQ(repeated[10 * y + x], once[5 * y + x % 5]) << x << ' ' << y;
    }
  }
}

TEST(SpotOrder, ATileThatHoldsPairsBeingTwiceAsHighHasTheKindsOfTwoCells) {
  constexpr Lattice kSlanted{4, 1, 1, -1, 0, 130, 290};
  constexpr Tile kHigh{4, 8};
  ASSERT_TRUE(holdsPairs(kSlanted, kHigh));
  ASSERT_FALSE(holdsPairs(kSlanted, smallestTile(kSlanted)));
  SpotShape paired;
  paired.pairs = 0.2;
  const std::vector<std::int64_t> shares = spotShares(kSlanted, kHigh, 1, 0.0, paired);
  EXPECT_EQ(std::set<std::int64_t>(shares.begin(), shares.end()).size(),
            pixelKinds(kSlanted, paired));
}

}  // namespace
}  // namespace gdi::makescreens
