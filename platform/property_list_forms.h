// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The readers of a property list's three encodings, and the limits that all of them keep.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "platform/PropertyList.h"

namespace gdi {

inline constexpr std::size_t kPropertyListMaxSize = std::size_t{4} << 20;  // bytes of a file
inline constexpr int kPropertyListMaxDepth = 64;  // arrays and dictionaries in one another

// A value made in its place; g++ 12 warns, without reason, when one is moved in.
template <typename Content>
std::optional<PropertyListValue> valueWith(Content content) {
  std::optional<PropertyListValue> result(std::in_place);
  result->value.template emplace<Content>(std::move(content));
  return result;
}

// The older text form, with or without the braces of the outermost dictionary. Valid UTF-8.
[[nodiscard]] std::optional<PropertyListValue> propertyListWithText(std::string_view text);

// An XML document. Valid UTF-8.
[[nodiscard]] std::optional<PropertyListValue> propertyListWithXML(const std::string& text);

// A binary property list, from its "bplist00" on.
[[nodiscard]] std::optional<PropertyListValue> propertyListWithBinary(
    std::span<const std::uint8_t> data);

}  // namespace gdi
