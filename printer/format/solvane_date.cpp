// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "printer/format/solvane_date.h"

namespace gdi {

namespace {

constexpr unsigned kMinuteShift = 5;
constexpr unsigned kSecondShift = 10;  // of the second with its low bit cleared
constexpr unsigned kYearShift = 16;
constexpr unsigned kMonthShift = 23;
constexpr unsigned kDayShift = 27;
constexpr std::uint32_t kHourMask = 31;
constexpr std::uint32_t kMinuteMask = 63;
constexpr std::uint32_t kEvenSecondMask = 62;
constexpr std::uint32_t kYearMask = 63;
constexpr std::uint32_t kMonthMask = 15;
constexpr int kFirstYear = 1980;

}  // namespace

std::uint32_t solvaneDate(const NSCalendarDate& date) {
  const auto field = [](int value) { return static_cast<std::uint32_t>(value); };
  return (field(date.hour) & kHourMask) | (field(date.minute) & kMinuteMask) << kMinuteShift |
         (field(date.second) & kEvenSecondMask) << kSecondShift |
         (field(date.year - kFirstYear) & kYearMask) << kYearShift |
         (field(date.month) & kMonthMask) << kMonthShift | field(date.day) << kDayShift;
}

NSCalendarDate dateWithSolvane(std::uint32_t packed) {
  const auto field = [packed](unsigned shift, std::uint32_t mask) {
    return static_cast<int>(packed >> shift & mask);
  };
  return NSCalendarDate::dateWithYear(field(kYearShift, kYearMask) + kFirstYear,
                                      field(kMonthShift, kMonthMask), field(kDayShift, ~0U),
                                      field(0, kHourMask), field(kMinuteShift, kMinuteMask),
                                      field(kSecondShift, kEvenSecondMask));
}

}  // namespace gdi
