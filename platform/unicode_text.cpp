// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/unicode_text.h"

#include <cstddef>

namespace gdi {

namespace {

char32_t byteAt(std::string_view bytes, std::size_t index) {
  return static_cast<unsigned char>(bytes[index]);
}

// How many bytes the well-formed character at `index` takes; 0 when it is malformed.
std::size_t characterLength(std::string_view bytes, std::size_t index) {
  const char32_t first = byteAt(bytes, index);
  if (first < 0x80) {
    return 1;
  }
  const std::size_t length = first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
  if (first < 0xC2 || first > 0xF4 || bytes.size() - index < length) {
    return 0;
  }
  char32_t codePoint = first & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const char32_t next = byteAt(bytes, index + i);
    if (next >> 6U != 2) {
      return 0;
    }
    codePoint = codePoint << 6U | (next & 0x3FU);
  }
  const char32_t smallest = length == 2 ? 0x80 : length == 3 ? 0x800 : 0x10000;
  const bool surrogate = isHighSurrogate(codePoint) || isLowSurrogate(codePoint);
  return codePoint < smallest || codePoint > 0x10FFFF || surrogate ? 0 : length;
}

std::optional<std::string> fromUtf16(std::string_view bytes, bool bigEndian) {
  if (bytes.size() % 2 != 0) {
    return std::nullopt;
  }
  const auto unitAt = [&](std::size_t index) {
    return byteAt(bytes, index + (bigEndian ? 0 : 1)) << 8U |
           byteAt(bytes, index + (bigEndian ? 1 : 0));
  };
  std::string text;
  for (std::size_t index = 0; index < bytes.size(); index += 2) {
    char32_t unit = unitAt(index);
    if (isHighSurrogate(unit)) {
      index += 2;
      if (index == bytes.size() || !isLowSurrogate(unitAt(index))) {
        return std::nullopt;
      }
      unit = joinedSurrogates(unit, unitAt(index));
    } else if (isLowSurrogate(unit)) {
      return std::nullopt;
    }
    appendUtf8(text, unit);
  }
  return text;
}

}  // namespace

std::optional<std::string> utf8Text(std::string_view bytes) {
  if (bytes.starts_with("\xFE\xFF")) {
    return fromUtf16(bytes.substr(2), true);
  }
  if (bytes.starts_with("\xFF\xFE")) {
    return fromUtf16(bytes.substr(2), false);
  }
  if (bytes.starts_with("\xEF\xBB\xBF")) {
    bytes.remove_prefix(3);
  }
  return isUtf8(bytes) ? std::optional<std::string>(bytes) : std::nullopt;
}

bool isUtf8(std::string_view bytes) {
  for (std::size_t index = 0; index < bytes.size();) {
    const std::size_t length = characterLength(bytes, index);
    if (length == 0) {
      return false;
    }
    index += length;
  }
  return true;
}

void appendUtf8(std::string& text, char32_t codePoint) {
  const auto append = [&text](char32_t byte) { text.push_back(static_cast<char>(byte)); };
  if (codePoint < 0x80) {
    append(codePoint);
    return;
  }
  if (codePoint < 0x800) {
    append(0xC0U | codePoint >> 6U);
  } else {
    if (codePoint < 0x10000) {
      append(0xE0U | codePoint >> 12U);
    } else {
      append(0xF0U | codePoint >> 18U);
      append(0x80U | (codePoint >> 12U & 0x3FU));
    }
    append(0x80U | (codePoint >> 6U & 0x3FU));
  }
  append(0x80U | (codePoint & 0x3FU));
}

}  // namespace gdi
