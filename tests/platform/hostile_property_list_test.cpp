// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <vector>

#include <gtest/gtest.h>

#include "tests/platform/platform_helpers.h"

namespace gdi {
namespace {

using namespace std::string_view_literals;
using Object = std::string;

std::string repeated(std::string_view part, int count) {
  std::string result;
  for (int i = 0; i < count; ++i) {
    result += part;
  }
  return result;
}

std::string bigEndian(std::uint64_t number, int size) {
  std::string bytes;
  for (int i = size - 1; i >= 0; --i) {
    bytes.push_back(static_cast<char>(number >> (8 * i) & 0xFF));
  }
  return bytes;
}

// A binary property list of these objects, the first being the root; offsets take two bytes,
// references one.
std::string binary(const std::vector<Object>& objects) {
  std::string file = "bplist00";
  std::string table;
  for (const Object& object : objects) {
    table += bigEndian(file.size(), 2);
    file += object;
  }
  const std::uint64_t tableOffset = file.size();
  return file + table + bigEndian(0, 6) + "\x02\x01" + bigEndian(objects.size(), 8) +
         bigEndian(0, 8) + bigEndian(tableOffset, 8);
}

Object arrayOf(std::initializer_list<int> references) {
  Object object(1, static_cast<char>(0xA0 + references.size()));
  for (const int reference : references) {
    object.push_back(static_cast<char>(reference));
  }
  return object;
}

// A text of at most 14 characters.
Object textOf(std::string_view characters) {
  return Object(1, static_cast<char>(0x50 + characters.size())).append(characters);
}

TEST(HostilePropertyList, TheBuilderOfTheseTestsMakesValidLists) {
  const auto list = parsed(binary({arrayOf({1, 1}), textOf("hi")}));
  ASSERT_TRUE(list);
  ASSERT_EQ(list->array()->size(), 2U);
  EXPECT_EQ((*list->array())[1].text(), "hi");
}

TEST(HostilePropertyList, SixtyFourLevelsAreRead) {
  EXPECT_TRUE(parsed(repeated("(", 64) + "a" + repeated(")", 64)));
  EXPECT_TRUE(parsed(repeated("{a=", 64) + "a;" + repeated("};", 63) + "}"));
  EXPECT_TRUE(parsed("<plist>" + repeated("<array>", 64) + "<true/>" + repeated("</array>", 64) +
                     "</plist>"));
  std::vector<Object> objects;
  for (int i = 1; i <= 64; ++i) {
    objects.push_back(arrayOf({i}));
  }
  objects.emplace_back("\x09");  // true
  EXPECT_TRUE(parsed(binary(objects)));
}

TEST(HostilePropertyList, SixtyFiveLevelsAreRefused) {
  EXPECT_FALSE(parsed(repeated("(", 65) + "a" + repeated(")", 65)));
  EXPECT_FALSE(parsed(repeated("{a=", 65) + "a;" + repeated("};", 64) + "}"));
  EXPECT_FALSE(parsed("<plist>" + repeated("<array>", 65) + "<true/>" + repeated("</array>", 65) +
                      "</plist>"));
  std::vector<Object> objects;
  for (int i = 1; i <= 65; ++i) {
    objects.push_back(arrayOf({i}));
  }
  objects.emplace_back("\x09");
  EXPECT_FALSE(parsed(binary(objects)));
}

TEST(HostilePropertyList, DeepNestingOverflowsNoStack) {
  EXPECT_FALSE(parsed(repeated("(", 1000000)));
  EXPECT_FALSE(parsed(repeated("{a=", 1000000)));
  EXPECT_FALSE(parsed("<plist>" + repeated("<array>", 500000) + "</plist>"));
  EXPECT_FALSE(parsed("<plist>" + repeated("<dict><key>a</key>", 200000) + "</plist>"));
  EXPECT_FALSE(parsed("<plist>" + repeated("<array><!--</array>-->", 100000) + "</plist>"));
}

TEST(HostilePropertyList, AnObjectThatHoldsItselfIsRefused) {
  EXPECT_FALSE(parsed(binary({arrayOf({0})})));
  EXPECT_FALSE(parsed(binary({arrayOf({1}), arrayOf({0})})));
}

// 2^60 texts when every reference is followed.
TEST(HostilePropertyList, ASmallFileThatStandsForAnEnormousListIsRefused) {
  std::vector<Object> objects;
  for (int i = 1; i <= 60; ++i) {
    objects.push_back(arrayOf({i, i}));
  }
  objects.emplace_back(textOf("a"));
  EXPECT_FALSE(parsed(binary(objects)));
}

TEST(HostilePropertyList, ALongTextReferredToVeryOftenIsRefused) {
  const Object text = Object("\x5F\x12") + bigEndian(30000, 4) + std::string(30000, 'a');
  const Object many = Object("\xAF\x12") + bigEndian(20000, 4) + std::string(20000, '\x01');
  EXPECT_TRUE(parsed(binary({arrayOf({1, 1}), text})));
  EXPECT_FALSE(parsed(binary({many, text})));
}

// As a key, it would make the property list library end the program.
TEST(HostilePropertyList, ANulInABinaryTextIsRefused) {
  const Object dictionary = "\xD1\x01\x02";
  const Object value = textOf("v");
  EXPECT_TRUE(parsed(binary({dictionary, textOf("ab"), value})));
  EXPECT_FALSE(parsed(binary({dictionary, textOf("a\0"sv), value})));
  EXPECT_FALSE(parsed(binary({dictionary, Object("\x62\0a\0\0"sv), value})));  // UTF-16
}

TEST(HostilePropertyList, AKeyThatIsNoTextIsRefused) {
  EXPECT_FALSE(parsed(binary({"\xD1\x01\x01", "\x10\x05"})));
  EXPECT_FALSE(parsed("<plist><dict><string>a</string><string>b</string></dict></plist>"));
}

TEST(HostilePropertyList, ReferencesBeyondTheListAreRefused) {
  EXPECT_TRUE(parsed(binary({arrayOf({1}), textOf("a")})));
  EXPECT_FALSE(parsed(binary({arrayOf({2}), textOf("a")})));
  EXPECT_FALSE(parsed(binary({})));
}

TEST(HostilePropertyList, SizesBeyondTheFileAreRefused) {
  EXPECT_FALSE(parsed(binary({"\x5E\x61"})));  // 14 characters, one there
  EXPECT_FALSE(parsed(binary({"\x13"})));      // integers without their bytes
  EXPECT_FALSE(parsed(binary({"\x1F"})));
  EXPECT_FALSE(parsed(binary({"\x5F"})));  // no size
  for (const char kind : {'\x4F', '\x5F', '\x6F', '\xAF', '\xDF'}) {
    for (const int shift : {15, 31, 59, 60, 61, 62, 63}) {
      const std::string size = bigEndian(std::uint64_t{1} << shift, 8);
      EXPECT_FALSE(parsed(binary({Object(1, kind) + "\x13" + size}))) << kind << shift;
    }
  }
}

TEST(HostilePropertyList, ObjectsOfUnknownKindsAreRefused) {
  EXPECT_FALSE(parsed(binary({"\x71\x61"})));
  EXPECT_FALSE(parsed(binary({"\xF0"})));
  EXPECT_FALSE(parsed(binary({"\x5F\x52\x61\x62"})));  // a size that is a text
}

TEST(HostilePropertyList, EveryBeginningOfAListIsRefused) {
  const std::vector<std::string> lists{
      binary({arrayOf({1, 2}), textOf("hi"), "\x10\x05"}),
      "<?xml version=\"1.0\"?><plist><dict><key>a</key><data>AP8=</data></dict></plist>",
      R"({ a = (<00>, "\U20ac"); })"};
  for (const std::string& list : lists) {
    ASSERT_TRUE(parsed(list));
    // A beginning of "bplist00" alone is a bare text.
    for (std::size_t length = list.starts_with('b') ? 8 : 0; length < list.size(); ++length) {
      EXPECT_FALSE(parsed(list.substr(0, length))) << length;
    }
  }
}

// Nothing is expected of the answers; the run must end, and under the sanitizers without a report.
TEST(HostilePropertyList, NoChangedByteDoesHarm) {
  const std::vector<std::string> lists{
      binary({"\xD2\x01\x02\x03\x01", textOf("a"), "\x61\x20\xAC", arrayOf({1, 2}),
              "\x23\1\2\3\4\5\6\7\x08"}),
      "<plist><dict><key>a</key><array><real>1</real><date>2001-01-02T00:00:00Z</date>"
      "<string>&amp;<![CDATA[b]]></string></array></dict></plist>",
      R"({ a = (<00>, "\U20ac\033", b /* c */); })"};
  int read = 0;
  for (const std::string& list : lists) {
    for (std::size_t index = 0; index < list.size(); ++index) {
      for (int byte = 0; byte < 256; ++byte) {
        std::string changed = list;
        changed[index] = static_cast<char>(byte);
        read += parsed(changed) ? 1 : 0;
      }
    }
  }
  EXPECT_GT(read, 0);
}

TEST(HostilePropertyList, BrokenUtf8IsRefused) {
  EXPECT_FALSE(parsed("\"\xFF\""));
  EXPECT_FALSE(parsed("<plist><string>\xFF</string></plist>"));
  EXPECT_FALSE(parsed("<plist><string>&#xD800;</string></plist>"));
  EXPECT_FALSE(parsed(binary({"\x51\xFF"})));
}

TEST(HostilePropertyList, AVeryLargeFileIsRefused) {
  const std::string half(std::size_t{2} << 20, 'a');
  EXPECT_TRUE(parsed("\"" + half + "\""));
  EXPECT_FALSE(parsed("\"" + half + half + "\""));
}

}  // namespace
}  // namespace gdi
