// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A local date and time as a calendar and a clock show it, without a time zone.
#pragma once

namespace gdi {

struct NSCalendarDate {
  int year = 1970;
  int month = 1;   // 1 to 12
  int day = 1;     // 1 to 31
  int hour = 0;    // 0 to 23
  int minute = 0;  // 0 to 59
  int second = 0;  // 0 to 60, a leap second

  // Now, in the local time zone.
  static NSCalendarDate calendarDate();
  // That date and time; nothing is checked or carried over.
  static NSCalendarDate dateWithYear(int year, int month, int day, int hour, int minute,
                                     int second);

  bool operator==(const NSCalendarDate&) const = default;
};

}  // namespace gdi
