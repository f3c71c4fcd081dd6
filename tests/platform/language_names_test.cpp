// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/language_names.h"

#include <gtest/gtest.h>

namespace gdi {
namespace {

using Names = std::vector<std::string>;

TEST(LanguageNames, AreTheMostSpecificFirstWithoutTheCodeset) {
  EXPECT_EQ(languageNames("de_DE.UTF-8@euro"), (Names{"de_DE@euro", "de_DE", "de"}));
  EXPECT_EQ(languageNames("zh_TW.Big5"), (Names{"zh_TW", "zh"}));
  EXPECT_EQ(languageNames("pt-BR"), (Names{"pt-BR", "pt"}));
  EXPECT_EQ(languageNames("zh_Hant_TW"), (Names{"zh_Hant_TW", "zh_Hant", "zh"}));
}

TEST(LanguageNames, OfABareLanguageAreItself) {
  EXPECT_EQ(languageNames("fr"), Names{"fr"});
  EXPECT_EQ(languageNames("fr.UTF-8"), Names{"fr"});
  EXPECT_EQ(languageNames("C"), Names{"C"});
}

TEST(LanguageNames, OfNothingAreNone) {
  EXPECT_EQ(languageNames(""), Names());
  EXPECT_EQ(languageNames(".UTF-8"), Names());
}

TEST(LanguageNames, OfATextTooLongForAFolderAreNone) {
  const auto named = [](std::size_t length) { return languageNames(std::string(length, 'a')); };
  EXPECT_EQ(named(249).size(), 1U);  // with ".lproj" the 255 bytes that a name may have
  EXPECT_TRUE(named(250).empty());
  std::string manyParts;
  while (manyParts.size() < 100000) {
    manyParts += "a_";
  }
  EXPECT_TRUE(languageNames(manyParts).empty());
}

TEST(LanguageNames, NeverHoldAPath) {
  EXPECT_EQ(languageNames("../../etc/de"), Names());
  EXPECT_EQ(languageNames("/tmp/de"), Names());
  EXPECT_EQ(languageNames("de_../x"), (Names{"de_", "de"}));  // codeset "./x"
  EXPECT_EQ(languageNames("de_D/E@euro"), Names{"de"});
  EXPECT_EQ(languageNames("de_DE@a/b"), (Names{"de_DE", "de"}));
  EXPECT_EQ(languageNames("d é"), Names());
}

}  // namespace
}  // namespace gdi
