// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/ColorSync/match_row.h"

#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace gdi {
namespace {

using Bytes = std::vector<std::uint8_t>;

// Matches pixels by inverting them, and keeps how many each call was given.
std::pair<Bytes, std::vector<std::size_t>> inverted(Bytes row) {
  std::vector<std::size_t> calls;
  matchRow(row, [&](std::uint8_t* pixels, std::size_t count) {
    calls.push_back(count);
    for (std::size_t i = 0; i < count * 4; ++i) {
      pixels[i] = static_cast<std::uint8_t>(~pixels[i]);
    }
  });
  return {row, calls};
}

Bytes inverse(Bytes row) {
  for (std::uint8_t& byte : row) {
    byte = static_cast<std::uint8_t>(~byte);
  }
  return row;
}

// Pixels that differ in their last byte alone.
Bytes pixelsOf(const std::vector<std::uint8_t>& last) {
  Bytes row;
  for (const std::uint8_t byte : last) {
    row.insert(row.end(), {9, 9, 9, byte});
  }
  return row;
}

TEST(MatchedRow, OfOneColourHasOnePixelMatched) {
  const Bytes row = pixelsOf(Bytes(100, 7));
  const auto [matched, calls] = inverted(row);
  EXPECT_EQ(matched, inverse(row));
  EXPECT_EQ(calls, (std::vector<std::size_t>{1}));
}

TEST(MatchedRow, OfShortRunsIsMatchedAtOnce) {
  const Bytes row = pixelsOf({1, 1, 1, 1, 1, 1, 1, 2, 3, 3, 2, 2, 2});
  const auto [matched, calls] = inverted(row);
  EXPECT_EQ(matched, inverse(row));
  EXPECT_EQ(calls, (std::vector<std::size_t>{13}));
}

TEST(MatchedRow, IsMatchedUpToTheFirstPixelOfEachLongRun) {
  Bytes last{1, 2, 3};
  last.insert(last.end(), 20, 4);
  last.insert(last.end(), 8, 5);
  last.insert(last.end(), {6, 7});
  const Bytes row = pixelsOf(last);
  const auto [matched, calls] = inverted(row);
  EXPECT_EQ(matched, inverse(row));
  EXPECT_EQ(calls, (std::vector<std::size_t>{4, 1, 2}));
}

TEST(MatchedRow, WithoutPixelsIsLeftAlone) {
  const auto [matched, calls] = inverted({});
  EXPECT_EQ(matched, Bytes{});
  EXPECT_TRUE(calls.empty());
}

}  // namespace
}  // namespace gdi
