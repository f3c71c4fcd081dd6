// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenpictures/subjects.h"

#include <algorithm>
#include <cstddef>
#include <set>

#include <gtest/gtest.h>

namespace gdi::screenpictures {
namespace {

int levelAt(const Subject& subject, int x, int y) {
  return subject.levels.at(placeOf(subject.area, x + kMargin, y + kMargin));
}

TEST(GreyWedge, HasSixteenStepsInTwoRowsAndARampBelow) {
  const Subject wedge = greyWedge({32, 6});
  ASSERT_EQ(wedge.area, withMargin({32, 6}));
  ASSERT_EQ(wedge.levels.size(), wedge.area.size());
  for (int step = 0; step < 16; ++step) {
    EXPECT_EQ(levelAt(wedge, step % 8 * 4, step / 8 * 2), step * 17);
    EXPECT_EQ(levelAt(wedge, step % 8 * 4 + 3, step / 8 * 2 + 1), step * 17);
  }
  EXPECT_EQ(levelAt(wedge, 0, 4), 0);
  EXPECT_EQ(levelAt(wedge, 16, 4), 16 * 255 / 31);
  EXPECT_EQ(levelAt(wedge, 31, 5), 255);
}

TEST(GreyWedge, GoesOnInItsMargin) {
  const Subject wedge = greyWedge({32, 6});
  EXPECT_EQ(levelAt(wedge, -kMargin, -kMargin), 0);
  EXPECT_EQ(levelAt(wedge, 31 + kMargin, 5 + kMargin), 255);
}

TEST(Photograph, HasManyTones) {
  const Subject subject = photograph({64, 48});
  ASSERT_EQ(subject.levels.size(), withMargin({64, 48}).size());
  EXPECT_GT(std::set<int>(subject.levels.begin(), subject.levels.end()).size(), 32U);
}

// The letters that docs/screens.md shows.
TEST(Text, HasFullInkBarePaperAndSmoothedEdges) {
  const Subject subject = text({100, 72}, 593, 757);
  ASSERT_EQ(subject.levels.size(), withMargin({100, 72}).size());
  const auto full = std::count(subject.levels.begin(), subject.levels.end(), 255);
  const auto bare = std::count(subject.levels.begin(), subject.levels.end(), 0);
  const auto edges = static_cast<std::ptrdiff_t>(subject.levels.size()) - full - bare;
  EXPECT_GT(full, 1000);
  EXPECT_GT(bare, 3000);
  EXPECT_GT(edges, 100);
  EXPECT_LT(edges, full);
}

TEST(Text, BeginsWhereItIsToldTo) {
  const Subject subject = text({20, 20}, 593, 757);
  const Subject moved = text({20, 20}, 603, 767);
  for (int y = 0; y < 10; ++y) {
    for (int x = 0; x < 10; ++x) {
      EXPECT_EQ(levelAt(subject, x + 10, y + 10), levelAt(moved, x, y));
    }
  }
  EXPECT_NE(subject.levels, moved.levels);
}

}  // namespace
}  // namespace gdi::screenpictures
