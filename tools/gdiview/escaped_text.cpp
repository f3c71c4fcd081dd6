// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/escaped_text.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "platform/unicode_text.h"

namespace gdi::gdiview {

namespace {

// The lowest byte with which a character beyond ASCII begins in UTF-8.
constexpr std::uint8_t kFirstLeadByte = 0xC2;
// C2 80 to C2 9F are the controls U+0080 to U+009F; from this second byte on, C2 begins what can be
// printed.
constexpr std::uint8_t kFirstPrintableBehindC2 = 0xA0;

// Bytes of the character beyond ASCII that `text` begins with; 0 when it begins with another one, a
// control or none.
std::size_t printableBytes(std::string_view text) {
  const bool control = text.starts_with('\xC2') && text.size() > 1 &&
                       static_cast<std::uint8_t>(text[1]) < kFirstPrintableBehindC2;
  if (control) {
    return 0;
  }
  for (std::size_t length = 2; length <= std::min<std::size_t>(4, text.size()); ++length) {
    if (static_cast<std::uint8_t>(text[0]) >= kFirstLeadByte && isUtf8(text.substr(0, length))) {
      return length;
    }
  }
  return 0;
}

std::string hexadecimal(std::uint8_t byte) {
  std::array<char, 8> text{};
  (void)std::snprintf(text.data(), text.size(), "\\x%02x", unsigned{byte});
  return text.data();
}

std::string escapedByte(char character) {
  constexpr std::string_view kNamed = "\r\n\t";
  constexpr std::string_view kNames = "rnt";
  constexpr std::uint8_t kDelete = 0x7F;
  if (const std::size_t named = kNamed.find(character); named != std::string_view::npos) {
    return {'\\', kNames[named]};
  }
  const auto byte = static_cast<std::uint8_t>(character);
  return byte < ' ' || byte >= kDelete ? hexadecimal(byte) : std::string(1, character);
}

// alsoEscaped: characters that get a backslash though they can be printed.
std::string escapedText(std::string_view text, std::string_view alsoEscaped) {
  std::string answer;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t length = std::max<std::size_t>(1, printableBytes(text.substr(at)));
    if (length > 1) {
      answer += text.substr(at, length);
    } else if (alsoEscaped.find(text[at]) != std::string_view::npos) {
      answer.append("\\").append(1, text[at]);
    } else {
      answer += escapedByte(text[at]);
    }
    at += length;
  }
  return answer;
}

}  // namespace

std::string escaped(std::span<const std::uint8_t> bytes) {
  return escapedText({reinterpret_cast<const char*>(bytes.data()), bytes.size()}, "\"\\");
}

std::string quoted(std::span<const std::uint8_t> bytes) {
  return std::string("\"").append(escaped(bytes)).append("\"");
}

std::string nameInLine(std::string_view name) {
  return escapedText(name, "");
}

}  // namespace gdi::gdiview
