// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/makescreens/screen_file.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace gdi::makescreens {
namespace {

using Entries = std::vector<std::uint8_t>;
using namespace std::string_view_literals;

TEST(Packed, OneBitEntriesFillAByteFromTheTop) {
  EXPECT_EQ(packed(Entries{1, 0, 1, 1, 0, 0, 1, 0}, 1), "\xB2"sv);
}

TEST(Packed, TheLastByteIsFilledUpWithZeros) {
  EXPECT_EQ(packed(Entries{1, 1, 1}, 1), "\xE0"sv);
  EXPECT_EQ(packed(Entries{3, 0, 1, 2, 3}, 2), "\xC6\xC0"sv);
  EXPECT_EQ(packed(Entries{0xA, 0x5, 0xF}, 4), "\xA5\xF0"sv);
}

TEST(Packed, EightBitEntriesAreTheBytes) {
  EXPECT_EQ(packed(Entries{7, 255}, 8), "\x07\xFF"sv);
}

TEST(Packed, NothingPacksToNothing) {
  EXPECT_EQ(packed({}, 2), "");
}

TEST(ScreenTable, ListsTheLevelsOfAPixelTogether) {
  // Two pixels of up to two units: pixel 1, pixel 0, pixel 1, pixel 0; the levels take 0, 1, 3 and
  // then all four.
  const std::vector<std::uint32_t> order{1, 0, 1, 0};
  LevelUnits levels{};
  levels.fill(4);
  levels[0] = 0;
  levels[1] = 1;
  levels[2] = 3;
  const Entries table = screenTable(2, order, levels);
  ASSERT_EQ(table.size(), 512U);
  EXPECT_EQ(Entries(table.begin(), table.begin() + 4), (Entries{0, 0, 1, 2}));
  EXPECT_EQ(Entries(table.begin() + 256, table.begin() + 260), (Entries{0, 1, 2, 2}));
  EXPECT_EQ(table.back(), 2);
}

TEST(ScreenFile, IsATextHeaderAZeroByteAndThePackedTable) {
  // One pixel, solid from level 128 on: 128 zero bits, 128 one bits.
  Entries table(256, 0);
  for (std::size_t level = 128; level < 256; ++level) {
    table[level] = 1;
  }
  EXPECT_EQ(screenFile(Tile{1, 1}, 1, table),
            std::string("1 1 1 8 1\0"sv) + std::string(16, '\0') + std::string(16, '\xFF'));
}

TEST(ScreenFile, TellsItsSizeBeforehand) {
  for (const Tile tile : {Tile{1, 1}, Tile{3, 1}, Tile{12, 112}}) {
    for (const int depth : {1, 2, 4}) {
      const Entries table(tile.size() * 256, 0);
      EXPECT_EQ(screenFileSize(tile, depth), screenFile(tile, depth, table).size());
    }
  }
}

}  // namespace
}  // namespace gdi::makescreens
