// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <gtest/gtest.h>

#include "tests/platform/platform_helpers.h"

namespace gdi {
namespace {

using namespace std::string_view_literals;

std::string entryText(std::string_view bytes, std::string_view key) {
  const std::optional<PropertyListValue> list = parsed(bytes);
  const PropertyListValue* entry = list ? list->find(key) : nullptr;
  return entry != nullptr && entry->string() != nullptr ? *entry->string() : "(none)";
}

TEST(TextPropertyList, HoldsDictionariesArraysTextsAndData) {
  const auto list = parsed(
      "{ Sets = { FastPlain = { Depth = 1; Screens = (c, \"m y\", 'k'); }; };\n"
      "  Data = <0fB0 7 7>; \"a key\" = (); None = {}; }");
  ASSERT_TRUE(list);
  ASSERT_EQ(list->dictionary()->size(), 4U);
  const PropertyListValue* set = list->find("Sets")->find("FastPlain");
  ASSERT_NE(set, nullptr);
  EXPECT_EQ(set->find("Depth")->intValue(), 1);
  const PropertyListValue::Array& screens = *set->find("Screens")->array();
  ASSERT_EQ(screens.size(), 3U);
  EXPECT_EQ(*screens[0].string(), "c");
  EXPECT_EQ(*screens[1].string(), "m y");
  EXPECT_EQ(*screens[2].string(), "k");
  EXPECT_EQ(std::get<PropertyListValue::Bytes>(list->find("Data")->value),
            (PropertyListValue::Bytes{0x0F, 0xB0, 0x77}));
  EXPECT_TRUE(list->find("a key")->array()->empty());
  EXPECT_TRUE(list->find("None")->dictionary()->empty());
}

TEST(TextPropertyList, MayBeAnyKindOfValue) {
  EXPECT_EQ(parsedText("word"), "word");
  EXPECT_EQ(parsedText(" \"two words\" "), "two words");
  EXPECT_EQ(parsed("(a, b)")->array()->size(), 2U);
  EXPECT_EQ(std::get<PropertyListValue::Bytes>(parsed("<>")->value).size(), 0U);
}

TEST(TextPropertyList, KnowsTheCharactersOfBareTexts) {
  EXPECT_EQ(parsedText("/a/b_C.9:$-"), "/a/b_C.9:$-");
  EXPECT_EQ(parsedText("http://host/x"), "http://host/x");  // no comment inside a word
  EXPECT_EQ(parsedText("a%b"), "(none)");
  EXPECT_EQ(parsedText("\xC3\xA9"), "(none)");
  EXPECT_EQ(parsedText("a\0"sv), "(none)");
}

TEST(TextPropertyList, SkipsComments) {
  EXPECT_EQ(entryText("// first = line;\r{ /* a = b; */ key /**/ = // x\n value /* ** / */ ; } //",
                      "key"),
            "value");
  EXPECT_EQ(parsedText("\"no // comment /* here */\""), "no // comment /* here */");
}

TEST(TextPropertyList, KnowsTheNamedEscapes) {
  EXPECT_EQ(parsedText(R"("\a\b\f\n\r\t\v\\\"\'")"), "\a\b\f\n\r\t\v\\\"'");
  EXPECT_EQ(parsedText(R"('\'"')"), "'\"");
  EXPECT_EQ(parsedText(R"("100\% \q")"), "100% q");
}

TEST(TextPropertyList, TakesUpToThreeOctalDigitsAsACodePoint) {
  EXPECT_EQ(parsedText(R"("\033%-12345X")"), "\x1B%-12345X");
  EXPECT_EQ(parsedText(R"("\33%")"), "\x1B%");
  EXPECT_EQ(parsedText(R"("\1018")"), "A8");
  EXPECT_EQ(parsedText(R"("\78")"), "\a8");
  EXPECT_EQ(parsedText(R"("\351")"), "\xC3\xA9");
  EXPECT_EQ(parsedText(R"("\777")"), "\xC7\xBF");
  EXPECT_EQ(parsedText(R"("\0")"), "\0"sv);
}

TEST(TextPropertyList, TakesFourHexadecimalDigitsAsAUtf16Unit) {
  EXPECT_EQ(parsedText(R"("\U20ac\u00E9\U00411")"),
            "\xE2\x82\xAC\xC3\xA9"
            "A1");
  EXPECT_EQ(parsedText(R"("\UD83D\uDE00")"), "\xF0\x9F\x98\x80");
  for (const char* text : {R"("\U20a")", R"("\U20ag")", R"("\UD83D")", R"("\UDE00")",
                           R"("\UD83Dx")", R"("\UD83D\n")", R"("\UD83D\U0041")"}) {
    EXPECT_EQ(parsedText(text), "(none)") << text;
  }
}

TEST(TextPropertyList, KeepsUtf8AndLineEndsInQuotedTexts) {
  EXPECT_EQ(parsedText("\"\xE3\x83\x9A\r\n\""), "\xE3\x83\x9A\r\n");
}

TEST(TextPropertyList, LetsTheLaterOfTwoEqualKeysCount) {
  EXPECT_EQ(entryText("{ a = 1; a = 2; }", "a"), "2");
}

TEST(TextPropertyList, AllowsACommaAfterTheLastItem) {
  EXPECT_EQ(parsed("(a, b,)")->array()->size(), 2U);
  EXPECT_FALSE(parsed("(,)"));
  EXPECT_FALSE(parsed("(a,,b)"));
  EXPECT_FALSE(parsed("(a b)"));
}

TEST(TextPropertyList, IsRefusedWithAnyMistake) {
  for (const char* text : {"{",      "}",        "{ a = b }",     "{ a = ; }",  "{ a b; }",
                           "{ a; }", "{ = b; }", "{ (a) = b; }",  "(",          "(a",
                           ")",      "<0",       "<0f",           "<0>",        "<0x>",
                           ">",      "\"a",      "'a\"",          "\"a\\",      "\"",
                           "/* a",   "a /*",     "{ /* a = b; }", R"("k" "v")", ";",
                           "=",      ","}) {
    EXPECT_FALSE(parsed(text)) << text;
  }
}

TEST(TextPropertyList, IsRefusedWithTrailingRubbish) {
  for (const char* text : {"{} {}", "{ a = b; } c", "(a) ,", "<00> 1", "a b", "\"a\" ;", "{};"}) {
    EXPECT_FALSE(parsed(text)) << text;
  }
}

TEST(TextPropertyList, IsNoneWhenThereIsNothing) {
  EXPECT_FALSE(parsed(""));
  EXPECT_FALSE(parsed(" \n\t"));
  EXPECT_FALSE(parsed("/* only a comment */ // and another"));
  EXPECT_FALSE(parsed("\xEF\xBB\xBF"));
}

TEST(StringsFile, NeedsNoBraces) {
  const std::string_view file =
      "/* status */\n\"PageProgress\" = \"Seite %d\";\n\n// error\nDriverCommError = 'x';\n";
  EXPECT_EQ(entryText(file, "PageProgress"), "Seite %d");
  EXPECT_EQ(entryText(file, "DriverCommError"), "x");
  EXPECT_EQ(parsed(file)->dictionary()->size(), 2U);
}

TEST(StringsFile, MayBeUtf16WithAMark) {
  EXPECT_EQ(entryText("\xFE\xFF\0k\0=\0\"\x20\xAC\0\"\0;"sv, "k"), "\xE2\x82\xAC");
  EXPECT_EQ(entryText("\xFF\xFEk\0=\0\"\0\xAC\x20\"\0;\0"sv, "k"), "\xE2\x82\xAC");
}

TEST(StringsFile, IsRefusedAsAWholeWithAnyMistake) {
  for (const char* text : {"a = b; c = d", "a = b; }", "a = b; c", "a = b; { c = d; }", "a ="}) {
    EXPECT_FALSE(parsed(text)) << text;
  }
}

}  // namespace
}  // namespace gdi
