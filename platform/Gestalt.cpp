// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/Gestalt.h"

#include <algorithm>
#include <string>

#include "platform/NSBundle.h"

namespace gdi {

namespace {

// Takes the decimal number at the front of `text`, numbers above `most` counting as `most`.
std::optional<std::int32_t> takeNumber(std::string_view& text, std::int32_t most) {
  const std::size_t length = std::min(text.find_first_not_of("0123456789"), text.size());
  if (length == 0) {
    return std::nullopt;
  }
  std::int32_t number = 0;
  for (const char digit : text.substr(0, length)) {
    number = std::min(number * 10 + (digit - '0'), most);
  }
  text.remove_prefix(length);
  return number;
}

bool takePoint(std::string_view& text) {
  const bool taken = text.starts_with('.');
  text.remove_prefix(taken ? 1 : 0);
  return taken;
}

}  // namespace

std::optional<std::int32_t> systemVersionFromText(std::string_view text) {
  const std::optional<std::int32_t> major = takeNumber(text, 100);
  if (!major || *major > 99 || !takePoint(text)) {
    return std::nullopt;
  }
  const std::optional<std::int32_t> minor = takeNumber(text, 9);
  std::optional<std::int32_t> fix = 0;
  if (takePoint(text)) {
    fix = takeNumber(text, 9);
  }
  if (!minor || !fix || !text.empty()) {
    return std::nullopt;
  }
  return *major / 10 * 0x1000 + *major % 10 * 0x100 + *minor * 0x10 + *fix;
}

std::int32_t Gestalt(OSType selector, std::int32_t* response) {
  if (selector != gestaltSystemVersion) {
    return gestaltUndefSelectorErr;
  }
  const std::optional<std::string> text =
      NSBundle::mainBundle().objectForInfoDictionaryKey("SystemVersion");
  const std::optional<std::int32_t> version = text ? systemVersionFromText(*text) : std::nullopt;
  if (!version || response == nullptr) {
    return gestaltUnknownErr;
  }
  *response = *version;
  return 0;
}

}  // namespace gdi
