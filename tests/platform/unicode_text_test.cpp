// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/unicode_text.h"

#include <gtest/gtest.h>

namespace gdi {
namespace {

using namespace std::string_view_literals;

TEST(UnicodeText, WritesEveryLengthOfUtf8) {
  std::string text;
  for (const char32_t codePoint : {U'A', U'\u00E9', U'\u20AC', U'\U0001F600'}) {
    appendUtf8(text, codePoint);
  }
  EXPECT_EQ(text, "A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
}

TEST(UnicodeText, KeepsUtf8AndDropsItsMark) {
  EXPECT_EQ(utf8Text("a\xC3\xA9"), "a\xC3\xA9");
  EXPECT_EQ(utf8Text("\xEF\xBB\xBF"
                     "a"),
            "a");
  EXPECT_EQ(utf8Text(""), "");
}

TEST(UnicodeText, ReadsUtf16OfEitherByteOrder) {
  EXPECT_EQ(utf8Text("\xFE\xFF\0A\x20\xAC\xD8\x3D\xDE\x00"sv), "A\xE2\x82\xAC\xF0\x9F\x98\x80");
  EXPECT_EQ(utf8Text("\xFF\xFE"
                     "A\0\xAC\x20\x3D\xD8\x00\xDE"sv),
            "A\xE2\x82\xAC\xF0\x9F\x98\x80");
}

TEST(UnicodeText, RefusesBrokenUtf16) {
  EXPECT_EQ(utf8Text("\xFE\xFF\0"sv), std::nullopt);                // half a unit
  EXPECT_EQ(utf8Text("\xFE\xFF\xD8\x3D"sv), std::nullopt);          // a high half at the end
  EXPECT_EQ(utf8Text("\xFE\xFF\xD8\x3D\0A"sv), std::nullopt);       // and before a letter
  EXPECT_EQ(utf8Text("\xFE\xFF\xDE\x00\0A"sv), std::nullopt);       // a low half alone
  EXPECT_EQ(utf8Text("\xFE\xFF\xD8\x3D\xD8\x3D"sv), std::nullopt);  // two high halves
}

TEST(UnicodeText, RefusesMalformedUtf8) {
  for (const std::string_view bytes :
       {"\x80"sv, "\xC3"sv,
        "\xC3"
        "A"sv,
        "\xC0\x80"sv, "\xC1\xBF"sv, "\xE0\x9F\xBF"sv, "\xED\xA0\x80"sv, "\xF0\x8F\xBF\xBF"sv,
        "\xF4\x90\x80\x80"sv, "\xF5\x80\x80\x80"sv, "\xFF"sv, "\xE2\x82"sv, "\xF0\x9F\x98"sv}) {
    EXPECT_FALSE(isUtf8(bytes));
    EXPECT_EQ(utf8Text(bytes), std::nullopt);
  }
}

TEST(UnicodeText, AcceptsTheLimitsOfUtf8) {
  EXPECT_TRUE(isUtf8("\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF"));
  EXPECT_TRUE(isUtf8("\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"));
}

}  // namespace
}  // namespace gdi
