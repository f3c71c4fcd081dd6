// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "halftone/screens/ThresholdTile.h"

#include <cstdint>
#include <optional>
#include <vector>

#include <gtest/gtest.h>

#include "tests/screens/screen_bytes.h"

namespace gdi {
namespace {

std::optional<ThresholdTile> tileOf(int width, int height, int inputDepth, int outputDepth,
                                    const Bytes& table) {
  return ThresholdTile::fromTable({1, width, height, inputDepth, outputDepth}, table);
}

// The lowest sample that reaches the rank, counted from 0, in that column; 256 for none.
int lowestSample(const ThresholdRow& row, std::size_t rank, std::size_t column) {
  return (row.thresholds[rank * row.rankPitch + column] ^ 0x80) + 1;
}

std::vector<int> lowestSamples(const ThresholdRow& row, std::size_t column) {
  std::vector<int> samples;
  for (std::size_t rank = 0; rank < row.ranks; ++rank) {
    samples.push_back(lowestSample(row, rank, column));
  }
  return samples;
}

// A table of one cell of 256 levels of 4 bits that has entry 15 from `level` on, 0 before.
Bytes solidFrom(std::size_t level) {
  Bytes table(128);
  for (std::size_t at = level; at < 256; ++at) {
    table[at / 2] |= static_cast<std::uint8_t>(at % 2 == 0 ? 0xF0 : 0x0F);
  }
  return table;
}

TEST(ThresholdTile, ARankIsReachedFromTheFirstSampleOfTheLevelWhoseEntryIsAtLeastThat) {
  const auto tile = tileOf(1, 1, 2, 2, {0x1B});  // 0, 1, 2, 3
  ASSERT_TRUE(tile.has_value());
  EXPECT_EQ(lowestSamples(tile->row(0, 2), 0), (std::vector<int>{64, 128, 192}));
}

TEST(ThresholdTile, AnEntryThatLeavesOutRanksReachesThemAll) {
  const auto tile = tileOf(1, 1, 2, 2, {0x0A});  // 0, 0, 2, 2
  ASSERT_TRUE(tile.has_value());
  EXPECT_EQ(lowestSamples(tile->row(0, 2), 0), (std::vector<int>{128, 128, 256}));
}

TEST(ThresholdTile, ALevelOf8BitsIsASample) {
  for (const int level : {1, 15, 16, 17, 63, 64, 65, 127, 128, 255}) {
    const auto tile = tileOf(1, 1, 8, 4, solidFrom(static_cast<std::size_t>(level)));
    ASSERT_TRUE(tile.has_value()) << level;
    EXPECT_EQ(lowestSamples(tile->row(0, 4), 0), std::vector<int>(15, level));
  }
  const auto blank = tileOf(1, 1, 8, 4, Bytes(128));
  ASSERT_TRUE(blank.has_value());
  EXPECT_EQ(lowestSamples(blank->row(0, 4), 0), std::vector<int>(15, 256));
}

TEST(ThresholdTile, ShallowerPixelsHaveTheRanksThatKeepTheTopBits) {
  // Sixteen levels with the entries 0 to 15.
  const auto tile = tileOf(1, 1, 4, 4, {0x01, 0x23, 0x45, 0x67, 0x89, 0xAB, 0xCD, 0xEF});
  ASSERT_TRUE(tile.has_value());
  EXPECT_EQ(lowestSamples(tile->row(0, 2), 0), (std::vector<int>{64, 128, 192}));
  EXPECT_EQ(lowestSamples(tile->row(0, 1), 0), (std::vector<int>{128}));
}

TEST(ThresholdTile, DeeperPixelsHaveTheRanksOfTheScreenAndRanksThatNothingReaches) {
  const auto tile = tileOf(1, 1, 1, 1, {0x40});
  ASSERT_TRUE(tile.has_value());
  EXPECT_EQ(lowestSamples(tile->row(0, 1), 0), (std::vector<int>{128}));
  for (const int depth : {2, 4, 8}) {
    EXPECT_EQ(lowestSamples(tile->row(0, depth), 0), (std::vector<int>{128, 256, 256}));
  }
}

TEST(ThresholdTile, EachRowOfTheTileHasItsOwnCellsRepeatedSoThatAnyColumnBeginsAVector) {
  // 3 x 2 cells of two levels: solid ones are the first of row 0 and the last of row 1.
  const auto tile = tileOf(3, 2, 1, 1, {0x40, 0x10});
  ASSERT_TRUE(tile.has_value());
  for (std::size_t tileRow = 0; tileRow < 2; ++tileRow) {
    const ThresholdRow row = tile->row(tileRow, 1);
    EXPECT_EQ(row.period, 3U);
    for (std::size_t column = 0; column < 2 + ThresholdTile::kReadable; ++column) {
      const bool solid = column % 3 == (tileRow == 0 ? 0 : 2);
      EXPECT_EQ(lowestSample(row, 0, column), solid ? 128 : 256) << tileRow << ' ' << column;
    }
  }
}

TEST(ThresholdTile, ACellWhoseEntriesDecreaseDoesNotRise) {
  EXPECT_FALSE(tileOf(1, 1, 2, 2, {0x18}));  // 0, 1, 2, 0
  EXPECT_FALSE(tileOf(1, 1, 2, 2, {0x1E}));  // 0, 1, 3, 2
  EXPECT_FALSE(tileOf(4, 1, 1, 1, {0x48}));  // the third cell: 1, 0
  EXPECT_TRUE(tileOf(4, 1, 1, 1, {0x44}));
  Bytes table = solidFrom(100);
  table[127] = 0xFE;
  EXPECT_FALSE(tileOf(1, 1, 8, 4, table));  // at the last level
  table[127] = 0xFF;
  table[64] = 0x7F;
  EXPECT_FALSE(tileOf(1, 1, 8, 4, table));  // at a level that is a multiple of 64
}

TEST(ThresholdTile, ACellThatPrintsAtLevel0DoesNotRise) {
  EXPECT_FALSE(tileOf(1, 1, 1, 1, {0xC0}));
  EXPECT_FALSE(tileOf(1, 1, 8, 4, solidFrom(0)));
}

TEST(ThresholdTile, BitsBehindTheLastCellMakeNoDifference) {
  EXPECT_TRUE(tileOf(1, 1, 1, 1, {0x40 | 0x3F}));
  EXPECT_TRUE(tileOf(3, 1, 1, 1, {0x54 | 0x02}));
}

TEST(ThresholdTile, EntriesOf8BitsAndLargeTilesHaveNoThresholds) {
  EXPECT_FALSE(tileOf(1, 1, 1, 8, {0, 1}));
  EXPECT_TRUE(tileOf(256, 1, 1, 1, Bytes(64)));
  EXPECT_FALSE(tileOf(257, 1, 1, 1, Bytes(65)));
  EXPECT_TRUE(tileOf(1, 256, 1, 1, Bytes(64)));
  EXPECT_FALSE(tileOf(1, 257, 1, 1, Bytes(65)));
}

}  // namespace
}  // namespace gdi
