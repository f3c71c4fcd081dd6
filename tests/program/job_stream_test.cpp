// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Whole jobs through the whole program, each byte of the stream compared.

#include <algorithm>
#include <ctime>

#include <gtest/gtest.h>

#include "tests/program/expected_stream.h"
#include "tests/program/filter_process.h"
#include "tests/program/test_bundle.h"

namespace gdi::programtest {
namespace {

class JobStream : public testing::Test {
 protected:
  JobStream() {
    bundle_ = filter_.folder() / "bundle";
    writeTestBundle(bundle_);
    filter_.bundle = bundle_;
  }

  // Runs the filter on the expected job's pages and compares the streams.
  void expectStream(const ExpectedJob& job) {
    std::vector<RasterPage> pages;
    for (const ExpectedPage& page : job.pages) {
      pages.push_back(page.page);
    }
    filter_.raster = rasterOf(pages);
    expectStreamOfRaster(job);
  }

  void expectStreamOfRaster(const ExpectedJob& job) {
    const FilterResult result = filter_.run();
    EXPECT_EQ(result.exitStatus, 0) << result.errors;
    const Bytes expected = expectedJobStream(job);
    const Bytes actual = withoutDate(result.output);
    EXPECT_EQ(actual.size(), expected.size());
    const auto [left, right] = std::ranges::mismatch(actual, expected);
    EXPECT_TRUE(left == actual.end() && right == expected.end())
        << "first difference at byte " << left - actual.begin();
    EXPECT_TRUE(result.leftInTmp.empty()) << result.leftInTmp.front();
  }

  static RasterPage noisyPage(std::uint32_t width, std::uint32_t height, std::uint32_t channels) {
    return {.width = width, .height = height, .channels = channels, .sample = noise};
  }

  static std::uint8_t ramp(std::uint32_t x, std::uint32_t y, std::uint32_t channel) {
    return static_cast<std::uint8_t>((x * 3 + y / 2 + 50 * channel) & 0xFF);
  }

  FilterProcess filter_;
  std::filesystem::path bundle_;
};

TEST_F(JobStream, AMonoPageOfTwoBands) {
  expectStream({.pages = {{.page = noisyPage(100, 300, 1)}}});
}

TEST_F(JobStream, AColourPageOfTwoBands) {
  expectStream({.pages = {{.page = noisyPage(100, 300, 4)}}});
}

TEST_F(JobStream, AColourPageOfTwentyEightBandsSendsFortySixSteps) {
  expectStream({.pages = {{.page = {.width = 8, .height = 7016, .channels = 4, .sample = ramp}}}});
}

TEST_F(JobStream, AMonoPageOf7016RowsSendsBandsZeroToTwentySeven) {
  expectStream({.pages = {{.page = {.width = 8, .height = 7016, .sample = ramp}}}});
}

TEST_F(JobStream, StandardHasTwoBitsAPixel) {
  filter_.options = "Gradiation=Standard";
  expectStream({.depth = 2, .pages = {{.page = noisyPage(75, 257 + 40, 4)}}});
}

TEST_F(JobStream, FineHasFourBitsAPixel) {
  filter_.options = "Gradiation=Fine";
  expectStream({.depth = 4, .pages = {{.page = noisyPage(75, 40, 4)}}});
}

TEST_F(JobStream, AnOddWidthPadsItsLastPixelWithPaper) {
  expectStream({.pages = {{.page = noisyPage(33, 20, 1)}}});
}

TEST_F(JobStream, ABlankPageSaysSoInItsLastBand) {
  expectStream({.pages = {{.page = {.width = 64, .height = 300, .channels = 4}}}});
}

TEST_F(JobStream, APageOfOneRowOfNoiseFitsTheCompressor) {
  filter_.options = "Gradiation=Fine";
  expectStream({.depth = 4, .pages = {{.page = noisyPage(5000, 1, 1)}}});
}

TEST_F(JobStream, APageOf255RowsStatesOneBandTooMany) {
  expectStream({.pages = {{.page = noisyPage(40, 255, 4)}}});
}

TEST_F(JobStream, APageOf256RowsStatesOneBandTooMany) {
  expectStream({.pages = {{.page = noisyPage(40, 256, 1)}}});
}

TEST_F(JobStream, APageOf257RowsSendsOneStepAndNeverItsLastBand) {
  expectStream({.pages = {{.page = noisyPage(40, 257, 4)}}});
}

TEST_F(JobStream, AFlippedPageOf257RowsIsWhole) {
  filter_.options = "Rotated=true";
  expectStream({.pages = {{.page = noisyPage(40, 257, 4), .upsideDown = true}}});
}

TEST_F(JobStream, SimplexRotatedTurnsEveryPage) {
  filter_.options = "Rotated=true";
  expectStream({.pages = {{.page = noisyPage(64, 300, 4), .number = 0, .upsideDown = true},
                          {.page = noisyPage(64, 20, 1), .number = 1, .upsideDown = true}}});
}

TEST_F(JobStream, AMonoPageAfterAColourPageIsBlackOnly) {
  expectStream({.pages = {{.page = noisyPage(64, 30, 4), .number = 0},
                          {.page = noisyPage(64, 30, 1), .number = 1}}});
}

TEST_F(JobStream, OptionsBecomeTheirCodes) {
  filter_.options = "media=A4 InputTray=Tray2 PaperType=Plain";
  expectStream({.pages = {{.page = noisyPage(40, 3, 1), .media = 9, .tray = 3, .paper = 1}}});
}

TEST_F(JobStream, LetterPaperHasItsMicrometres) {
  RasterPage page = noisyPage(40, 3, 1);
  page.pointsWide = 612;
  page.pointsHigh = 792;
  expectStream({.pages = {{.page = page}}});
}

TEST_F(JobStream, CopiesTitleAndUserStandInTheJobRecords) {
  RasterPage page = noisyPage(40, 3, 1);
  page.copies = 3;
  filter_.title = "@Report(3)";
  filter_.user = "somebody";
  expectStream({.name = "Report", .user = "somebody", .copies = 3, .pages = {{.page = page}}});
}

TEST_F(JobStream, ALongTitleFillsItsFieldWithoutATerminator) {
  filter_.title = std::string(70, 'x');
  expectStream({.name = std::string(64, 'x'), .pages = {{.page = noisyPage(40, 3, 1)}}});
}

TEST_F(JobStream, AnEmptyRasterGivesAnEmptyJob) {
  filter_.raster = rasterOf({});
  expectStreamOfRaster({});
}

TEST_F(JobStream, NoInputAtAllGivesAnEmptyJob) {
  expectStreamOfRaster({});
}

TEST_F(JobStream, TheRasterMayComeAsAFile) {
  filter_.rasterAsFile = true;
  expectStream({.pages = {{.page = noisyPage(100, 30, 4)}}});
}

TEST_F(JobStream, TheDateIsTheMomentOfTheJob) {
  const std::vector<RasterPage> pages{noisyPage(40, 3, 1)};
  filter_.raster = rasterOf(pages);
  const std::time_t before = std::time(nullptr);
  const FilterResult result = filter_.run();
  const std::time_t after = std::time(nullptr);
  const std::size_t at = sizeof kPrologue - 1 + 20;
  ASSERT_GT(result.output.size(), at + 4);
  std::uint32_t packed = 0;
  for (std::size_t i = at; i < at + 4; ++i) {
    packed = packed << 8 | result.output[i];
  }
  std::tm date{};
  date.tm_hour = static_cast<int>(packed & 31);
  date.tm_min = static_cast<int>(packed >> 5 & 63);
  date.tm_sec = static_cast<int>(packed >> 11 & 31) * 2;
  date.tm_year = static_cast<int>(packed >> 16 & 63) + 80;
  date.tm_mon = static_cast<int>(packed >> 23 & 15) - 1;
  date.tm_mday = static_cast<int>(packed >> 27);
  const std::time_t stamped = timegm(&date);
  EXPECT_GE(stamped, before - 1);
  EXPECT_LE(stamped, after);
}

}  // namespace
}  // namespace gdi::programtest
