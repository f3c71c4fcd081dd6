// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Text files brought into UTF-8, and single characters written in it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace gdi {

// The bytes of a text file as valid UTF-8 without a byte order mark: UTF-8 itself, or UTF-16 of
// either byte order behind its mark. Nothing when they are neither.
[[nodiscard]] std::optional<std::string> utf8Text(std::string_view bytes);

// Whether every character is well formed: none overlong, no surrogate, none above 0x10FFFF.
[[nodiscard]] bool isUtf8(std::string_view bytes);

// Appends one character; `codePoint` is at most 0x10FFFF and no surrogate.
void appendUtf8(std::string& text, char32_t codePoint);

// Half a character beyond the first 65,536, as UTF-16 has them: a high one, then a low one.
[[nodiscard]] constexpr bool isHighSurrogate(char32_t unit) {
  return unit >> 10U == 0x36;
}
[[nodiscard]] constexpr bool isLowSurrogate(char32_t unit) {
  return unit >> 10U == 0x37;
}

// The character that both halves make.
[[nodiscard]] constexpr char32_t joinedSurrogates(char32_t high, char32_t low) {
  return 0x10000U + ((high & 0x3FFU) << 10U) + (low & 0x3FFU);
}

}  // namespace gdi
