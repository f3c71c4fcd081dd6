// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A property list as a plain value, read from XML, binary or the older text form.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace gdi {

// One value of a property list. Texts and keys are UTF-8. A date is a real, its seconds since the
// beginning of 2001 (GMT).
struct PropertyListValue {
  using Bytes = std::vector<std::uint8_t>;
  using Array = std::vector<PropertyListValue>;
  using Dictionary = std::map<std::string, PropertyListValue, std::less<>>;

  std::variant<std::string, std::int64_t, double, bool, Bytes, Array, Dictionary> value;

  // The value when it is of that kind, else null; valid as long as this value.
  [[nodiscard]] const std::string* string() const;
  [[nodiscard]] const Array* array() const;
  [[nodiscard]] const Dictionary* dictionary() const;
  // The dictionary's entry of that name; null when absent or when this is no dictionary.
  [[nodiscard]] const PropertyListValue* find(std::string_view key) const;

  // A number as it is (reals truncated and kept within range, booleans 0 or 1); of a text its
  // leading decimal integer; 0 for every other kind.
  [[nodiscard]] std::int64_t intValue() const;
  // A text as it is; booleans as "true" or "false"; numbers in decimal; nothing for every other
  // kind.
  [[nodiscard]] std::optional<std::string> text() const;
};

// Parses a whole file's bytes; nothing when they are no property list, not UTF-8 or UTF-16 (with a
// byte order mark), followed by anything else, above 4 MiB, or nested deeper than 64 levels. Of
// two entries with one key the later counts.
[[nodiscard]] std::optional<PropertyListValue> propertyListWithData(
    std::span<const std::uint8_t> data);

}  // namespace gdi
