// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Lines on their way from the stream to the stages: padding, mirroring and the note of ink.

#include <array>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/filter/CleanSignals.h"
#include "tests/raster/RecordingFilter.h"

namespace gdi {
namespace {

using test::Line;
using test::pageOf;

class RasterLines : public testing::Test {
 protected:
  // The lines that reach the stages of that page; the spooler's progress lines are kept quiet.
  std::vector<Line> sent(const test::Page& page) {
    filter_.pages = {page};
    testing::internal::CaptureStderr();
    EXPECT_TRUE(filter_.run());
    (void)testing::internal::GetCapturedStderr();
    return filter_.lines;
  }

  const test::CleanSignals signals_;
  test::RecordingFilter filter_;
};

TEST_F(RasterLines, AnOddWidthIsPaddedWithZero) {
  EXPECT_EQ(sent(pageOf(5, 1, {{1, 2, 3, 4, 5}, {6, 7, 8, 9, 10}})),
            (std::vector<Line>{{1, 2, 3, 4, 5, 0}, {6, 7, 8, 9, 10, 0}}));
  EXPECT_EQ(filter_.rasterPixelCount, 6U);
  EXPECT_EQ(filter_.rasterByteCount, 6U);
  EXPECT_EQ(filter_.channelCount, 1U);
}

TEST_F(RasterLines, AMirroredGreyLineIsReversed) {
  filter_.mirror = true;
  EXPECT_EQ(sent(pageOf(4, 1, {{1, 2, 3, 4}, {5, 6, 7, 8}})),
            (std::vector<Line>{{4, 3, 2, 1}, {8, 7, 6, 5}}));
}

// The padding byte comes first and is what the line before left there: read into the mirrored
// 0 5 4 3 2 1, the next five bytes leave the 1.
TEST_F(RasterLines, AMirroredOddGreyLineBeginsWithWhatItsPaddingHeld) {
  filter_.mirror = true;
  EXPECT_EQ(
      sent(pageOf(5, 1, {{1, 2, 3, 4, 5}, {11, 12, 13, 14, 15}, {21, 22, 23, 24, 25}})),
      (std::vector<Line>{{0, 5, 4, 3, 2, 1}, {1, 15, 14, 13, 12, 11}, {11, 25, 24, 23, 22, 21}}));
}

TEST_F(RasterLines, AMirroredColourLineKeepsTheOrderInsideItsPixels) {
  filter_.mirror = true;
  EXPECT_EQ(sent(pageOf(4, 4, {{1, 2, 3, 4, 11, 12, 13, 14, 21, 22, 23, 24, 31, 32, 33, 34}})),
            (std::vector<Line>{{31, 32, 33, 34, 21, 22, 23, 24, 11, 12, 13, 14, 1, 2, 3, 4}}));
  EXPECT_EQ(filter_.channelCount, 4U);
  EXPECT_EQ(filter_.rasterByteCount, 16U);
}

TEST_F(RasterLines, AMirroredOddColourLineBeginsWithWhatItsPaddingHeld) {
  filter_.mirror = true;
  EXPECT_EQ(sent(pageOf(1, 4, {{1, 2, 3, 4}, {5, 6, 7, 8}})),
            (std::vector<Line>{{0, 0, 0, 0, 1, 2, 3, 4}, {1, 2, 3, 4, 5, 6, 7, 8}}));
}

TEST_F(RasterLines, LinesOfThreeChannelsPassUnmirrored) {
  filter_.mirror = true;
  EXPECT_EQ(sent(pageOf(2, 3, {{1, 2, 3, 4, 5, 6}})), (std::vector<Line>{{1, 2, 3, 4, 5, 6}}));
  EXPECT_EQ(filter_.channelCount, 3U);
}

TEST_F(RasterLines, AStageMayTurnMirroringOnAtThePagesStart) {
  filter_.during = [this](const std::string& call) {
    if (call == "startPage 0") {
      filter_.mirror = true;
    }
  };
  EXPECT_EQ(sent(pageOf(2, 1, {{1, 2}})), (std::vector<Line>{{2, 1}}));
}

TEST_F(RasterLines, AnAllZeroPageLeavesTheAccumulatorZero) {
  sent(pageOf(3, 4, {Line(12, 0), Line(12, 0)}));
  EXPECT_EQ(filter_.accumulators, (Line{0}));
}

TEST_F(RasterLines, EveryByteOfEveryLineAddsToTheAccumulator) {
  sent(pageOf(3, 1, {{0x01, 0, 0}, {0, 0, 0}, {0, 0, 0x80}}));
  EXPECT_EQ(filter_.accumulators, (Line{0x81}));
}

TEST_F(RasterLines, TheAccumulatorBeginsAnewWithEachPage) {
  filter_.pages = {pageOf(1, 1, {{0x42}}), pageOf(1, 1, {{0}})};
  testing::internal::CaptureStderr();
  EXPECT_TRUE(filter_.run());
  (void)testing::internal::GetCapturedStderr();
  EXPECT_EQ(filter_.accumulators, (Line{0x42, 0}));
}

TEST_F(RasterLines, PaddingCountsForTheAccumulator) {
  filter_.during = [this](const std::string& call) {
    if (call == "startPage 0") {
      filter_.rasterBuffer.data()[1] = 0x10;
    }
  };
  sent(pageOf(1, 1, {{0}}));
  EXPECT_EQ(filter_.accumulators, (Line{0x10}));
}

TEST_F(RasterLines, ALineShorterThanItsBufferLeavesTheRestZero) {
  test::Page page = pageOf(4, 1, {{1, 2, 3}});
  page.header.cupsBytesPerLine = 3;
  EXPECT_EQ(sent(page), (std::vector<Line>{{1, 2, 3, 0}}));
}

TEST(LineBuffer, OfNoBytesAddsNothingToTheAccumulator) {
  test::RecordingFilter filter;
  filter.cupsPageHeader = test::pageHeader(0, 1, 1);
  ASSERT_TRUE(filter.allocRasterBuffer());
  EXPECT_EQ(filter.rasterByteCount, 0U);
  filter.blankAccumulator = 0x42;
  EXPECT_TRUE(filter.sendRaster());
  EXPECT_EQ(filter.blankAccumulator, 0x42);
}

TEST(LineBuffer, BeginsAsZerosAndIsFreedOnce) {
  test::RecordingFilter filter;
  filter.cupsPageHeader = test::pageHeader(5, 1, 4);
  filter.rasterLineNumber = 7;
  ASSERT_TRUE(filter.allocRasterBuffer());
  EXPECT_EQ(filter.rasterLineNumber, 0U);
  EXPECT_EQ(filter.rasterPixelCount, 6U);
  ASSERT_EQ(filter.rasterByteCount, 24U);
  EXPECT_EQ(Line(filter.rasterBuffer.data(), filter.rasterBuffer.data() + 24), Line(24, 0));
  filter.deallocRasterBuffer();
  EXPECT_EQ(filter.rasterBuffer.data(), nullptr);
  filter.deallocRasterBuffer();
}

TEST_F(RasterLines, TheInkOfALineIsNotedByChannel) {
  std::vector<std::array<std::uint8_t, 4>> inks;
  filter_.during = [&](const std::string& call) {
    if (call.starts_with("startPage") || call.starts_with("sendRaster")) {
      inks.push_back(filter_.lineInk);
    }
  };
  sent(pageOf(2, 4, {{0, 1, 0, 3, 0, 4, 0, 8}, {0, 0, 0, 0, 0, 0, 0x10, 0}}));
  EXPECT_EQ(inks, (std::vector<std::array<std::uint8_t, 4>>{
                      {0, 0, 0, 0}, {0, 5, 0, 11}, {0, 0, 0x10, 0}}));
}

}  // namespace
}  // namespace gdi
