// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The program with the resources that ship, and with resources that are missing or broken.

#include <algorithm>
#include <fstream>

#include <gtest/gtest.h>

#include "tests/program/expected_stream.h"
#include "tests/program/filter_process.h"
#include "tests/program/test_bundle.h"

namespace gdi::programtest {
namespace {

constexpr std::array kPapers{"Thin",       "Plain",      "Plain90", "Recycled", "Color",
                             "Preprinted", "Prepunched", "Thick",   "Thick160", "Letterhead",
                             "Bond",       "Cardstock",  "Labels",  "Envelope"};
constexpr std::array<std::uint8_t, 14> kPaperCodes{15, 1, 16, 2, 3, 5, 6, 12, 13, 4, 8, 9, 7, 14};

// Full ink and none at all: what every screen prints the same.
std::uint8_t linework(std::uint32_t x, std::uint32_t y, std::uint32_t channel) {
  return (x / 5 + y / 3 + channel) % 3 == 0 ? 255 : 0;
}

std::string prologueOf(const FilterResult& result) {
  const std::string tag = "GDIJ";
  return {result.output.begin(),
          std::search(result.output.begin(), result.output.end(), tag.begin(), tag.end())};
}

class ShippedScreens : public testing::TestWithParam<std::string> {};

TEST_P(ShippedScreens, PrintFullInkSolidAndNoInkBlankOnEveryPaper) {
  const std::string quality = GetParam();
  const std::uint32_t depth = quality == "Fine" ? 4 : quality == "Standard" ? 2 : 1;
  for (std::size_t paper = 0; paper < kPapers.size(); ++paper) {
    for (const std::uint32_t channels : {1U, 4U}) {
      const RasterPage page{.width = 200, .height = 30, .channels = channels, .sample = linework};
      FilterProcess filter;
      filter.options = "Gradiation=" + quality + " PaperType=" + kPapers.at(paper);
      filter.raster = rasterOf(std::vector{page});
      const FilterResult result = filter.run();
      ASSERT_EQ(result.exitStatus, 0) << filter.options << "\n" << result.errors;
      const std::string prologue = prologueOf(result);
      EXPECT_TRUE(withoutDate(result.output, prologue.size()) ==
                  expectedJobStream({.prologue = prologue,
                                     .depth = depth,
                                     .pages = {{.page = page, .paper = kPaperCodes.at(paper)}}}))
          << filter.options << " with " << channels << " channels";
    }
  }
}

INSTANTIATE_TEST_SUITE_P(EveryQuality, ShippedScreens, testing::Values("Fast", "Standard", "Fine"),
                         [](const auto& quality) { return quality.param; });

TEST(ShippedBundle, ThePrologueEntersThePrintersLanguage) {
  FilterProcess filter;
  filter.raster = rasterOf(std::vector{RasterPage{.width = 16, .height = 2}});
  const std::string prologue = prologueOf(filter.run());
  EXPECT_EQ(prologue.find("\x1B%-12345X@PJL"), 0U);
  EXPECT_NE(prologue.find("@PJL ENTER LANGUAGE"), std::string::npos);
  EXPECT_EQ(prologue.substr(prologue.size() - 2), "\r\n");
}

class BrokenBundle : public testing::Test {
 protected:
  FilterResult runWithBundle(const std::string& options = "") {
    filter_.bundle = bundle_;
    filter_.options = options;
    filter_.raster = rasterOf(std::vector{RasterPage{.width = 16, .height = 2, .channels = 4}});
    return filter_.run();
  }

  FilterProcess filter_;
  std::filesystem::path bundle_ = filter_.folder() / "bundle";
};

TEST_F(BrokenBundle, WithoutScreenSetsThePageFailsAndSaysSo) {
  writeTestBundle(bundle_);
  std::filesystem::remove(bundle_ / "ScreenSets.plist");
  const FilterResult result = runWithBundle();
  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_NE(result.errors.find("ERROR: Couldn't find ScreenSets.plist\n"), std::string::npos);
  EXPECT_TRUE(result.leftInTmp.empty());
}

TEST_F(BrokenBundle, AnUnknownPaperTypeFailsThePage) {
  writeTestBundle(bundle_);
  const FilterResult result = runWithBundle("PaperType=plain");
  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_NE(result.errors.find("ERROR: Couldn't get screenSet\n"), std::string::npos);
}

TEST_F(BrokenBundle, AMissingScreenIsNamed) {
  writeTestBundle(bundle_);
  std::filesystem::remove(bundle_ / "Screens/plane2depth1");
  const FilterResult result = runWithBundle();
  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_NE(result.errors.find("ERROR: Couldn't instantiate screen from name plane2depth1\n"),
            std::string::npos);
}

TEST_F(BrokenBundle, ASetOfAnotherDepthThanItsQualityFailsThePage) {
  writeTestBundle(bundle_);
  std::ofstream(bundle_ / "ScreenSets.plist")
      << "{ ScreenSets = { FastPlainColor = { Depth = 4; Screens = (plane0depth4, plane1depth4, "
         "plane2depth4, plane3depth4); }; }; }";
  const FilterResult result = runWithBundle();
  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_NE(result.errors.find("ERROR: screen set FastPlainColor has depth 4"), std::string::npos)
      << result.errors;
}

TEST_F(BrokenBundle, AnEmptyBundleStillSendsAnEmptyJob) {
  std::filesystem::create_directories(bundle_);
  filter_.bundle = bundle_;
  const FilterResult result = filter_.run();
  EXPECT_EQ(result.exitStatus, 0);
  EXPECT_EQ(std::string(result.output.begin(), result.output.end()), "JIDG");
}

TEST_F(BrokenBundle, ThePrologueIsCutByItsCharactersBeyondAscii) {
  writeTestBundle(bundle_, "CUPSFileHeader = \"a\\U00e9b\";");
  filter_.bundle = bundle_;
  const FilterResult result = filter_.run();
  EXPECT_EQ(std::string(result.output.begin(), result.output.end()), "a\xC3\xA9JIDG");
}

}  // namespace
}  // namespace gdi::programtest
