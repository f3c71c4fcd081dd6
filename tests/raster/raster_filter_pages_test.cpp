// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The page loop when all goes well: its order, its log and what it tells the spooler.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/CFPreferences.h"
#include "tests/filter/CleanSignals.h"
#include "tests/raster/RecordingFilter.h"
#include "tests/support/DebugLogCapture.h"
#include "tests/support/TestBundle.h"

namespace gdi {
namespace {

using Lines = std::vector<std::string>;
using test::Calls;
using test::Line;
using test::pageOf;

class PageLoop : public testing::Test {
 protected:
  void SetUp() override { CFPreferencesSetAppValue("AppleLanguages", {}); }
  void TearDown() override { CFPreferencesSetAppValue("AppleLanguages", {}); }

  // Runs the job; what it wrote to standard error is in `told`.
  bool run() {
    testing::internal::CaptureStderr();
    const bool succeeded = filter_.run();
    told_ = testing::internal::GetCapturedStderr();
    return succeeded;
  }

  const test::CleanSignals signals_;
  test::TestBundle bundle_;
  const test::DebugLogCapture log_;
  test::RecordingFilter filter_;
  std::string told_;
};

TEST_F(PageLoop, AnEmptyStreamIsAJobWithoutPages) {
  EXPECT_TRUE(run());
  EXPECT_EQ(filter_.calls, (Calls{"open", "startJob", "header", "endJob", "close"}));
  EXPECT_EQ(told_, "INFO: \n");
  EXPECT_EQ(log_.lines(), (Lines{"CUPSFIlter run: ", "copies: 0", "sidesImaged: 0",
                                 "CUPSFIlter run: exiting with result 1",
                                 "RasterFilter run: exiting - result: 1"}));
}

TEST_F(PageLoop, EachLineIsSentAsSoonAsItIsReadAndEachPageEndedBeforeTheNext) {
  filter_.pages = {pageOf(2, 1, {{1, 2}, {3, 4}}), pageOf(2, 1, {{5, 6}})};
  EXPECT_TRUE(run());
  EXPECT_EQ(filter_.calls,
            (Calls{"open", "startJob", "header", "startPage 0", "pixels", "sendRaster 0", "pixels",
                   "sendRaster 1", "endPage 0", "header", "startPage 1", "pixels", "sendRaster 0",
                   "endPage 1", "header", "endJob", "close"}));
  EXPECT_EQ(filter_.lines, (std::vector<Line>{{1, 2}, {3, 4}, {5, 6}}));
  EXPECT_EQ(filter_.pageCount, 2U);
  EXPECT_EQ(filter_.cupsRaster, nullptr);
}

TEST_F(PageLoop, TellsTheSpoolerEachPageAndNothingElse) {
  filter_.pages = {pageOf(2, 1, {{1, 2}}), pageOf(2, 1, {{1, 2}})};
  EXPECT_TRUE(run());
  EXPECT_EQ(told_, "INFO: \nINFO: Processing page 1\nINFO: Processing page 2\n");
}

TEST_F(PageLoop, TellsThePagesInTheSpoolersLanguage) {
  bundle_.setStrings("de", {{"PageProgress", "Seite %d wird verarbeitet"}});
  CFPreferencesSetAppValue("AppleLanguages", {"de_DE.UTF-8"});
  filter_.pages = {pageOf(2, 1, {{1, 2}})};
  EXPECT_TRUE(run());
  EXPECT_EQ(told_, "INFO: \nINFO: Seite 1 wird verarbeitet\n");
}

TEST_F(PageLoop, IsLoggedStepByStep) {
  filter_.pages = {pageOf(5, 1, {{0, 0, 0, 0, 0x0A}})};
  EXPECT_TRUE(run());
  Lines lines = log_.lines();
  ASSERT_EQ(std::erase_if(
                lines, [](const std::string& line) { return line.starts_with("Page header: "); }),
            34U);
  EXPECT_EQ(lines, (Lines{"CUPSFIlter run: ", "copies: 0", "sidesImaged: 0",
                          "CUPSFIlter run: exiting with result 1",
                          "RasterFilter run: rasterByteCount: 6, rasterPixelCount: 6",
                          "RasterFilter run: Processed 1 lines",
                          "RasterFilter endPage: blankAccumulator = 0x0a",
                          "RasterFilter run: exiting - result: 1"}));
}

TEST_F(PageLoop, TheHeaderIsLoggedBeforeTheLineBuffersSize) {
  filter_.pages = {pageOf(2, 1, {{1, 2}})};
  EXPECT_TRUE(run());
  const Lines lines = log_.lines();
  ASSERT_GT(lines.size(), 38U);
  EXPECT_EQ(lines[4], "Page header: AdvanceDistance = none");
  EXPECT_EQ(lines[37], "Page header: cupsRowStep = 0");
  EXPECT_EQ(lines[38], "RasterFilter run: rasterByteCount: 2, rasterPixelCount: 2");
}

TEST_F(PageLoop, APageOfNoHeightIsStartedAndEndedWithoutALine) {
  filter_.pages = {{test::pageHeader(4, 0, 1), {}}};
  EXPECT_TRUE(run());
  EXPECT_EQ(filter_.calls, (Calls{"open", "startJob", "header", "startPage 0", "endPage 0",
                                  "header", "endJob", "close"}));
  EXPECT_EQ(log_.count("RasterFilter run: Processed 0 lines"), 1U);
}

TEST_F(PageLoop, APageAfterOneOfNoHeightCountsItsLinesFromZero) {
  filter_.pages = {pageOf(2, 1, {{1, 2}, {3, 4}}), {test::pageHeader(4, 0, 1), {}}};
  EXPECT_TRUE(run());
  EXPECT_EQ(log_.count("RasterFilter run: Processed 2 lines"), 1U);
  EXPECT_EQ(log_.count("RasterFilter run: Processed 0 lines"), 1U);
}

TEST_F(PageLoop, TheLineBufferLivesUntilThePageHasEnded) {
  filter_.pages = {pageOf(2, 1, {{1, 2}})};
  EXPECT_TRUE(run());
  EXPECT_TRUE(filter_.bufferAtEndPage);
  EXPECT_EQ(filter_.rasterBuffer.data(), nullptr);
}

TEST_F(PageLoop, TheLastHeaderOutlivesTheStream) {
  filter_.pages = {pageOf(2, 1, {{1, 2}}), pageOf(4, 1, {{1, 2, 3, 4}})};
  EXPECT_TRUE(run());
  EXPECT_EQ(filter_.cupsPageHeader.cupsWidth, 4U);
}

TEST(ProgressText, TheFirstPlaceholderIsThePageAndAllElseStands) {
  EXPECT_EQ(progressText("Processing page %d", 12), "Processing page 12");
  EXPECT_EQ(progressText("%d: %s %n %d", 3), "3: %s %n %d");
  EXPECT_EQ(progressText("no number", 3), "no number");
  EXPECT_EQ(progressText("", 3), "");
}

}  // namespace
}  // namespace gdi
