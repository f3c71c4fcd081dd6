// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "printer/page_side.h"

#include <vector>

#include <gtest/gtest.h>

namespace gdi {
namespace {

constexpr std::int32_t kBeforeRepeating = 0x103F;
constexpr std::int32_t kRepeating = 0x1040;

// The numbers of the pages from 0 on.
std::vector<std::uint32_t> numbers(const DuplexJob& job, std::uint32_t sidesImaged,
                                   std::uint32_t pages) {
  std::vector<std::uint32_t> result;
  for (std::uint32_t page = 0; page < pages; ++page) {
    result.push_back(duplexPageNumber(page, job, sidesImaged));
  }
  return result;
}

TEST(PageSide, FromTenFourOnIsThePageItselfWhenNotCollated) {
  EXPECT_EQ(numbers({.systemVersion = kRepeating, .collate = false, .copies = 3}, 2, 6),
            (std::vector<std::uint32_t>{0, 1, 2, 3, 4, 5}));
}

TEST(PageSide, FromTenFourOnStartsAnewAtEveryCollatedCopy) {
  EXPECT_EQ(numbers({.systemVersion = kRepeating, .collate = true, .copies = 2}, 4, 9),
            (std::vector<std::uint32_t>{0, 1, 2, 3, 0, 1, 2, 3, 0}));
}

TEST(PageSide, FromTenFourOnPadsAnOddNumberOfSidesByTheCopies) {
  std::uint32_t sides = 3;
  const DuplexJob job{.systemVersion = kRepeating, .collate = true, .copies = 1};
  EXPECT_EQ(duplexPageNumber(0, job, sides), 0U);
  EXPECT_EQ(sides, 4U);
  EXPECT_EQ(duplexPageNumber(3, job, sides), 3U);
  EXPECT_EQ(duplexPageNumber(4, job, sides), 0U);
  EXPECT_EQ(sides, 4U);
}

TEST(PageSide, FiveSidesOfTwoCopiesGrowToSevenThenNineOnSuccessivePages) {
  std::uint32_t sides = 5;
  const DuplexJob job{.systemVersion = kRepeating, .collate = true, .copies = 2};
  EXPECT_EQ(duplexPageNumber(6, job, sides), 6U);
  EXPECT_EQ(sides, 7U);
  EXPECT_EQ(duplexPageNumber(7, job, sides), 7U);
  EXPECT_EQ(sides, 9U);
  EXPECT_EQ(duplexPageNumber(11, job, sides), 0U);
  EXPECT_EQ(sides, 11U);
}

TEST(PageSide, SidesDoNotGrowWhenNotCollatedOrBeforeTenFour) {
  std::uint32_t sides = 5;
  (void)duplexPageNumber(1, {.systemVersion = kRepeating, .collate = false, .copies = 2}, sides);
  EXPECT_EQ(sides, 5U);
  (void)duplexPageNumber(1, {.systemVersion = kBeforeRepeating, .collate = true, .copies = 2},
                         sides);
  EXPECT_EQ(sides, 5U);
}

TEST(PageSide, BeforeTenFourCountsTheSidesOfOneCollatedCopy) {
  EXPECT_EQ(numbers({.systemVersion = kBeforeRepeating, .collate = true, .copies = 2}, 6, 7),
            (std::vector<std::uint32_t>{0, 1, 2, 0, 1, 2, 0}));
}

TEST(PageSide, BeforeTenFourIsTheSameForAllCopiesOfAPageWhenNotCollated) {
  EXPECT_EQ(numbers({.systemVersion = kBeforeRepeating, .collate = false, .copies = 2}, 6, 6),
            (std::vector<std::uint32_t>{0, 0, 1, 1, 2, 2}));
}

TEST(PageSide, OfAnUnknownVersionIsThatOfTheOldest) {
  EXPECT_EQ(numbers({.systemVersion = 0, .collate = false, .copies = 2}, 6, 4),
            (std::vector<std::uint32_t>{0, 0, 1, 1}));
}

TEST(PageSide, OfFewerSidesThanCopiesIsZero) {
  EXPECT_EQ(numbers({.systemVersion = kBeforeRepeating, .collate = true, .copies = 3}, 2, 3),
            (std::vector<std::uint32_t>{0, 0, 0}));
}

TEST(PageSide, OfNoCopiesOrNoSidesIsZero) {
  EXPECT_EQ(numbers({.systemVersion = kBeforeRepeating, .collate = true, .copies = 0}, 2, 3),
            (std::vector<std::uint32_t>{0, 0, 0}));
  EXPECT_EQ(numbers({.systemVersion = kBeforeRepeating, .collate = false, .copies = 0}, 2, 3),
            (std::vector<std::uint32_t>{0, 0, 0}));
  EXPECT_EQ(numbers({.systemVersion = kRepeating, .collate = true, .copies = 1}, 0, 3),
            (std::vector<std::uint32_t>{0, 0, 0}));
}

TEST(PageSide, CountsUnsignedSoThatSidesMayWrapToNone) {
  std::uint32_t sides = 0xFFFFFFFF;
  const DuplexJob job{.systemVersion = kRepeating, .collate = true, .copies = 1};
  EXPECT_EQ(duplexPageNumber(5, job, sides), 0U);
  EXPECT_EQ(sides, 0U);
}

}  // namespace
}  // namespace gdi
