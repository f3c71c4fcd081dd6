// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "filter/job_options.h"

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace gdi {
namespace {

using Pairs = std::vector<std::pair<std::string, std::string>>;

Pairs parsed(const char* text) {
  Pairs pairs;
  for (const JobOption& option : parseJobOptions(text)) {
    pairs.emplace_back(option.name, option.value);
  }
  return pairs;
}

TEST(JobOptions, NoTextHasNoOptions) {
  EXPECT_EQ(parsed(nullptr), Pairs());
  EXPECT_EQ(parsed(""), Pairs());
  EXPECT_EQ(parsed("  \t "), Pairs());
}

TEST(JobOptions, OptionsComeInTheOrderOfTheirNamesWhateverTheirCase) {
  EXPECT_EQ(parsed("media=A4 Rotated=true Color=1 InputTray=2"),
            (Pairs{{"Color", "1"}, {"InputTray", "2"}, {"media", "A4"}, {"Rotated", "true"}}));
}

TEST(JobOptions, ABareNameIsWhatLibcupsMakesOfIt) {
  EXPECT_EQ(parsed("fit-to-page"), (Pairs{{"fit-to-page", "true"}}));
}

TEST(JobOptions, ABareNameThatBeginsWithNoIsTheOtherOptionAsFalse) {
  EXPECT_EQ(parsed("nocollate"), (Pairs{{"collate", "false"}}));
}

TEST(JobOptions, ANameWithNothingBehindItsEqualsSignIsEmpty) {
  EXPECT_EQ(parsed("Rotated="), (Pairs{{"Rotated", ""}}));
  EXPECT_EQ(parsed("Rotated= media=A4"), (Pairs{{"media", "A4"}, {"Rotated", ""}}));
}

TEST(JobOptions, OfANameGivenTwiceTheLaterValueWins) {
  EXPECT_EQ(parsed("media=A4 Rotated=true media=A5"),
            (Pairs{{"media", "A5"}, {"Rotated", "true"}}));
}

TEST(JobOptions, QuotedAndBracedValuesAreOne) {
  EXPECT_EQ(parsed("a='x y' b=\"p q\" c={m=1 n=2}"),
            (Pairs{{"a", "x y"}, {"b", "p q"}, {"c", "{m=1 n=2}"}}));
}

TEST(JobOptions, AnOptionThatIsAbsentHasNoValue) {
  const OptionsDict options{{"media", "A4"}};
  EXPECT_EQ(optionValue(options, "media"), "A4");
  EXPECT_EQ(optionValue(options, "Media"), std::nullopt);
}

TEST(JobOptions, TheFallbackStandsInForAnAbsentAndForAnEmptyValue) {
  const OptionsDict options{{"media", "A4"}, {"PaperType", ""}};
  EXPECT_EQ(optionValueOr(options, "media", "Letter"), "A4");
  EXPECT_EQ(optionValueOr(options, "PaperType", "Plain"), "Plain");
  EXPECT_EQ(optionValueOr(options, "InputTray", "Auto"), "Auto");
}

TEST(TrueWord, IsTrueOrYesInAnyCaseAndNothingElse) {
  for (const char* word : {"true", "True", "TRUE", "yes", "Yes", "yEs"}) {
    EXPECT_TRUE(isTrueWord(word)) << word;
  }
  for (const char* word :
       {"", "1", "on", "false", "no", "y", "true ", " true", "yess", "trueyes"}) {
    EXPECT_FALSE(isTrueWord(word)) << word;
  }
}

TEST(DuplexPaper, EverySmallOrOddSizeForbidsTwoSides) {
  for (const char* media :
       {"A5", "B6", "A6", "HalfLetter", "FS", "Foolscap", "Folio", "Env10", "Monarch", "EnvC5",
        "EnvC6", "EnvDL", "Kai16", "Postcard", "ReplyPaid"}) {
    EXPECT_FALSE(canDuplexPaper({{"media", media}})) << media;
  }
}

TEST(DuplexPaper, OfficeSizesAndUnknownOnesAllowTwoSides) {
  for (const char* media : {"Letter", "Legal", "Executive", "Ledger", "A3", "A4", "B4", "JISB5",
                            "Kai8", "Tabloid", ""}) {
    EXPECT_TRUE(canDuplexPaper({{"media", media}})) << media;
  }
}

TEST(DuplexPaper, SizesAreComparedWholeAndWithTheirCase) {
  for (const char* media : {"a5", "A5Rotated", "A55", "env10", "XA5", "A5,Plain"}) {
    EXPECT_TRUE(canDuplexPaper({{"media", media}})) << media;
  }
}

TEST(DuplexPaper, AnySizeThatBeginsWithCustomForbidsTwoSides) {
  EXPECT_FALSE(canDuplexPaper({{"media", "Custom.200x300mm"}}));
  EXPECT_FALSE(canDuplexPaper({{"media", "Custom"}}));
  EXPECT_TRUE(canDuplexPaper({{"media", "custom.200x300mm"}}));
  EXPECT_TRUE(canDuplexPaper({{"media", "MyCustom"}}));
}

TEST(DuplexPaper, EveryHeavyOrOddPaperForbidsTwoSidesOnA4Too) {
  for (const char* paper :
       {"Plain90", "Thick", "Thick160", "Bond", "Cardstock", "Labels", "Envelope"}) {
    EXPECT_FALSE(canDuplexPaper({{"media", "A4"}, {"PaperType", paper}})) << paper;
  }
}

TEST(DuplexPaper, OrdinaryPaperAllowsTwoSides) {
  for (const char* paper : {"Thin", "Plain", "Recycled", "Color", "Preprinted", "Prepunched",
                            "Letterhead", "labels", "CustomPaper"}) {
    EXPECT_TRUE(canDuplexPaper({{"media", "A4"}, {"PaperType", paper}})) << paper;
  }
}

TEST(DuplexPaper, GoodPaperDoesNotMakeUpForABadSize) {
  EXPECT_FALSE(canDuplexPaper({{"media", "A5"}, {"PaperType", "Plain"}}));
}

TEST(DuplexPaper, NeitherOptionAllowsTwoSides) {
  EXPECT_TRUE(canDuplexPaper({}));
}

TEST(DuplexPaper, AMediaValueOfSeveralKeywordsMatchesNothing) {
  EXPECT_TRUE(canDuplexPaper({{"media", "A5,Labels"}}));
  EXPECT_TRUE(canDuplexPaper({{"media", "Labels"}}));
}

}  // namespace
}  // namespace gdi
