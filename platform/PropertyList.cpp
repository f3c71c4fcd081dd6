// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/PropertyList.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "platform/property_list_forms.h"
#include "platform/string_values.h"
#include "platform/unicode_text.h"

namespace gdi {

namespace {

template <typename Number>
std::string decimalText(Number number) {
  std::array<char, 400> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
  return {digits.data(), end};
}

std::int64_t truncated(double number) {
  using Limits = std::numeric_limits<std::int64_t>;
  constexpr double kBeyond = 9223372036854775808.0;  // 2^63, the first value that does not fit
  if (std::isnan(number)) {
    return 0;
  }
  if (number >= kBeyond) {
    return Limits::max();
  }
  return number < -kBeyond ? Limits::min() : static_cast<std::int64_t>(number);
}

bool looksLikeXML(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t\r\n");
  if (first == std::string_view::npos) {
    return false;
  }
  text.remove_prefix(first);
  return text.starts_with("<?xml") || text.starts_with("<!DOCTYPE") || text.starts_with("<plist");
}

}  // namespace

const std::string* PropertyListValue::string() const {
  return std::get_if<std::string>(&value);
}

const PropertyListValue::Array* PropertyListValue::array() const {
  return std::get_if<Array>(&value);
}

const PropertyListValue::Dictionary* PropertyListValue::dictionary() const {
  return std::get_if<Dictionary>(&value);
}

const PropertyListValue* PropertyListValue::find(std::string_view key) const {
  const Dictionary* entries = dictionary();
  if (entries == nullptr) {
    return nullptr;
  }
  const auto entry = entries->find(key);
  return entry == entries->end() ? nullptr : &entry->second;
}

std::int64_t PropertyListValue::intValue() const {
  if (const auto* characters = std::get_if<std::string>(&value)) {
    return leadingInteger(*characters);
  }
  if (const auto* integer = std::get_if<std::int64_t>(&value)) {
    return *integer;
  }
  if (const auto* real = std::get_if<double>(&value)) {
    return truncated(*real);
  }
  const auto* flag = std::get_if<bool>(&value);
  return flag != nullptr && *flag ? 1 : 0;
}

std::optional<std::string> PropertyListValue::text() const {
  if (const auto* characters = std::get_if<std::string>(&value)) {
    return *characters;
  }
  if (const auto* integer = std::get_if<std::int64_t>(&value)) {
    return decimalText(*integer);
  }
  if (const auto* real = std::get_if<double>(&value)) {
    return decimalText(*real);
  }
  if (const auto* flag = std::get_if<bool>(&value)) {
    return *flag ? "true" : "false";
  }
  return std::nullopt;
}

std::optional<PropertyListValue> propertyListWithData(std::span<const std::uint8_t> data) {
  constexpr std::string_view kBinaryMark = "bplist00";
  if (data.empty() || data.size() > kPropertyListMaxSize) {
    return std::nullopt;
  }
  const std::string_view bytes(reinterpret_cast<const char*>(data.data()), data.size());
  if (bytes.starts_with(kBinaryMark)) {
    return propertyListWithBinary(data);
  }
  const std::optional<std::string> text = utf8Text(bytes);
  if (!text) {
    return std::nullopt;
  }
  return looksLikeXML(*text) ? propertyListWithXML(*text) : propertyListWithText(*text);
}

}  // namespace gdi
