// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "filter/log/line_prefix.h"

#include <ctime>

#include <gtest/gtest.h>

namespace gdi {
namespace {

std::tm date(int year, int month, int day, int hour, int minute, int second) {
  std::tm local{};
  local.tm_year = year - 1900;
  local.tm_mon = month - 1;
  local.tm_mday = day;
  local.tm_hour = hour;
  local.tm_min = minute;
  local.tm_sec = second;
  return local;
}

TEST(LogLinePrefix, JanuaryIsLoggedAsMonth00) {
  EXPECT_EQ(logLinePrefix(date(2026, 1, 15, 21, 57, 4), 512344, 4711),
            "00/15/2026 21:57:04.512344 (4711) ");
}

TEST(LogLinePrefix, NovemberIsLoggedAsMonth10) {
  EXPECT_EQ(logLinePrefix(date(2026, 11, 15, 21, 57, 4), 512344, 4711),
            "10/15/2026 21:57:04.512344 (4711) ");
}

TEST(LogLinePrefix, EveryNumberHasTwoDigitsAndTheMicrosecondsHaveFour) {
  EXPECT_EQ(logLinePrefix(date(2027, 3, 2, 1, 0, 9), 7, 1), "02/02/2027 01:00:09.0007 (1) ");
}

TEST(LogLinePrefix, TheLongestNumbersAreNotCut) {
  EXPECT_EQ(logLinePrefix(date(99999, 12, 31, 23, 59, 60), 999999, 4194304),
            "11/31/99999 23:59:60.999999 (4194304) ");
}

}  // namespace
}  // namespace gdi
