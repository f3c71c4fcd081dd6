// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The files in resources/ as they ship.

#include <algorithm>
#include <iterator>
#include <set>

#include <gtest/gtest.h>

#include "platform/CFPreferences.h"
#include "platform/Gestalt.h"
#include "platform/NSBundle.h"
#include "tests/platform/platform_helpers.h"

namespace gdi {
namespace {

namespace fs = std::filesystem;

const fs::path kResources = SHIPPED_RESOURCES;

const std::set<std::string> kLanguages{"de", "en", "es", "fr", "it", "ja",    "ko",
                                       "nl", "pl", "pt", "ru", "sv", "zh_CN", "zh_TW"};

std::string contentsOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

PropertyListValue stringsOf(const std::string& language) {
  const auto strings = parsed(contentsOf(kResources / (language + ".lproj/Localizable.strings")));
  EXPECT_TRUE(strings) << language;
  return strings.value_or(PropertyListValue{});
}

TEST(ShippedStrings, AreThereForEveryLanguage) {
  std::set<std::string> found;
  for (const fs::directory_entry& entry : fs::directory_iterator(kResources)) {
    if (entry.path().extension() == ".lproj") {
      found.insert(entry.path().stem());
    }
  }
  EXPECT_EQ(found, kLanguages);
}

TEST(ShippedStrings, HaveBothKeysAndNoOther) {
  for (const std::string& language : kLanguages) {
    const PropertyListValue strings = stringsOf(language);
    ASSERT_NE(strings.dictionary(), nullptr) << language;
    EXPECT_EQ(strings.dictionary()->size(), 2U) << language;
    for (const char* key : {"PageProgress", "DriverCommError"}) {
      ASSERT_NE(strings.find(key), nullptr) << language << ' ' << key;
      EXPECT_NE(strings.find(key)->text().value_or(""), "") << language << ' ' << key;
    }
  }
}

TEST(ShippedStrings, HaveExactlyOnePageNumberAndNoOtherPercentSign) {
  for (const std::string& language : kLanguages) {
    const std::string progress = stringsOf(language).find("PageProgress")->text().value_or("");
    EXPECT_EQ(std::ranges::count(progress, '%'), 1) << language;
    EXPECT_NE(progress.find("%d"), std::string::npos) << language;
    const std::string error = stringsOf(language).find("DriverCommError")->text().value_or("");
    EXPECT_EQ(std::ranges::count(error, '%'), 0) << language;
  }
}

TEST(ShippedStrings, AreOneLineEach) {
  for (const std::string& language : kLanguages) {
    for (const char* key : {"PageProgress", "DriverCommError"}) {
      const std::string text = stringsOf(language).find(key)->text().value_or("\n");
      EXPECT_EQ(text.find_first_of("\r\n"), std::string::npos) << language << ' ' << key;
    }
  }
}

TEST(ShippedStrings, AreFoundByTheSpoolersLanguage) {
  NSBundle bundle(kResources);
  CFPreferencesSetAppValue("AppleLanguages", {"de_AT.UTF-8"});
  EXPECT_EQ(bundle.localizedStringForKey("PageProgress", "x"), "Seite %d wird verarbeitet");
  CFPreferencesSetAppValue("AppleLanguages", {"en_GB.UTF-8"});
  EXPECT_EQ(bundle.localizedStringForKey("PageProgress", "x"), "Processing page %d");
  EXPECT_EQ(bundle.localizedStringForKey("DriverCommError", "x"),
            "Unable to communicate with printer");
  CFPreferencesSetAppValue("AppleLanguages", {});
}

TEST(ShippedInformation, HasTheProloguesThreeParts) {
  EXPECT_EQ(NSBundle(kResources).objectForInfoDictionaryKey("CUPSFileHeader"),
            "\x1B%-12345X@PJL JOB\r\n@PJL ENTER LANGUAGE=GDI\r\n");
}

TEST(ShippedInformation, HasAPrologueOfASCIIOnly) {
  const std::string prologue =
      NSBundle(kResources).objectForInfoDictionaryKey("CUPSFileHeader").value_or("\x80");
  EXPECT_TRUE(std::ranges::all_of(prologue, [](char c) { return c > 0; }));
}

TEST(ShippedInformation, HasTheModelsOtherSettings) {
  NSBundle bundle(kResources);
  EXPECT_EQ(bundle.objectForInfoDictionaryKey("SolvaneFlipDuplex"), "true");
  EXPECT_EQ(bundle.objectForInfoDictionaryKey("cupsICCProfile"), "default_cmyk.icc");
  EXPECT_EQ(bundle.objectForInfoDictionaryKey("MacOS102SourceProfile"), std::nullopt);
}

TEST(ShippedInformation, StatesASystemThatMatchesColoursItself) {
  NSBundle::setMainBundle(kResources);
  std::int32_t version = 0;
  EXPECT_EQ(Gestalt(gestaltSystemVersion, &version), 0);
  EXPECT_EQ(version, 0x1040);
}

}  // namespace
}  // namespace gdi
