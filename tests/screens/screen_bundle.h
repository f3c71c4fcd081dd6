// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A test whose main bundle is a fresh folder with four small screens.
//
// The screens have one cell, two input levels and one bit out: "ident" gives the level itself,
// "invert" the other one, "zeros" and "ones" always the same.
#pragma once

#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "platform/NSBundle.h"
#include "tests/screens/screen_bytes.h"

namespace gdi {

class ScreenBundleTest : public testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = testing::TempDir() + "screens-XXXXXX";
    folder_ = mkdtemp(pattern.data());
    std::filesystem::create_directory(folder_ / "Screens");
    addScreen("ident", screenFile("1 1 1 1 1", {0x40}));
    addScreen("invert", screenFile("1 1 1 1 1", {0x80}));
    addScreen("zeros", screenFile("1 1 1 1 1", {0x00}));
    addScreen("ones", screenFile("1 1 1 1 1", {0xC0}));
    NSBundle::setMainBundle(folder_);
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  void addScreen(const std::string& name, const Bytes& file) const {
    std::ofstream(folder_ / "Screens" / name, std::ios::binary)
        .write(reinterpret_cast<const char*>(file.data()),
               static_cast<std::streamsize>(file.size()));
  }
  // Makes ScreenSets.plist an XML property list of that value.
  void setScreenSets(std::string_view value) const {
    std::ofstream(folder_ / "ScreenSets.plist")
        << R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0">)" << value << "</plist>";
  }
  // Makes it one set with the key TestSet and those entries.
  void setTestSet(const std::string& entries) const {
    setScreenSets("<dict><key>ScreenSets</key><dict><key>TestSet</key><dict>" + entries +
                  "</dict></dict></dict>");
  }
  static std::string depth(int value) {
    return "<key>Depth</key><integer>" + std::to_string(value) + "</integer>";
  }
  static std::string screens(std::initializer_list<std::string_view> names) {
    std::string text = "<key>Screens</key><array>";
    for (const std::string_view name : names) {
      text.append("<string>").append(name).append("</string>");
    }
    return text + "</array>";
  }

  std::filesystem::path folder_;
};

}  // namespace gdi
