// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Two-sided jobs through the whole program: which sides are turned, and the blank back side.

#include <gtest/gtest.h>

#include "tests/program/expected_stream.h"
#include "tests/program/filter_process.h"
#include "tests/program/test_bundle.h"

namespace gdi::programtest {
namespace {

constexpr char kLongEdge[] = "com.apple.print.PrintSettings.PMDuplexing..n.=2";
constexpr char kShortEdge[] = "com.apple.print.PrintSettings.PMDuplexing..n.=3";
constexpr char kThreeSides[] = " com.apple.print.PrintSettings.PMTotalSidesImaged..n.=3";
constexpr char kFourSides[] = " com.apple.print.PrintSettings.PMTotalSidesImaged..n.=4";

// Runs a job of pages that are turned as `turned` says; a filler page may follow.
class DuplexJob : public testing::Test {
 protected:
  void expectSides(const std::string& options, const std::string& info,
                   const std::vector<bool>& turned, std::optional<ExpectedPage> filler = {}) {
    const std::filesystem::path bundle = filter_.folder() / "bundle";
    writeTestBundle(bundle, info);
    filter_.bundle = bundle;
    filter_.options = options;
    ExpectedJob job;
    std::vector<RasterPage> pages;
    for (std::size_t i = 0; i < turned.size(); ++i) {
      const RasterPage page{.width = 64, .height = 20, .channels = 1, .sample = noise};
      pages.push_back(page);
      job.pages.push_back({.page = page,
                           .number = static_cast<std::uint32_t>(i),
                           .upsideDown = turned[i],
                           .media = media_});
    }
    if (filler) {
      job.pages.push_back(*filler);
    }
    filter_.raster = rasterOf(pages);
    const FilterResult result = filter_.run();
    EXPECT_EQ(result.exitStatus, 0) << result.errors;
    EXPECT_TRUE(withoutDate(result.output) == expectedJobStream(job));
    EXPECT_TRUE(result.leftInTmp.empty());
  }

  static ExpectedPage blankPage(std::uint32_t number) {
    return {.page = {.width = 64, .height = 20, .channels = 1}, .number = number};
  }

  FilterProcess filter_;
  std::uint8_t media_ = 1;
};

TEST_F(DuplexJob, BackSidesOfLongEdgeJobsAreTurnedWhereTheModelNeedsIt) {
  expectSides(std::string(kLongEdge) + kFourSides, "SolvaneFlipDuplex = true;",
              {false, true, false, true});
}

TEST_F(DuplexJob, RotatedInvertsTheParity) {
  expectSides(std::string(kLongEdge) + kFourSides + " Rotated=true", "SolvaneFlipDuplex = yes;",
              {true, false, true, false});
}

TEST_F(DuplexJob, NoSideIsTurnedWhereTheModelTurnsThemItself) {
  expectSides(std::string(kLongEdge) + kFourSides, "SolvaneFlipDuplex = no;", {false, false});
}

TEST_F(DuplexJob, RotatedAloneTogglesAtEveryPage) {
  expectSides(std::string(kLongEdge) + kFourSides + " Rotated=true", "",
              {true, false, true, false});
}

TEST_F(DuplexJob, RotatedShortEdgeTurnsEverySide) {
  expectSides(std::string(kShortEdge) + kFourSides + " Rotated=true", "", {true, true});
}

TEST_F(DuplexJob, AnOddNumberOfSidesEndsWithABlankPageNumberedFour) {
  expectSides(std::string(kLongEdge) + kThreeSides, "", {false, false, false}, blankPage(4));
}

TEST_F(DuplexJob, AOnePageJobGetsNoBlankPage) {
  expectSides(std::string(kLongEdge), "", {false});
}

TEST_F(DuplexJob, PaperThatCannotBeDuplexedGetsNoBlankPage) {
  media_ = 255;
  expectSides(std::string(kLongEdge) + kThreeSides + " media=Custom.200x300mm",
              "SolvaneFlipDuplex = true;", {false, false, false});
}

TEST_F(DuplexJob, BeforeTenFourEachSideIsRepeatedForItsCopies) {
  expectSides(std::string(kLongEdge) + kFourSides + " com.apple.print.PrintSettings.PMCopies..n.=2",
              "SolvaneFlipDuplex = true; SystemVersion = \"10.3.9\";", {false, false, true, true});
}

TEST_F(DuplexJob, BeforeTenFourACollatedJobCountsTheSidesOfACopy) {
  expectSides(std::string(kLongEdge) +
                  " com.apple.print.PrintSettings.PMTotalSidesImaged..n.=6"
                  " com.apple.print.PrintSettings.PMCopies..n.=2"
                  " com.apple.print.PrintSettings.PMCopyCollate..b.=True",
              "SolvaneFlipDuplex = true; SystemVersion = \"10.3.9\";",
              {false, true, false, false, true, false}, blankPage(7));
}

TEST_F(DuplexJob, MoreCopiesThanSidesNeverTurnACollatedPage) {
  expectSides(std::string(kLongEdge) +
                  " com.apple.print.PrintSettings.PMTotalSidesImaged..n.=2"
                  " com.apple.print.PrintSettings.PMCopies..n.=3"
                  " com.apple.print.PrintSettings.PMCopyCollate..b.=True",
              "SolvaneFlipDuplex = true; SystemVersion = \"10.3.9\";", {false, false, false});
}

}  // namespace
}  // namespace gdi::programtest
