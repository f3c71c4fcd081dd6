// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/string_values.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <system_error>

namespace gdi {

namespace {

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

char lowerCase(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

std::int64_t leadingInteger(std::string_view text) {
  using Limits = std::numeric_limits<std::int64_t>;
  text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
  const bool negative = text.starts_with('-');
  const std::size_t sign = negative || text.starts_with('+') ? 1 : 0;
  if (text.size() == sign || !isDigit(text[sign])) {
    return 0;
  }
  text.remove_prefix(negative ? 0 : sign);  // from_chars knows the minus sign only
  std::int64_t number = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
  if (result.ec == std::errc::result_out_of_range) {
    return negative ? Limits::min() : Limits::max();
  }
  return number;
}

int intValue(std::string_view text) {
  using Limits = std::numeric_limits<int>;
  return static_cast<int>(
      std::clamp<std::int64_t>(leadingInteger(text), Limits::min(), Limits::max()));
}

bool caseInsensitiveEqual(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, lowerCase, lowerCase);
}

}  // namespace gdi
