// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/searchscreens/rules.h"

#include <vector>

#include <gtest/gtest.h>

namespace gdi::searchscreens {
namespace {

// 7 x 14 pixels of 7 cells, doubled to 28 x 14.
ScreenParameters goodScreen() {
  ScreenParameters screen;
  screen.lattice = {14, 2, -3, 4, 1};
  screen.leastCells = 28;
  return screen;
}

std::string breachOf(const ScreenParameters& screen, int depth = 1) {
  const std::vector<ScreenParameters> page{screen};
  return searchscreens::breachOf(page, 0, depth);
}

TEST(Rules, AGoodScreenKeepsThem) {
  EXPECT_EQ(breachOf(goodScreen()), "");
}

TEST(Rules, TheTileIsOneThatTheParameterFileMayState) {
  ScreenParameters screen = goodScreen();
  screen.lattice = {14, 2, 4, 1, 2};
  EXPECT_EQ(breachOf(screen), "A D - B C is 0: these are no two directions");
}

TEST(Rules, TheFileHasAUsualSize) {
  ScreenParameters screen = goodScreen();
  screen.leastCells = 1;
  // "1 7 14 8 2", a zero byte, 7 x 14 x 64 bytes
  EXPECT_EQ(breachOf(screen, 2), "the file has 6283 bytes, outside 12000 to 150000");
  screen.leastCells = 112;
  // "1 56 28 8 4", a zero byte, 56 x 28 x 128 bytes
  EXPECT_EQ(breachOf(screen, 4), "the file has 200716 bytes, outside 12000 to 150000");
  EXPECT_EQ(breachOf(screen, 1), "");
}

TEST(Rules, AFlatTintRepeatsSoonEnough) {
  // 33 x 33 pixels: 33 words of 16 pixels.
  ScreenParameters screen;
  screen.lattice = {33, 5, 6, 6, -5};
  EXPECT_EQ(breachOf(screen), "a flat tint repeats only after 33 words, more than 32");
}

TEST(Rules, PlanesShareNoWave) {
  std::vector<ScreenParameters> page{goodScreen(), goodScreen()};
  page[1].lattice = {14, 3, 2, 1, -4};
  EXPECT_EQ(searchscreens::breachOf(page, 0, 1), "");
  EXPECT_EQ(searchscreens::breachOf(page, 1, 1), "");
  // (4, 1) turned round
  page[1].lattice = {14, -4, -1, 1, -5};
  EXPECT_EQ(searchscreens::breachOf(page, 0, 1), "the lattice shares a wave with another plane's");
  EXPECT_EQ(searchscreens::breachOf(page, 1, 1), "the lattice shares a wave with another plane's");
}

}  // namespace
}  // namespace gdi::searchscreens
