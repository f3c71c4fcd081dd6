// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/makescreens/growth.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include <gtest/gtest.h>

namespace gdi::makescreens {
namespace {

// 16 square cells of 4 x 4 pixels, their dots near pixel (0, 0) of each.
constexpr Lattice kSquares{4, 1, 0, 0, 1, 870, 880};
constexpr Tile kTile{16, 16};
constexpr Lattice kTurned{14, 2, -3, 4, 1, 10, 13};

GrowthRule evenRule() {
  GrowthRule rule;
  rule.evenness = 6.0;
  rule.leastDot = 2;
  rule.leastHole = 3;
  return rule;
}

// Dots grow by their shape alone, none waiting for another.
GrowthRule looseRule() {
  GrowthRule rule;
  rule.evenness = 0.0;
  rule.leastDot = 1;
  rule.leastHole = 1;
  return rule;
}

std::vector<std::uint32_t> grown(int steps, double softEdge, GrowthStart start = {}) {
  return growthOrder(kSquares, kTile, steps, softEdge, evenRule(), start);
}

std::vector<std::uint32_t> grownBy(const GrowthRule& rule) {
  return growthOrder(kSquares, kTile, 1, 0.0, rule, {});
}

std::vector<std::uint32_t> lightHalf(const std::vector<std::uint32_t>& order) {
  return {order.begin(), order.begin() + 128};
}

TEST(GrowthOrder, EveryPixelTakesEachOfItsUnitsOnce) {
  for (const int steps : {1, 3, 15}) {
    const std::vector<std::uint32_t> order = grown(steps, 0.35);
    ASSERT_EQ(order.size(), 256U * static_cast<unsigned>(steps));
    for (std::uint32_t pixel = 0; pixel < 256; ++pixel) {
      EXPECT_EQ(std::count(order.begin(), order.end(), pixel), steps);
    }
  }
}

TEST(GrowthOrder, TheFirstDotIsAtTheStartAndTheSecondFarthestFromIt) {
  const std::vector<std::uint32_t> order = grown(1, 0.0);
  EXPECT_EQ(order[0], 0U);
  EXPECT_EQ(order[2], 8U * 16 + 8) << "half a tile on, both ways";
}

TEST(GrowthOrder, AnotherStartMovesTheFirstDot) {
  EXPECT_EQ(grown(1, 0.0, {0.5, 0.25})[0], 4U * 16 + 8);
}

TEST(GrowthOrder, ABegunDotIsGivenItsLeastPixelsBeforeAnotherIsBegun) {
  const std::vector<std::uint32_t> cells = cellNumbers(kSquares, kTile, CellsAround::kDots);
  for (const int steps : {1, 3, 15}) {
    const std::vector<std::uint32_t> order = grown(steps, 0.6);
    const std::size_t dot = 2 * static_cast<std::size_t>(steps);
    for (std::size_t unit = 0; unit < 8 * dot; ++unit) {
      EXPECT_EQ(cells[order[unit]], cells[order[unit / dot * dot]]);
    }
    EXPECT_NE(cells[order[0]], cells[order[dot]]);
  }
}

TEST(GrowthOrder, ABegunDotFillsOnePixelAfterTheOther) {
  const std::vector<std::uint32_t> order = grown(15, 0.6);
  for (std::size_t unit = 1; unit < 15; ++unit) {
    EXPECT_EQ(order[unit], order[0]);
  }
  for (std::size_t unit = 16; unit < 30; ++unit) {
    EXPECT_EQ(order[unit], order[15]);
  }
  const std::uint32_t step = std::max(order[0], order[15]) - std::min(order[0], order[15]);
  EXPECT_TRUE(step == 1 || step == 15 || step == 16 || step == 240) << "side by side";
}

TEST(GrowthOrder, SeenFromSolidABegunHoleIsGivenItsLeastPixels) {
  const std::vector<std::uint32_t> cells = cellNumbers(kSquares, kTile, CellsAround::kHoles);
  std::vector<std::uint32_t> order = grown(1, 0.0);
  std::reverse(order.begin(), order.end());
  for (std::size_t unit = 0; unit < 24; ++unit) {
    EXPECT_EQ(cells[order[unit]], cells[order[unit / 3 * 3]]);
  }
  EXPECT_NE(cells[order[0]], cells[order[3]]);
}

TEST(GrowthOrder, DotsGrowEvenly) {
  const Tile tile = tileWithCells(kTurned, 28);
  const std::vector<std::uint32_t> cells = cellNumbers(kTurned, tile, CellsAround::kDots);
  const std::vector<std::uint32_t> order = growthOrder(kTurned, tile, 1, 0.0, evenRule(), {});
  std::vector<int> sizes(28, 0);
  for (std::size_t unit = 0; unit < order.size(); ++unit) {
    ++sizes[cells[order[unit]]];
    const auto [least, most] = std::minmax_element(sizes.begin(), sizes.end());
    // Two pixels is a dot just completed, three a hole about to be.
    EXPECT_LE(*most - *least, 3) << "after " << unit + 1 << " units";
  }
}

TEST(GrowthOrder, WithoutEvennessUnitsComeInTheOrderOfTheirShares) {
  const std::vector<std::int64_t> shares = spotShares(kSquares, kTile, 1, 0.0, {});
  const std::vector<std::uint32_t> order = grownBy(looseRule());
  for (std::size_t unit = 1; unit < order.size(); ++unit) {
    EXPECT_LE(shares[order[unit - 1]], shares[order[unit]]) << "unit " << unit;
  }
}

TEST(GrowthOrder, TheReachOfCrowdingMattersOnlyWhereCrowdedPlacesArePutOff) {
  GrowthRule loose = looseRule();
  GrowthRule even = evenRule();
  const std::vector<std::uint32_t> byShape = grownBy(loose);
  const std::vector<std::uint32_t> usual = grownBy(even);
  loose.reach = 0.3;
  even.reach = 0.3;
  EXPECT_EQ(grownBy(loose), byShape);
  EXPECT_NE(grownBy(even), usual);
}

TEST(GrowthOrder, TheDotsShapeRulesTheLightHalf) {
  GrowthRule rule = looseRule();
  const std::vector<std::uint32_t> usual = grownBy(rule);
  rule.dots.ellipse = 0.5;
  EXPECT_NE(lightHalf(grownBy(rule)), lightHalf(usual));
}

TEST(GrowthOrder, TheHolesShapeRulesTheDarkHalfAlone) {
  GrowthRule rule = looseRule();
  const std::vector<std::uint32_t> usual = grownBy(rule);
  rule.holes.ellipse = 0.5;
  const std::vector<std::uint32_t> shaped = grownBy(rule);
  EXPECT_EQ(lightHalf(shaped), lightHalf(usual));
  EXPECT_NE(shaped, usual);
}

// The same cells with no two pixels alike.
constexpr Lattice kSkew{4, 1, 0, 0, 1, 910, 830};

std::vector<std::uint32_t> grownSkew(const GrowthRule& rule) {
  return growthOrder(kSkew, kTile, 1, 0.0, rule, {});
}

// 16 cells, whose pixels of one kind come one after the other.
std::vector<std::uint32_t> kindOf(const std::vector<std::uint32_t>& order, std::size_t place) {
  const auto first = order.begin() + static_cast<std::ptrdiff_t>(16 * place);
  std::vector<std::uint32_t> pixels(first, first + 16);
  std::sort(pixels.begin(), pixels.end());
  return pixels;
}

TEST(GrowthOrder, AnOrderOfDotsOrHolesExchangesTheirPixels) {
  GrowthRule rule = looseRule();
  const std::vector<std::uint32_t> plain = grownSkew(rule);
  ASSERT_EQ(pixelKinds(kSkew, rule.dots), 16U);
  rule.dots.order = {1, 0, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};
  rule.holes.order = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 15, 14};
  const std::vector<std::uint32_t> ordered = grownSkew(rule);
  for (std::size_t place = 0; place < 16; ++place) {
    const bool exchanged = place < 2 || place > 13;
    EXPECT_EQ(kindOf(ordered, place), kindOf(plain, exchanged ? place ^ 1U : place)) << place;
  }
}

TEST(GrowthOrder, ABegunDotIsGivenThePixelsThatItsOrderPutsFirst) {
  GrowthRule rule = evenRule();
  rule.dots.order = {3, 2, 1, 0, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};
  const std::vector<std::uint32_t> loose = grownSkew(looseRule());
  const std::vector<std::uint32_t> ordered = grownSkew(rule);
  const std::vector<std::uint32_t> third = kindOf(loose, 2);
  const std::vector<std::uint32_t> fourth = kindOf(loose, 3);
  EXPECT_TRUE(std::binary_search(fourth.begin(), fourth.end(), ordered[0]));
  EXPECT_TRUE(std::binary_search(third.begin(), third.end(), ordered[1]));
}

TEST(GrowthOrder, EllipticDotsHaveJoinedToChainsAtHalf) {
  GrowthRule rule = looseRule();
  rule.dots.ellipse = 0.5;
  std::vector<int> columns(16, 0);
  for (const std::uint32_t pixel : lightHalf(grownBy(rule))) {
    ++columns[pixel % 16];
  }
  // V runs down the tile: the columns of the dots' middles are whole, those between them blank.
  for (std::size_t cell = 0; cell < 4; ++cell) {
    EXPECT_EQ(columns[4 * cell], 16);
    EXPECT_EQ(columns[4 * cell + 2], 0);
  }
}

TEST(GrowthOrder, OfPairedDotsEverySecondGrowsFirst) {
  GrowthRule rule = looseRule();
  rule.dots.pairs = 0.5;
  const std::vector<std::uint32_t> cells = cellNumbers(kSquares, kTile, CellsAround::kDots);
  const std::vector<std::uint32_t> order = grownBy(rule);
  std::vector<int> sizes(16, 0);
  for (std::size_t unit = 0; unit < 64; ++unit) {
    if (unit == 8) {
      EXPECT_EQ(std::count(sizes.begin(), sizes.end(), 1), 8);
    }
    ++sizes[cells[order[unit]]];
  }
  std::sort(sizes.begin(), sizes.end());
  EXPECT_LT(sizes[7], sizes[8]) << "eight dots of each size";
  EXPECT_EQ(sizes[0], sizes[7]);
  EXPECT_EQ(sizes[8], sizes[15]);
}

TEST(GrowthOrder, IsTheSameEachTime) {
  EXPECT_EQ(grown(3, 0.35), grown(3, 0.35));
}

}  // namespace
}  // namespace gdi::makescreens
