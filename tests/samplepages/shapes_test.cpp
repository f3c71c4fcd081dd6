// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/samplepages/shapes.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace gdi::samplepages {
namespace {

constexpr Ink kInk{1, 2, 3, 255};

// A row of 12 pixels as the shape paints it, a letter for each pixel with ink.
std::string inked(const Shape& shape, int y) {
  std::vector<Ink> row(12);
  paintShape(shape, y, row);
  std::string text;
  for (const Ink& ink : row) {
    text += ink == Ink{} ? '.' : 'x';
  }
  return text;
}

TEST(Shapes, ATintFillsItsBoxAndNoMore) {
  const Tint tint{{2, 1, 5, 3}, kInk};
  EXPECT_EQ(inked(tint, 0), "............");
  EXPECT_EQ(inked(tint, 1), "..xxx.......");
  EXPECT_EQ(inked(tint, 2), "..xxx.......");
  EXPECT_EQ(inked(tint, 3), "............");
}

TEST(Shapes, WhatLiesBeyondThePageIsLeftOut) {
  EXPECT_EQ(inked(Tint{{-3, -3, 2, 9}, kInk}, 0), "xx..........");
  EXPECT_EQ(inked(Tint{{10, 0, 40, 9}, kInk}, 0), "..........xx");
  EXPECT_EQ(inked(Tint{{20, 0, 40, 9}, kInk}, 0), "............");
  EXPECT_EQ(inked(Tint{{8, 0, 2, 9}, kInk}, 0), "............");
}

TEST(Shapes, AGradientGoesEvenlyFromOneInkTowardsTheOther) {
  std::vector<Ink> row(12);
  paintShape(Gradient{{-2, 0, 8, 1}, {}, {0, 100, 0, 200}, false}, 0, row);
  EXPECT_EQ(row[0], (Ink{0, 20, 0, 40}));
  EXPECT_EQ(row[7], (Ink{0, 90, 0, 180}));
  EXPECT_EQ(row[8], Ink{});
}

TEST(Shapes, AGradientDownwardsHasOneInkARow) {
  std::vector<Ink> row(12);
  paintShape(Gradient{{0, 10, 12, 20}, {}, {100, 0, 0, 0}, true}, 15, row);
  EXPECT_EQ(row, std::vector<Ink>(12, Ink{50, 0, 0, 0}));
}

// The quarter right of and below the centre (4, 0), of radius 4.
TEST(Shapes, ASectorGoesClockwiseFromItsFirstDirection) {
  const Sector quarter{4, 0, 4, 1, 0, 0, 1, kInk};
  EXPECT_EQ(inked(quarter, -1), "............");
  EXPECT_EQ(inked(quarter, 0), "....xxxx....");
  EXPECT_EQ(inked(quarter, 2), "....xxx.....");
  EXPECT_EQ(inked(quarter, 3), "....xx......");
  EXPECT_EQ(inked(quarter, 4), "............");
}

TEST(Shapes, ALineIsAsManyPixelsThickAsItSays) {
  for (int thickness = 1; thickness <= 6; ++thickness) {
    const Line level{2, 8, 9, 8, thickness, kInk};
    const Line upright{6, 2, 6, 9, thickness, kInk};
    int rows = 0;
    for (int y = 0; y < 20; ++y) {
      const std::string row = inked(level, y);
      EXPECT_TRUE(row == "............" || row == "..xxxxxxx...") << row;
      rows += row[5] == 'x' ? 1 : 0;
    }
    EXPECT_EQ(rows, thickness);
    EXPECT_EQ(inked(upright, 5).find_last_of('x') - inked(upright, 5).find('x') + 1,
              static_cast<std::size_t>(thickness));
    EXPECT_EQ(inked(upright, 1), "............");
    EXPECT_EQ(inked(upright, 9), "............");
  }
}

TEST(Shapes, ADiagonalLineHasNoGaps) {
  const Line line{2, 2, 9, 9, 2, kInk};
  for (int y = 3; y < 8; ++y) {
    EXPECT_EQ(inked(line, y)[static_cast<std::size_t>(y)], 'x') << y;
    EXPECT_EQ(inked(line, y)[static_cast<std::size_t>(y + 3)], '.') << y;
  }
}

}  // namespace
}  // namespace gdi::samplepages
