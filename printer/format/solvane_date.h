// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The job record's date: local date and time packed in 32 bits.
//
// From the low end: hour 5 bits, minute 6, second / 2 5, (year - 1980) mod 64 6, one zero bit,
// month 4, day of month 5. Odd seconds are lost, and the year wraps after 2043:
// docs/quirks.md, "The packed date".
#pragma once

#include <cstdint>

#include "platform/NSCalendarDate.h"

namespace gdi {

std::uint32_t solvaneDate(const NSCalendarDate& date);

// The inverse, in the local time zone; of use to readers of job streams.
NSCalendarDate dateWithSolvane(std::uint32_t packed);

}  // namespace gdi
