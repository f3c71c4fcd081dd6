// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/NSCalendarDate.h"

#include <ctime>

namespace gdi {

NSCalendarDate NSCalendarDate::calendarDate() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  tzset();
  if (localtime_r(&now, &local) == nullptr) {
    return {};
  }
  return dateWithYear(1900 + local.tm_year, 1 + local.tm_mon, local.tm_mday, local.tm_hour,
                      local.tm_min, local.tm_sec);
}

NSCalendarDate NSCalendarDate::dateWithYear(int year, int month, int day, int hour, int minute,
                                            int second) {
  return {year, month, day, hour, minute, second};
}

}  // namespace gdi
