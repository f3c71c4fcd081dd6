// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/ColorSync/RememberedColors.h"

#include <algorithm>
#include <random>
#include <vector>

#include <gtest/gtest.h>

namespace gdi {
namespace {

using Bytes = std::vector<std::uint8_t>;

// Colours matched by inverting them; it keeps how many pixels each call was given.
class RememberedColorsTest : public testing::Test {
 protected:
  static std::uint8_t inverse(std::uint8_t byte) { return static_cast<std::uint8_t>(~byte); }
  static Bytes inverse(Bytes row) {
    std::ranges::transform(row, row.begin(), [](std::uint8_t byte) { return inverse(byte); });
    return row;
  }
  // Pixels that differ in their last byte alone.
  static Bytes pixelsOf(const Bytes& last) {
    Bytes row;
    for (const std::uint8_t byte : last) {
      row.insert(row.end(), {9, 9, 9, byte});
    }
    return row;
  }
  Bytes matched(Bytes row) {
    calls_.clear();
    colors_.matchRow(row);
    return row;
  }

  std::vector<std::size_t> calls_;
  RememberedColors colors_{[this](std::uint8_t* pixels, std::size_t count) {
    calls_.push_back(count);
    std::transform(pixels, pixels + count * 4, pixels,
                   [](std::uint8_t byte) { return inverse(byte); });
  }};
};

TEST_F(RememberedColorsTest, MatchOnePixelOfARun) {
  const Bytes row = pixelsOf({7, 7, 7, 7, 7});
  EXPECT_EQ(matched(row), inverse(row));
  EXPECT_EQ(calls_, (std::vector<std::size_t>{1}));
}

TEST_F(RememberedColorsTest, MatchAllNewColoursOfARowAtOnce) {
  const Bytes row = pixelsOf({1, 1, 2, 3, 4, 4, 4});
  EXPECT_EQ(matched(row), inverse(row));
  EXPECT_EQ(calls_, (std::vector<std::size_t>{4}));
}

TEST_F(RememberedColorsTest, MatchNoColourOfTheRowBeforeAgain) {
  const Bytes row = pixelsOf({1, 1, 2, 3});
  (void)matched(row);
  EXPECT_EQ(matched(row), inverse(row));
  EXPECT_TRUE(calls_.empty());
  const Bytes next = pixelsOf({3, 5, 2});
  EXPECT_EQ(matched(next), inverse(next));
  EXPECT_EQ(calls_, (std::vector<std::size_t>{1}));
}

TEST_F(RememberedColorsTest, LeavePaperAlone) {
  Bytes row(400);
  row[201] = 1;
  Bytes expected(400);
  for (const std::size_t i : {200U, 201U, 202U, 203U}) {
    expected[i] = inverse(row[i]);
  }
  EXPECT_EQ(matched(row), expected);
  EXPECT_EQ(calls_, (std::vector<std::size_t>{1}));
}

TEST_F(RememberedColorsTest, MatchMoreColoursThanTheyCanRemember) {
  std::mt19937 random(1);  // NOLINT(cert-msc*): the same rows every time
  Bytes row(200000);
  std::ranges::generate(row, [&] { return static_cast<std::uint8_t>(random()); });
  for (int pass = 0; pass < 2; ++pass) {
    EXPECT_EQ(matched(row), inverse(row));
  }
}

TEST_F(RememberedColorsTest, LeaveARowWithoutPixelsAlone) {
  EXPECT_EQ(matched({}), Bytes{});
  EXPECT_TRUE(calls_.empty());
}

}  // namespace
}  // namespace gdi
