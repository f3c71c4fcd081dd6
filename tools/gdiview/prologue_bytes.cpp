// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/prologue_bytes.h"

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <iterator>
#include <string_view>
#include <system_error>
#include <vector>

#include "platform/NSBundle.h"
#include "platform/PropertyList.h"

namespace gdi::gdiview {

namespace {

// Of text in UTF-8; one of more than 16 bits counts two.
std::uint64_t utf16Units(std::string_view text) {
  std::uint64_t units = 0;
  for (const char character : text) {
    const auto byte = static_cast<std::uint8_t>(character);
    const bool begins = (byte & 0xC0U) != 0x80U;
    units += begins ? (byte >= 0xF0 ? 2U : 1U) : 0U;
  }
  return units;
}

// Its first bytes, one more than any property list may have; nothing when it cannot be read.
std::optional<std::vector<std::uint8_t>> startOf(const std::filesystem::path& path) {
  constexpr std::size_t kMost = (std::size_t{4} << 20U) + 1;
  std::ifstream file(path, std::ios::binary);
  std::vector<std::uint8_t> bytes(kMost);
  file.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  if (!file.is_open() || file.bad()) {
    return std::nullopt;
  }
  bytes.resize(static_cast<std::size_t>(file.gcount()));
  return bytes;
}

}  // namespace

// docs/quirks.md, "The prologue is counted in UTF-16 units"
std::optional<std::uint64_t> prologueBytesOf(
    const std::optional<std::filesystem::path>& resources) {
  NSBundle bundle(resources.value_or(NSBundle::mainBundle().resourcePath()));
  const std::optional<std::string> text = bundle.objectForInfoDictionaryKey("CUPSFileHeader");
  if (!text) {
    return std::nullopt;
  }
  return std::min<std::uint64_t>(utf16Units(*text), text->size());
}

std::string faultOfResources(const std::filesystem::path& folder) {
  const std::filesystem::path path = folder / "Info.plist";
  std::error_code unknown;
  if (!std::filesystem::is_regular_file(path, unknown)) {
    return "it has no Info.plist";
  }
  const std::optional<std::vector<std::uint8_t>> bytes = startOf(path);
  if (!bytes) {
    return "its Info.plist cannot be read";
  }
  const std::optional<PropertyListValue> list = propertyListWithData(*bytes);
  return list && list->dictionary() != nullptr ? "" : "its Info.plist is no dictionary";
}

}  // namespace gdi::gdiview
