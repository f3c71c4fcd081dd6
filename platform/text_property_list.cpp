// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <algorithm>
#include <cstddef>
#include <utility>

#include "platform/property_list_forms.h"
#include "platform/unicode_text.h"

namespace gdi {

namespace {

constexpr std::string_view kBlanks = " \t\n\v\f\r";

bool isBareCharacter(char c) {
  return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
         (c != '\0' && std::string_view("_$/:.-").find(c) != std::string_view::npos);
}

// The digit's value, or -1 when `c` is no digit of that base (at most 16).
int digitValue(char c, int base) {
  int value = -1;
  if (c >= '0' && c <= '9') {
    value = c - '0';
  } else if (c >= 'a' && c <= 'f') {
    value = c - 'a' + 10;
  } else if (c >= 'A' && c <= 'F') {
    value = c - 'A' + 10;
  }
  return value < base ? value : -1;
}

// Reads from the front of `rest_`. Every reading function answers nothing at the first mistake.
class TextReader {
 public:
  explicit TextReader(std::string_view text) : rest_(text) {}

  std::optional<PropertyListValue> wholeText() {
    const std::string_view start = rest_;
    std::optional<PropertyListValue> result = value(0);
    if (!result || !skipBlanks()) {
      return std::nullopt;
    }
    if (result->string() != nullptr && rest_.starts_with('=')) {
      rest_ = start;
      result = entries(0);
    }
    return result && skipBlanks() && rest_.empty() ? std::move(result) : std::nullopt;
  }

 private:
  // Skips white space and comments; false when a comment does not end.
  bool skipBlanks() {
    while (true) {
      rest_.remove_prefix(std::min(rest_.find_first_not_of(kBlanks), rest_.size()));
      if (rest_.starts_with("//")) {
        rest_.remove_prefix(std::min(rest_.find_first_of("\r\n"), rest_.size()));
      } else if (rest_.starts_with("/*")) {
        const std::size_t end = rest_.find("*/", 2);
        if (end == std::string_view::npos) {
          return false;
        }
        rest_.remove_prefix(end + 2);
      } else {
        return true;
      }
    }
  }

  // Takes `c` when it is the next character.
  bool take(char c) {
    const bool taken = rest_.starts_with(c);
    rest_.remove_prefix(taken ? 1 : 0);
    return taken;
  }

  bool takeAfterBlanks(char c) { return skipBlanks() && take(c); }

  // `depth` counts the arrays and dictionaries that are open.
  std::optional<PropertyListValue> value(int depth) {
    if (!skipBlanks() || depth > kPropertyListMaxDepth) {
      return std::nullopt;
    }
    if (take('{')) {
      std::optional<PropertyListValue> result = entries(depth + 1);
      return result && take('}') ? std::move(result) : std::nullopt;
    }
    if (take('(')) {
      return array(depth + 1);
    }
    if (take('<')) {
      return data();
    }
    if (std::optional<std::string> characters = string()) {
      return valueWith(std::move(*characters));
    }
    return std::nullopt;
  }

  // `key = value;` any number of times, up to a closing brace or the end of the text.
  std::optional<PropertyListValue> entries(int depth) {
    PropertyListValue::Dictionary dictionary;
    while (skipBlanks()) {
      if (rest_.empty() || rest_.front() == '}') {
        return valueWith(std::move(dictionary));
      }
      std::optional<std::string> key = string();
      if (!key || !takeAfterBlanks('=')) {
        return std::nullopt;
      }
      std::optional<PropertyListValue> entry = value(depth);
      if (!entry || !takeAfterBlanks(';')) {
        return std::nullopt;
      }
      dictionary.insert_or_assign(std::move(*key), std::move(*entry));
    }
    return std::nullopt;
  }

  // The last item may be followed by a comma.
  std::optional<PropertyListValue> array(int depth) {
    PropertyListValue::Array items;
    while (!takeAfterBlanks(')')) {
      std::optional<PropertyListValue> item = value(depth);
      if (!item) {
        return std::nullopt;
      }
      items.push_back(std::move(*item));
      if (!takeAfterBlanks(',')) {
        if (!take(')')) {
          return std::nullopt;
        }
        break;
      }
    }
    return valueWith(std::move(items));
  }

  // Hexadecimal digits, two to a byte, with blanks anywhere.
  std::optional<PropertyListValue> data() {
    PropertyListValue::Bytes bytes;
    int high = -1;
    while (!takeAfterBlanks('>')) {
      const int digit = rest_.empty() ? -1 : digitValue(rest_.front(), 16);
      if (digit < 0) {
        return std::nullopt;
      }
      rest_.remove_prefix(1);
      if (high < 0) {
        high = digit;
      } else {
        bytes.push_back(static_cast<std::uint8_t>(high * 16 + digit));
        high = -1;
      }
    }
    return high < 0 ? valueWith(std::move(bytes)) : std::nullopt;
  }

  std::optional<std::string> string() {
    if (take('"')) {
      return quotedString('"');
    }
    if (take('\'')) {
      return quotedString('\'');
    }
    std::string characters;
    while (!rest_.empty() && isBareCharacter(rest_.front())) {
      characters.push_back(rest_.front());
      rest_.remove_prefix(1);
    }
    return characters.empty() ? std::nullopt : std::optional(std::move(characters));
  }

  std::optional<std::string> quotedString(char quote) {
    std::string characters;
    while (!take(quote)) {
      if (rest_.empty()) {
        return std::nullopt;
      }
      if (take('\\')) {
        if (!appendEscape(characters)) {
          return std::nullopt;
        }
      } else {
        characters.push_back(rest_.front());
        rest_.remove_prefix(1);
      }
    }
    return characters;
  }

  // What follows a backslash. A character without a meaning of its own stands for itself.
  bool appendEscape(std::string& characters) {
    constexpr std::string_view kNames = "abfnrtv";
    constexpr std::string_view kMeanings = "\a\b\f\n\r\t\v";
    if (rest_.empty()) {
      return false;
    }
    const char c = rest_.front();
    if (digitValue(c, 8) >= 0) {
      appendUtf8(characters, *number(8, 1, 3));
      return true;
    }
    rest_.remove_prefix(1);
    if (c == 'U' || c == 'u') {
      return appendUtf16Escape(characters);
    }
    const std::size_t name = kNames.find(c);
    characters.push_back(name == std::string_view::npos ? c : kMeanings[name]);
    return true;
  }

  // Four hexadecimal digits, and a second escape when they are half a character.
  bool appendUtf16Escape(std::string& characters) {
    std::optional<char32_t> unit = number(16, 4, 4);
    if (!unit || isLowSurrogate(*unit)) {
      return false;
    }
    if (isHighSurrogate(*unit)) {
      if (!take('\\') || !(take('U') || take('u'))) {
        return false;
      }
      const std::optional<char32_t> low = number(16, 4, 4);
      if (!low || !isLowSurrogate(*low)) {
        return false;
      }
      unit = joinedSurrogates(*unit, *low);
    }
    appendUtf8(characters, *unit);
    return true;
  }

  // Takes up to `most` digits; nothing when there are fewer than `least`.
  std::optional<char32_t> number(int base, int least, int most) {
    int result = 0;
    int count = 0;
    while (count < most && !rest_.empty() && digitValue(rest_.front(), base) >= 0) {
      result = result * base + digitValue(rest_.front(), base);
      rest_.remove_prefix(1);
      ++count;
    }
    return count < least ? std::nullopt : std::optional(static_cast<char32_t>(result));
  }

  std::string_view rest_;
};

}  // namespace

std::optional<PropertyListValue> propertyListWithText(std::string_view text) {
  return TextReader(text).wholeText();
}

}  // namespace gdi
