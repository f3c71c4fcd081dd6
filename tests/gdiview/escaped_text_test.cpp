// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/escaped_text.h"

#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "tests/jobs/job_builder.h"

namespace gdi::gdiview {
namespace {

using jobtest::Bytes;

std::string escapedText(std::string_view text) {
  return escaped(Bytes(text.begin(), text.end()));
}

TEST(Escaped, ControlsAreWrittenAsInC) {
  EXPECT_EQ(escapedText("a\r\n\tb"), R"(a\r\n\tb)");
  EXPECT_EQ(escapedText("\x1b%-12345X"), R"(\x1b%-12345X)");
  EXPECT_EQ(escapedText("\x7f"), R"(\x7f)");
  EXPECT_EQ(escapedText(std::string_view("\0", 1)), R"(\x00)");
}

TEST(Escaped, QuotesAndBackslashesAreEscaped) {
  EXPECT_EQ(escapedText(R"(a"b\c)"), R"(a\"b\\c)");
}

TEST(Escaped, CharactersInUtf8AreKept) {
  EXPECT_EQ(escapedText("Grüße €\xF0\x9F\x96\xA8."), "Grüße €\xF0\x9F\x96\xA8.");
}

TEST(Escaped, ControlsBeyondAsciiAreEscaped) {
  EXPECT_EQ(escapedText("\xC2\x85"), R"(\xc2\x85)");
  EXPECT_EQ(escapedText("\xC2\xA0"), "\xC2\xA0");
}

TEST(Escaped, BytesOfNoWholeCharacterAreEscaped) {
  EXPECT_EQ(escapedText("Gr\xFC\xDF"), R"(Gr\xfc\xdf)");      // Latin-1
  EXPECT_EQ(escapedText("\xE2\x82"), R"(\xe2\x82)");          // cut short
  EXPECT_EQ(escapedText("\x80z"), R"(\x80z)");                // begins none
  EXPECT_EQ(escapedText("\xC0\x80"), R"(\xc0\x80)");          // too long
  EXPECT_EQ(escapedText("\xED\xA0\x80"), R"(\xed\xa0\x80)");  // half a character of UTF-16
  EXPECT_EQ(escapedText("\xE2\x82ü"), "\\xe2\\x82ü");         // the next one is kept
}

TEST(Escaped, QuotedIsTheSameBetweenQuotes) {
  EXPECT_EQ(quoted(Bytes{'a', '"', '\n'}), R"("a\"\n")");
  EXPECT_EQ(quoted({}), "\"\"");
}

TEST(NameInLine, ANameStaysAsItIs) {
  EXPECT_EQ(nameInLine("my \"job\" \\ Grüße.gdi"), "my \"job\" \\ Grüße.gdi");
}

TEST(NameInLine, WhatWouldLeaveTheLineIsEscaped) {
  EXPECT_EQ(nameInLine("a\nb\rc\x1b[2J"), R"(a\nb\rc\x1b[2J)");
}

}  // namespace
}  // namespace gdi::gdiview
