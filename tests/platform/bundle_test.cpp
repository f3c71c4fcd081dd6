// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <gtest/gtest.h>

#include "platform/CFPreferences.h"
#include "platform/NSBundle.h"
#include "tests/platform/platform_helpers.h"

namespace gdi {
namespace {

namespace fs = std::filesystem;
using namespace std::string_view_literals;

class Bundle : public testing::Test {
 protected:
  void TearDown() override { CFPreferencesSetAppValue("AppleLanguages", {}); }

  const TemporaryFolder folder_;
  NSBundle bundle_{folder_.path() / "resources"};

  void write(const fs::path& name, std::string_view contents) const {
    folder_.write("resources" / name, contents);
  }
};

TEST_F(Bundle, AnswersTextsOfTheInformationDictionary) {
  write("Info.plist", R"({ CUPSFileHeader = "\033%-12345X"; Empty = ""; List = (a); })");
  EXPECT_EQ(bundle_.objectForInfoDictionaryKey("CUPSFileHeader"), "\x1B%-12345X");
  EXPECT_EQ(bundle_.objectForInfoDictionaryKey("Empty"), "");
  EXPECT_EQ(bundle_.objectForInfoDictionaryKey("List"), std::nullopt);
  EXPECT_EQ(bundle_.objectForInfoDictionaryKey("cupsfileheader"), std::nullopt);
}

TEST_F(Bundle, TakesBooleansAndNumbersOfTheInformationDictionaryAsTexts) {
  write("Info.plist",
        "<plist><dict><key>SolvaneFlipDuplex</key><true/><key>Depth</key><integer>4</integer>"
        "</dict></plist>");
  EXPECT_EQ(bundle_.objectForInfoDictionaryKey("SolvaneFlipDuplex"), "true");
  EXPECT_EQ(bundle_.objectForInfoDictionaryKey("Depth"), "4");
}

TEST_F(Bundle, ReadsTheInformationDictionaryOnce) {
  write("Info.plist", "{ a = first; }");
  EXPECT_EQ(bundle_.objectForInfoDictionaryKey("a"), "first");
  write("Info.plist", "{ a = second; }");
  EXPECT_EQ(bundle_.objectForInfoDictionaryKey("a"), "first");
}

TEST_F(Bundle, AnswersNothingWithoutAnInformationDictionary) {
  EXPECT_EQ(bundle_.objectForInfoDictionaryKey("a"), std::nullopt);
}

TEST_F(Bundle, AnswersNothingWhenTheInformationDictionaryIsNone) {
  write("Info.plist", "(a, b)");
  EXPECT_EQ(bundle_.objectForInfoDictionaryKey("a"), std::nullopt);
}

TEST_F(Bundle, AnswersNothingWhenTheInformationDictionaryIsBroken) {
  write("Info.plist", "{ a = b; ");
  EXPECT_EQ(bundle_.objectForInfoDictionaryKey("a"), std::nullopt);
}

TEST_F(Bundle, FindsFilesByNameTypeAndFolder) {
  write("ScreenSets.plist", "{}");
  write("Screens/plain", "x");
  const fs::path root = bundle_.resourcePath();
  EXPECT_EQ(bundle_.pathForResource("ScreenSets", "plist"), root / "ScreenSets.plist");
  EXPECT_EQ(bundle_.pathForResource("ScreenSets.plist", ""), root / "ScreenSets.plist");
  EXPECT_EQ(bundle_.pathForResource("plain", "", "Screens"), root / "Screens" / "plain");
  EXPECT_EQ(bundle_.pathForResource("plain", ""), std::nullopt);
  EXPECT_EQ(bundle_.pathForResource("ScreenSets", ""), std::nullopt);
  EXPECT_EQ(bundle_.pathForResource("ScreenSets", "txt"), std::nullopt);
}

TEST_F(Bundle, FindsNoFolders) {
  write("Screens/plain", "x");
  EXPECT_EQ(bundle_.pathForResource("Screens", ""), std::nullopt);
  EXPECT_EQ(bundle_.pathForResource("", "", "Screens"), std::nullopt);
  EXPECT_EQ(bundle_.pathForResource("", ""), std::nullopt);
}

TEST_F(Bundle, RefusesNamesThatWouldLeaveIt) {
  folder_.write("outside.txt", "x");
  write("Screens/plain", "x");
  EXPECT_EQ(bundle_.pathForResource("../outside", "txt"), std::nullopt);
  EXPECT_EQ(bundle_.pathForResource("outside", "txt", ".."), std::nullopt);
  EXPECT_EQ(bundle_.pathForResource("outside", "txt", "Screens/../.."), std::nullopt);
  EXPECT_EQ(bundle_.pathForResource("../Screens/plain", "", "Screens"), std::nullopt);
  const std::string absolute = folder_.path() / "outside";
  EXPECT_EQ(bundle_.pathForResource(absolute, "txt"), std::nullopt);
  EXPECT_EQ(bundle_.pathForResource("outside", "txt", folder_.path().native()), std::nullopt);
  EXPECT_EQ(bundle_.pathForResource("Screens/plain\0x"sv, ""), std::nullopt);
  EXPECT_TRUE(bundle_.pathForResource("Screens/plain", ""));
}

TEST_F(Bundle, AllowsDotsWithinNames) {
  write("a..b", "x");
  EXPECT_TRUE(bundle_.pathForResource("a..b", ""));
  EXPECT_TRUE(bundle_.pathForResource("a.", "b"));
}

class Localisation : public Bundle {
 protected:
  void SetUp() override {
    write("de.lproj/Localizable.strings", "a = deutsch; b = \"nur de\"; list = (x);");
    write("de_AT.lproj/Localizable.strings", "a = oesterreichisch;");
    write("de_DE@euro.lproj/Localizable.strings", "a = euro;");
    write("fr.lproj/Localizable.strings", "a = francais; c = \"que fr\";");
    write("fr.lproj/Other.strings", "a = autre;");
  }
  static void prefer(std::vector<std::string> languages) {
    CFPreferencesSetAppValue("AppleLanguages", std::move(languages));
  }
  std::string localised(std::string_view key) {
    return bundle_.localizedStringForKey(key, "built in");
  }
};

TEST_F(Localisation, IsTheValueGivenWithoutAPreferredLanguage) {
  EXPECT_EQ(localised("a"), "built in");
}

TEST_F(Localisation, IsOfTheMostSpecificLanguageThatHasTheKey) {
  prefer({"de_AT.UTF-8"});
  EXPECT_EQ(localised("a"), "oesterreichisch");
  EXPECT_EQ(localised("b"), "nur de");
  prefer({"de_DE.UTF-8@euro"});
  EXPECT_EQ(localised("a"), "euro");
  prefer({"de_DE.UTF-8"});
  EXPECT_EQ(localised("a"), "deutsch");
}

TEST_F(Localisation, TriesThePreferredLanguagesInTheirOrder) {
  prefer({"ja_JP", "de", "fr"});
  EXPECT_EQ(localised("a"), "deutsch");
  EXPECT_EQ(localised("c"), "que fr");
}

TEST_F(Localisation, IsTheValueGivenWhenNoLanguageHasTheKey) {
  prefer({"de_AT.UTF-8"});
  EXPECT_EQ(localised("missing"), "built in");
  EXPECT_EQ(localised("list"), "built in");
  prefer({"C"});
  EXPECT_EQ(localised("a"), "built in");
}

TEST_F(Localisation, CanUseAnotherTable) {
  prefer({"fr"});
  EXPECT_EQ(bundle_.localizedStringForKey("a", "built in", "Other"), "autre");
  EXPECT_EQ(bundle_.localizedStringForKey("a", "built in", "../fr.lproj/Other"), "built in");
}

TEST_F(Localisation, SkipsATableThatIsBroken) {
  write("de_CH.lproj/Localizable.strings", "a = \"kaputt;");
  prefer({"de_CH"});
  EXPECT_EQ(localised("a"), "deutsch");
}

TEST_F(Localisation, LooksNowhereElseForAHostileLanguage) {
  folder_.write("evil.lproj/Localizable.strings", "a = evil;");
  prefer({"../evil", (folder_.path() / "evil").native()});
  EXPECT_EQ(localised("a"), "built in");
}

}  // namespace
}  // namespace gdi
