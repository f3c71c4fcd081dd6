// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "printer/format/solvane_date.h"

#include <gtest/gtest.h>

namespace gdi {
namespace {

TEST(SolvaneDate, PacksTheFifteenthOfNovember2026At215437) {
  // day 15, month 11, zero, year 46, second 18 x 2, minute 54, hour 21
  constexpr std::uint32_t kExpected = 0b01111'1011'0'101110'10010'110110'10101;
  EXPECT_EQ(solvaneDate(NSCalendarDate::dateWithYear(2026, 11, 15, 21, 54, 37)), kExpected);
}

TEST(SolvaneDate, PacksEachFieldAtItsPlace) {
  const auto packed = [](const NSCalendarDate& date) { return solvaneDate(date); };
  constexpr std::uint32_t kFirstDay = 0b00001'0001'0'000000'00000'000000'00000;
  EXPECT_EQ(packed({1980, 1, 1, 0, 0, 0}), kFirstDay);
  EXPECT_EQ(packed({1980, 1, 1, 23, 0, 0}), kFirstDay + 23);
  EXPECT_EQ(packed({1980, 1, 1, 0, 59, 0}), kFirstDay + (59U << 5));
  EXPECT_EQ(packed({1980, 1, 1, 0, 0, 58}), kFirstDay + (29U << 11));
  EXPECT_EQ(packed({1981, 1, 1, 0, 0, 0}), kFirstDay + (1U << 16));
  EXPECT_EQ(packed({1980, 12, 1, 0, 0, 0}), kFirstDay + (11U << 23));
  EXPECT_EQ(packed({1980, 1, 31, 0, 0, 0}), kFirstDay + (30U << 27));
}

TEST(SolvaneDate, LosesOddSeconds) {
  EXPECT_EQ(solvaneDate({2026, 11, 15, 21, 54, 37}), solvaneDate({2026, 11, 15, 21, 54, 36}));
  EXPECT_NE(solvaneDate({2026, 11, 15, 21, 54, 38}), solvaneDate({2026, 11, 15, 21, 54, 37}));
}

TEST(SolvaneDate, WrapsAfter2043) {
  EXPECT_EQ(solvaneDate({2043, 1, 1, 0, 0, 0}) >> 16 & 63, 63U);
  EXPECT_EQ(solvaneDate({2044, 1, 1, 0, 0, 0}), solvaneDate({1980, 1, 1, 0, 0, 0}));
  EXPECT_EQ(solvaneDate({1979, 1, 1, 0, 0, 0}) >> 16 & 63, 63U);
}

TEST(SolvaneDate, HasItsZeroBitBetweenYearAndMonth) {
  EXPECT_EQ(solvaneDate({2043, 15, 31, 31, 63, 63}) & (1U << 22), 0U);
}

TEST(DateWithSolvane, IsTheInverseButForOddSeconds) {
  EXPECT_EQ(dateWithSolvane(0b01111'1011'0'101110'10010'110110'10101),
            NSCalendarDate::dateWithYear(2026, 11, 15, 21, 54, 36));
  const NSCalendarDate leapDay{2024, 2, 29, 23, 59, 58};
  EXPECT_EQ(dateWithSolvane(solvaneDate(leapDay)), leapDay);
}

TEST(DateWithSolvane, ReadsEveryBit) {
  EXPECT_EQ(dateWithSolvane(0xFFFFFFFF), (NSCalendarDate{2043, 15, 31, 31, 63, 62}));
  EXPECT_EQ(dateWithSolvane(0), (NSCalendarDate{1980, 0, 0, 0, 0, 0}));
}

}  // namespace
}  // namespace gdi
