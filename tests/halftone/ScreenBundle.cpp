// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/halftone/ScreenBundle.h"

#include <initializer_list>
#include <string_view>

namespace gdi::test {

namespace {

using namespace std::string_view_literals;

std::string screenSet(const std::string& key, int depth, const std::string& screens) {
  return key + " = { Depth = " + std::to_string(depth) + "; Screens = (" + screens + "); };\n";
}

std::string screenSets() {
  std::string sets;
  for (const char* paper : {"Plain", "Thin"}) {
    for (const char* mode : {"Color", "Mono"}) {
      sets += screenSet(std::string("Fast") + paper + mode, 1, "one, one, one, one");
      sets += screenSet(std::string("Standard") + paper + mode, 2, "two, two, two, two");
      sets += screenSet(std::string("Fine") + paper + mode, 4, "cyan, magenta, yellow, black");
    }
  }
  sets += screenSet("FastNegativeMono", 1, "one, one, one, negative");
  return sets + screenSet("FastLabelsMono", 2, "two, two, two, two");
}

}  // namespace

ScreenBundle::ScreenBundle(const TestBundle::Texts& information, const std::string& tables) {
  TemporaryFolder& folder = this->folder();
  std::string dictionary;
  for (const auto& [key, value] : information) {
    dictionary += "\"" + key + "\" = \"" + value + "\";\n";
  }
  folder.write("Info.plist", "{\n" + dictionary + tables + "}\n");
  folder.write("ScreenSets.plist", "{ ScreenSets = {\n" + screenSets() + "}; }\n");
  // Version, width, height, input depth, output depth; the table's entries from the high bits on.
  folder.write("Screens/one", "1 1 1 1 1\0\x40"sv);
  folder.write("Screens/negative", "1 1 1 1 1\0\x80"sv);
  folder.write("Screens/two", "1 1 1 1 2\0\x30"sv);
  folder.write("Screens/cyan", "1 1 1 2 4\0\x01\x23"sv);
  folder.write("Screens/magenta", "1 1 1 2 4\0\x04\x56"sv);
  folder.write("Screens/yellow", "1 1 1 2 4\0\x07\x89"sv);
  folder.write("Screens/black", "1 1 1 2 4\0\x0C\xDE"sv);
}

void ScreenBundle::setStrings(const std::string& language, const TestBundle::Texts& strings) {
  bundle_.setStrings(language, strings);
}

}  // namespace gdi::test
