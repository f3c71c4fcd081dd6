// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The questions that every stage asks about options and per-model settings.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/filter/OpenFilter.h"
#include "tests/support/DebugLogCapture.h"
#include "tests/support/TestBundle.h"

namespace gdi {
namespace {

using Lines = std::vector<std::string>;

TEST(OptionQueries, AStringIsAsItWasGivenOrNothing) {
  test::OpenFilter filter;
  filter.optionsDict = {{"media", " A4 "}, {"Rotated", ""}};
  EXPECT_EQ(filter.stringForOption("media"), " A4 ");
  EXPECT_EQ(filter.stringForOption("Rotated"), "");
  EXPECT_EQ(filter.stringForOption("InputTray"), std::nullopt);
}

TEST(OptionQueries, AnIntegerIsWhatTheValueBeginsWith) {
  test::OpenFilter filter;
  filter.optionsDict = {{"a", "12"},  {"b", "  7 copies"}, {"c", "-3"}, {"d", "+4"},
                        {"e", "x12"}, {"f", ""},           {"g", "- 5"}};
  EXPECT_EQ(filter.intForOption("a"), 12);
  EXPECT_EQ(filter.intForOption("b"), 7);
  EXPECT_EQ(filter.intForOption("c"), -3);
  EXPECT_EQ(filter.intForOption("d"), 4);
  EXPECT_EQ(filter.intForOption("e"), 0);
  EXPECT_EQ(filter.intForOption("f"), 0);
  EXPECT_EQ(filter.intForOption("g"), 0);
  EXPECT_EQ(filter.intForOption("absent"), 0);
}

TEST(OptionQueries, ABooleanIsTrueForTheTwoWordsAlone) {
  test::OpenFilter filter;
  filter.optionsDict = {{"a", "True"}, {"b", "YES"}, {"c", "1"}, {"d", "on"}, {"e", ""}};
  EXPECT_TRUE(filter.boolForOption("a"));
  EXPECT_TRUE(filter.boolForOption("b"));
  EXPECT_FALSE(filter.boolForOption("c"));
  EXPECT_FALSE(filter.boolForOption("d"));
  EXPECT_FALSE(filter.boolForOption("e"));
  EXPECT_FALSE(filter.boolForOption("absent"));
}

TEST(ModelSettings, ComeFromTheBundleAndNotFromThePPDOrTheOptions) {
  const test::TestBundle bundle{{"SolvaneFlipDuplex", "Yes"}, {"Speed", "1"}, {"Name", "a b"}};
  test::OpenFilter filter;
  filter.optionsDict = {{"Name", "of the options"}, {"Speed", "true"}};
  EXPECT_TRUE(filter.boolForPPDAttr("SolvaneFlipDuplex"));
  EXPECT_FALSE(filter.boolForPPDAttr("Speed"));
  EXPECT_EQ(filter.stringForPPDAttr("Name"), "a b");
}

TEST(ModelSettings, OneThatIsThereIsNotLogged) {
  const test::TestBundle bundle{{"Name", "x"}};
  const test::DebugLogCapture log;
  EXPECT_EQ(test::OpenFilter().stringForPPDAttr("Name"), "x");
  EXPECT_EQ(log.text(), "");
}

TEST(ModelSettings, OneThatIsMissingIsLoggedAndFalse) {
  const test::TestBundle bundle;
  const test::DebugLogCapture log;
  EXPECT_EQ(test::OpenFilter().stringForPPDAttr("Name"), std::nullopt);
  EXPECT_FALSE(test::OpenFilter().boolForPPDAttr("SolvaneFlipDuplex"));
  EXPECT_EQ(log.lines(),
            (Lines{"ASSERT: CUPSFilter stringForPPDAttr: failed to get value for PPD attr Name",
                   "ASSERT: CUPSFilter stringForPPDAttr: failed to get value for PPD attr "
                   "SolvaneFlipDuplex"}));
}

}  // namespace
}  // namespace gdi
