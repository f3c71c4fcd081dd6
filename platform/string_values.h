// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What the platform's strings know about themselves: the number they begin with, and equality
// without regard to case.
#pragma once

#include <cstdint>
#include <string_view>

namespace gdi {

// The integer a text begins with: leading white space is skipped, then an optional sign and decimal
// digits; what follows is ignored. 0 when there are no digits; the nearest limit when out of range.
[[nodiscard]] std::int64_t leadingInteger(std::string_view text);

// The same as an int.
[[nodiscard]] int intValue(std::string_view text);

// Whether both are the same, the letters A to Z counting as a to z. Other characters are compared
// exactly.
[[nodiscard]] bool caseInsensitiveEqual(std::string_view a, std::string_view b);

}  // namespace gdi
