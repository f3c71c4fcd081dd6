// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <cstdlib>
#include <ctime>
#include <string>

#include <gtest/gtest.h>

#include "platform/NSCalendarDate.h"

namespace gdi {
namespace {

TEST(CalendarDate, KeepsWhatItIsMadeOf) {
  const NSCalendarDate date = NSCalendarDate::dateWithYear(2026, 11, 15, 21, 54, 37);
  EXPECT_EQ(date.year, 2026);
  EXPECT_EQ(date.month, 11);
  EXPECT_EQ(date.day, 15);
  EXPECT_EQ(date.hour, 21);
  EXPECT_EQ(date.minute, 54);
  EXPECT_EQ(date.second, 37);
}

// Whether the date is that of `before`, or of a second up to now, in the zone in force.
bool isBetween(const NSCalendarDate& date, std::time_t before) {
  std::tm fields{};
  fields.tm_year = date.year - 1900;
  fields.tm_mon = date.month - 1;
  fields.tm_mday = date.day;
  fields.tm_hour = date.hour;
  fields.tm_min = date.minute;
  fields.tm_sec = date.second;
  fields.tm_isdst = -1;
  const std::time_t seconds = std::mktime(&fields);
  return before <= seconds && seconds <= std::time(nullptr);
}

TEST(CalendarDate, IsNowInTheLocalTimeZone) {
  const char* zone = std::getenv("TZ");
  const std::string former = zone == nullptr ? "" : zone;
  for (const char* name : {"UTC0", "EAST-13", "WEST11"}) {
    setenv("TZ", name, 1);
    const std::time_t before = std::time(nullptr);
    EXPECT_TRUE(isBetween(NSCalendarDate::calendarDate(), before)) << name;
  }
  zone == nullptr ? unsetenv("TZ") : setenv("TZ", former.c_str(), 1);
}

}  // namespace
}  // namespace gdi
