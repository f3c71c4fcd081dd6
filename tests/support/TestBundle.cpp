// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/TestBundle.h"

#include "platform/NSBundle.h"

namespace gdi::test {

TestBundle::TestBundle(std::initializer_list<Texts::value_type> information)
    : formerPath_(NSBundle::mainBundle().resourcePath()) {
  std::string entries;
  for (const auto& [key, value] : information) {
    entries.append("<key>").append(key).append("</key>");
    entries.append("<string>").append(value).append("</string>\n");
  }
  folder_.write("Info.plist", R"(<?xml version="1.0" encoding="UTF-8"?>)"
                              "\n<plist version=\"1.0\"><dict>\n" +
                                  entries + "</dict></plist>\n");
  NSBundle::setMainBundle(folder_.path());
}

TestBundle::~TestBundle() {
  NSBundle::setMainBundle(formerPath_);
}

void TestBundle::setStrings(const std::string& language, const Texts& strings) {
  std::string table;
  for (const auto& [key, value] : strings) {
    table.append("\"").append(key).append("\" = \"").append(value).append("\";\n");
  }
  folder_.write(language + ".lproj/Localizable.strings", table);
}

}  // namespace gdi::test
