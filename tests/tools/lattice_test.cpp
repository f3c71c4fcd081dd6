// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/makescreens/lattice.h"

#include <algorithm>
#include <cstdint>
#include <set>
#include <vector>

#include <gtest/gtest.h>

namespace gdi::makescreens {
namespace {

// Squares of 4 x 4 pixels.
constexpr Lattice kSquares{4, 1, 0, 0, 1, 0, 0};
// 14 pixels a cell, repeated by (1, -4) and (3, 2).
constexpr Lattice kTurned{14, 2, -3, 4, 1, 10, 13};

TEST(Lattice, ACellsAreaIsThatOfThePeriodOverTheDeterminant) {
  EXPECT_DOUBLE_EQ(kSquares.cellArea(), 16.0);
  EXPECT_DOUBLE_EQ(kTurned.cellArea(), 14.0);
  EXPECT_DOUBLE_EQ((Lattice{24, 3, -4, 3, 4, 0, 0}).cellArea(), 24.0);
}

TEST(Lattice, TheSmallestTileIsShorterThanThePeriodWhereFactorsAreShared) {
  EXPECT_EQ(smallestTile(kSquares), (Tile{4, 4}));
  EXPECT_EQ(smallestTile(kTurned), (Tile{14 / 2, 14})) << "2 and 4 share a factor with 14";
  EXPECT_EQ(smallestTile(Lattice{24, 3, -4, 3, 4, 0, 0}), (Tile{8, 6}));
  EXPECT_EQ(smallestTile(Lattice{17, 3, -2, 4, 3, 0, 0}), (Tile{17, 17}));
}

TEST(Lattice, ATileIsDoubledOnItsShorterSideUntilItHoldsEnoughCells) {
  EXPECT_EQ(cellsIn(kTurned, Tile{7, 14}), 7);
  EXPECT_EQ(tileWithCells(kTurned, 7), (Tile{7, 14}));
  EXPECT_EQ(tileWithCells(kTurned, 8), (Tile{14, 14}));
  EXPECT_EQ(tileWithCells(kTurned, 15), (Tile{28, 14}));
  EXPECT_EQ(tileWithCells(kTurned, 56), (Tile{28, 28}));
}

TEST(Lattice, PointsAreCountedInSixteenthsOfAPixelAndThousandthsOfACell) {
  // (0, 1/2 pixel) on the turned lattice: U = -3/28 + 0.010, V = 1/28 + 0.013.
  EXPECT_EQ(cellScale(kTurned), 14 * 16 * 1000);
  const CellPoint point = cellPoint(kTurned, 0, 8);
  EXPECT_EQ(point.u, -24000 + 2240);
  EXPECT_EQ(point.v, 8000 + 2912);
}

TEST(Lattice, CellsOfSquaresAreTheSquaresAroundTheirDots) {
  const Tile tile{8, 4};
  const std::vector<std::uint32_t> dots = cellNumbers(kSquares, tile, CellsAround::kDots);
  // Dots are at x = 0, 4: columns 6, 7, 0, 1 and 2 to 5 belong together, wrapped.
  const std::vector<std::uint32_t> row{0, 0, 1, 1, 1, 1, 0, 0};
  for (std::size_t pixel = 0; pixel < dots.size(); ++pixel) {
    EXPECT_EQ(dots[pixel], row[pixel % 8]);
  }
  const std::vector<std::uint32_t> holes = cellNumbers(kSquares, tile, CellsAround::kHoles);
  for (std::size_t pixel = 0; pixel < holes.size(); ++pixel) {
    EXPECT_EQ(holes[pixel], pixel % 8 / 4);
  }
}

TEST(Lattice, EveryCellHasTheSameNumberOfPixels) {
  const Tile tile = tileWithCells(kTurned, 20);
  for (const CellsAround around : {CellsAround::kDots, CellsAround::kHoles}) {
    const std::vector<std::uint32_t> cells = cellNumbers(kTurned, tile, around);
    const std::set<std::uint32_t> names(cells.begin(), cells.end());
    EXPECT_EQ(names.size(), static_cast<std::size_t>(cellsIn(kTurned, tile)));
    for (const std::uint32_t name : names) {
      EXPECT_EQ(std::count(cells.begin(), cells.end(), name), 14);
    }
  }
}

TEST(Lattice, AMirroredLatticeHasAsManyCells) {
  const Lattice mirrored{20, 4, -2, -2, -4, 250, 260};
  EXPECT_EQ(mirrored.determinant(), -20);
  const Tile tile = smallestTile(mirrored);
  EXPECT_EQ(tile, (Tile{10, 10}));
  EXPECT_EQ(cellsIn(mirrored, tile), 5);
  const std::vector<std::uint32_t> cells = cellNumbers(mirrored, tile, CellsAround::kDots);
  EXPECT_EQ(*std::max_element(cells.begin(), cells.end()), 4U);
}

}  // namespace
}  // namespace gdi::makescreens
