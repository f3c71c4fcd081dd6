// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <limits>

#include <gtest/gtest.h>
#include <plist/plist.h>

#include "platform/PropertyList.h"
#include "tests/platform/platform_helpers.h"

namespace gdi {
namespace {

using namespace std::string_view_literals;

PropertyListValue real(double number) {
  return {.value = number};
}
PropertyListValue text(const char* characters) {
  return {.value = std::string(characters)};
}

std::string xml(const std::string& contents) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">" + contents +
         "</plist>\n";
}

// Frees `list`.
std::string binary(plist_t list) {
  char* bytes = nullptr;
  std::uint32_t length = 0;
  plist_to_bin(list, &bytes, &length);
  std::string result(bytes, length);
  plist_to_bin_free(bytes);
  plist_free(list);
  return result;
}

// One of everything, in the library's own terms.
plist_t oneOfEach() {
  plist_t array = plist_new_array();
  plist_array_append_item(array, plist_new_string("a"));
  plist_array_append_item(array, plist_new_dict());
  plist_t list = plist_new_dict();
  plist_dict_set_item(list, "text", plist_new_string("\xC3\xA9\xE2\x82\xAC"));
  plist_dict_set_item(list, "empty", plist_new_string(""));
  plist_dict_set_item(list, "integer", plist_new_uint(300));
  plist_dict_set_item(list, "negative", plist_new_uint(static_cast<std::uint64_t>(-4)));
  plist_dict_set_item(list, "real", plist_new_real(1.5));
  plist_dict_set_item(list, "flag", plist_new_bool(1));
  plist_dict_set_item(list, "data", plist_new_data("\0\xFF", 2));
  plist_dict_set_item(list, "date", plist_new_date(86400, 0));
  plist_dict_set_item(list, "array", array);
  return list;
}

void expectOneOfEach(const std::optional<PropertyListValue>& list) {
  ASSERT_TRUE(list);
  ASSERT_EQ(list->dictionary()->size(), 9U);
  EXPECT_EQ(*list->find("text")->string(), "\xC3\xA9\xE2\x82\xAC");
  EXPECT_EQ(*list->find("empty")->string(), "");
  EXPECT_EQ(std::get<std::int64_t>(list->find("integer")->value), 300);
  EXPECT_EQ(std::get<std::int64_t>(list->find("negative")->value), -4);
  EXPECT_EQ(std::get<double>(list->find("real")->value), 1.5);
  EXPECT_EQ(std::get<bool>(list->find("flag")->value), true);
  EXPECT_EQ(std::get<PropertyListValue::Bytes>(list->find("data")->value),
            (PropertyListValue::Bytes{0x00, 0xFF}));
  EXPECT_EQ(std::get<double>(list->find("date")->value), 86400);
  const PropertyListValue::Array& array = *list->find("array")->array();
  ASSERT_EQ(array.size(), 2U);
  EXPECT_EQ(*array[0].string(), "a");
  EXPECT_TRUE(array[1].dictionary()->empty());
}

TEST(PropertyList, IsReadFromBinary) {
  expectOneOfEach(parsed(binary(oneOfEach())));
}

TEST(PropertyList, IsReadFromXML) {
  expectOneOfEach(parsed(
      xml("<dict><key>text</key><string>&#xE9;\xE2\x82\xAC</string><key>empty</key><string/>"
          "<key>integer</key><integer>300</integer><key>negative</key><integer>-4</integer>"
          "<key>real</key><real>1.5</real><key>flag</key><true/><key>data</key><data>AP8=</data>"
          "<key>date</key><date>2001-01-02T00:00:00Z</date>"
          "<key>array</key><array><string>a</string><dict/></array></dict>")));
}

TEST(PropertyList, IsXMLByItsBeginning) {
  const std::string list = "<plist><string>a</string></plist>";
  EXPECT_EQ(parsedText(list), "a");
  EXPECT_EQ(parsedText(" \r\n\t" + list), "a");
  EXPECT_EQ(parsedText("\xEF\xBB\xBF" + list), "a");
  EXPECT_EQ(parsedText("<!DOCTYPE plist>" + list), "a");
  EXPECT_EQ(parsedText("<?xml version=\"1.0\"?>" + list), "a");
}

TEST(PropertyList, IsReadFromXMLInUtf16) {
  std::string list("\xFE\xFF");
  for (const char c : "<plist><string>a</string></plist>"sv) {
    list.append({'\0', c});
  }
  EXPECT_EQ(parsedText(list), "a");
}

TEST(PropertyList, MayEndWithComments) {
  EXPECT_EQ(parsedText(xml("<string>a</string>") + "<!-- </plist> x -->\n<!-- b -->"), "a");
  EXPECT_EQ(parsedText(xml("<!-- </plist> --><string><![CDATA[</plist>]]></string>")), "</plist>");
}

TEST(PropertyList, IsRefusedWithTrailingRubbish) {
  const std::string list = xml("<string>a</string>");
  EXPECT_FALSE(parsed(list + "x"));
  EXPECT_FALSE(parsed(list + list));
  EXPECT_FALSE(parsed(list + "x</plist>"));
  EXPECT_FALSE(parsed(list + "<!-- -->x"));
  EXPECT_FALSE(parsed(binary(plist_new_string("a")) + "x"));
}

TEST(PropertyList, LetsTheLaterOfTwoEqualKeysCount) {
  const auto list =
      parsed(xml("<dict><key>a</key><string>1</string><key>a</key><string>2</string></dict>"));
  ASSERT_TRUE(list);
  EXPECT_EQ(list->find("a")->text(), "2");
}

TEST(PropertyListValue, IsFoundInADictionaryOnly) {
  const auto list = parsed("{ a = (b); }");
  EXPECT_NE(list->find("a"), nullptr);
  EXPECT_EQ(list->find("b"), nullptr);
  EXPECT_EQ(list->find("a")->find("b"), nullptr);
  EXPECT_EQ(list->array(), nullptr);
  EXPECT_EQ(list->string(), nullptr);
  EXPECT_EQ(list->find("a")->dictionary(), nullptr);
}

TEST(PropertyListValue, HasTheIntegerOfNumbersAndTexts) {
  EXPECT_EQ(PropertyListValue{.value = std::int64_t{-7}}.intValue(), -7);
  EXPECT_EQ(real(2.9).intValue(), 2);
  EXPECT_EQ(real(-2.9).intValue(), -2);
  EXPECT_EQ(PropertyListValue{.value = true}.intValue(), 1);
  EXPECT_EQ(PropertyListValue{.value = false}.intValue(), 0);
  EXPECT_EQ(text(" 4 bits").intValue(), 4);
  EXPECT_EQ(text("four").intValue(), 0);
  EXPECT_EQ(parsed("(1)")->intValue(), 0);
  EXPECT_EQ(parsed("<01>")->intValue(), 0);
}

TEST(PropertyListValue, KeepsTheIntegerOfARealWithinRange) {
  using Limits = std::numeric_limits<std::int64_t>;
  EXPECT_EQ(real(1e300).intValue(), Limits::max());
  EXPECT_EQ(real(9223372036854775808.0).intValue(), Limits::max());
  EXPECT_EQ(real(-9223372036854775808.0).intValue(), Limits::min());
  EXPECT_EQ(real(-1e300).intValue(), Limits::min());
  EXPECT_EQ(real(std::numeric_limits<double>::quiet_NaN()).intValue(), 0);
}

TEST(PropertyListValue, HasTheTextOfEverythingButContainersAndData) {
  EXPECT_EQ(text("a").text(), "a");
  EXPECT_EQ(text("").text(), "");
  EXPECT_EQ(PropertyListValue{.value = std::int64_t{-7}}.text(), "-7");
  EXPECT_EQ(real(1.5).text(), "1.5");
  EXPECT_EQ(PropertyListValue{.value = true}.text(), "true");
  EXPECT_EQ(PropertyListValue{.value = false}.text(), "false");
  EXPECT_EQ(parsed("()")->text(), std::nullopt);
  EXPECT_EQ(parsed("{}")->text(), std::nullopt);
  EXPECT_EQ(parsed("<01>")->text(), std::nullopt);
}

}  // namespace
}  // namespace gdi
