// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "halftone/PlanarFilter.h"

#include <array>
#include <chrono>
#include <filesystem>
#include <optional>

#include <gtest/gtest.h>

#include "tests/halftone/FakeRasterStream.h"
#include "tests/halftone/Planar.h"
#include "tests/halftone/ScreenBundle.h"
#include "tests/support/DebugLogCapture.h"
#include "tests/support/EnvironmentVariable.h"

namespace gdi {
namespace {

using Bytes = std::vector<std::uint8_t>;
using test::Planar;

class PlanarFilterTest : public testing::Test {
 protected:
  PlanarFilterTest() { filter_.emplace(); }
  void SetUp() override { ASSERT_TRUE(filter_->init()); }

  [[nodiscard]] std::size_t planeFiles() const { return scratch_.entries().size(); }

  test::ScreenBundle bundle_;
  test::DebugLogCapture log_;
  test::TemporaryFolder scratch_;
  test::EnvironmentVariable scratchVariable_{"TMPDIR", scratch_.path().string()};
  std::optional<Planar> filter_;
};

TEST_F(PlanarFilterTest, InitSetsBandsOf256RowsAndLogsIt) {
  EXPECT_EQ(filter_->ditherBandHeight, 256U);
  EXPECT_EQ(log_.count("PlanarFilter init exiting with result: 1"), 1U);
}

TEST_F(PlanarFilterTest, APageOfThreeChannelsMakesThreeFilesThatTheFailedPagesEndDeletes) {
  EXPECT_FALSE(filter_->begin(test::pageHeader(16, 8, 3)));
  EXPECT_EQ(planeFiles(), 3U);
  EXPECT_EQ(log_.count("ASSERT: PlanarFilter startJob: Color option missing"), 1U);
  EXPECT_EQ(log_.count("ASSERT: PlanarFilter startJob: PaperType option missing"), 0U);
  EXPECT_EQ(log_.lines().back(), "PlanarFilter startPage: exiting - result: 0");
  EXPECT_TRUE(filter_->endPage(0));
  EXPECT_EQ(planeFiles(), 0U);
}

TEST_F(PlanarFilterTest, APageOfTwoChannelsFailsForItsColourModeToo) {
  EXPECT_FALSE(filter_->begin(test::pageHeader(16, 8, 2)));
  EXPECT_EQ(planeFiles(), 2U);
  EXPECT_EQ(log_.count("ASSERT: PlanarFilter startJob: Color option missing"), 1U);
}

TEST_F(PlanarFilterTest, APageWithoutChannelsFailsForItsColourModeAndMakesNoFile) {
  cups_page_header_t header = test::pageHeader(16, 8, 1);
  header.cupsBitsPerColor = 0;
  filter_->setPage(header);
  EXPECT_FALSE(filter_->startPage(0));
  EXPECT_EQ(planeFiles(), 0U);
  EXPECT_EQ(log_.count("ASSERT: PlanarFilter startJob: Color option missing"), 1U);
}

TEST_F(PlanarFilterTest, APageOfFiveChannelsFailsAtOnceAndMakesNoFile) {
  EXPECT_FALSE(filter_->begin(test::pageHeader(16, 8, 5)));
  EXPECT_EQ(planeFiles(), 0U);
  const std::vector<std::string> lines = log_.lines();
  ASSERT_GE(lines.size(), 2U);
  EXPECT_EQ(lines[lines.size() - 2], "Planar channel size: 128, channelCount: 5");
  EXPECT_EQ(lines.back(), "PlanarFilter startPage: exiting - result: 0");
  EXPECT_TRUE(filter_->endPage(0));
}

TEST_F(PlanarFilterTest, MissingOptionsGiveTheKeyFastPlainColorForAColourPage) {
  EXPECT_TRUE(filter_->begin(test::pageHeader(16, 8, 4)));
  EXPECT_EQ(filter_->halftoneKey, "FastPlainColor");
  EXPECT_EQ(log_.count("PlanarFilter loading screen set: FastPlainColor"), 1U);
  EXPECT_EQ(planeFiles(), 4U);
}

TEST_F(PlanarFilterTest, EmptyOptionsCountAsMissing) {
  EXPECT_TRUE(filter_->begin(test::pageHeader(16, 8, 1), {{"PaperType", ""}, {"Gradiation", ""}}));
  EXPECT_EQ(filter_->halftoneKey, "FastPlainMono");
}

TEST_F(PlanarFilterTest, TheKeyIsQualityPaperAndColourMode) {
  EXPECT_TRUE(
      filter_->begin(test::pageHeader(16, 8, 1), {{"PaperType", "Thin"}, {"Gradiation", "Fine"}}));
  EXPECT_EQ(filter_->halftoneKey, "FineThinMono");
  EXPECT_EQ(screenSetKey("Fine", "Plain", "Mono"), "FinePlainMono");
}

TEST_F(PlanarFilterTest, AStartedPageLogsItsStepsInOrder) {
  log_.clear();
  EXPECT_TRUE(filter_->begin(test::pageHeader(16, 8, 1)));
  std::vector<std::string> own;
  for (const std::string& line : log_.lines()) {
    if (!line.starts_with("RasterBandBuffer") && !line.starts_with("mmapFile")) {
      own.push_back(line);
    }
  }
  EXPECT_EQ(own, (std::vector<std::string>{"PlanarFilter startPage: page 0",
                                           "Planar channel size: 128, channelCount: 1",
                                           "PlanarFilter loading screen set: FastPlainMono",
                                           "startColorSync skipping OS version 0x1040",
                                           "PlanarFilter startPage: exiting - result: 1"}));
}

TEST_F(PlanarFilterTest, AnUnknownScreenSetFailsThePage) {
  testing::internal::CaptureStderr();
  EXPECT_FALSE(filter_->begin(test::pageHeader(16, 8, 1), {{"PaperType", "Glossy"}}));
  EXPECT_NE(testing::internal::GetCapturedStderr().find("ERROR: Couldn't get screenSet\n"),
            std::string::npos);
  EXPECT_EQ(log_.count("ASSERT: PlanarFilter failed to allocate halftoner"), 1U);
  EXPECT_EQ(log_.lines().back(), "PlanarFilter startPage: exiting - result: 0");
  EXPECT_TRUE(filter_->endPage(0));
  EXPECT_EQ(planeFiles(), 0U);
}

TEST_F(PlanarFilterTest, AScreenSetOfAnotherDepthFailsThePage) {
  testing::internal::CaptureStderr();
  EXPECT_FALSE(filter_->begin(test::pageHeader(16, 8, 1), {{"PaperType", "Labels"}}));
  EXPECT_NE(testing::internal::GetCapturedStderr().find(
                "ERROR: screen set FastLabelsMono has depth 2 where the page needs 1\n"),
            std::string::npos);
  EXPECT_EQ(log_.lines().back(), "PlanarFilter startPage: exiting - result: 0");
}

TEST_F(PlanarFilterTest, APageWhosePlaneCannotBeMadeFailsAndLeavesNoFile) {
  testing::internal::CaptureStderr();
  // 30,000,000 rows of 16 bytes are more than a scratch file may hold.
  EXPECT_FALSE(filter_->begin(test::pageHeader(16, 30000000, 4)));
  const std::string errors = testing::internal::GetCapturedStderr();
  EXPECT_NE(errors.find("ERROR: no scratch file"), std::string::npos) << errors;
  EXPECT_EQ(planeFiles(), 0U);
  EXPECT_EQ(log_.lines().back(), "PlanarFilter startPage: exiting - result: 0");
  EXPECT_TRUE(filter_->endPage(0));
}

TEST_F(PlanarFilterTest, APageWithoutAPlaceForItsPlanesFailsWithTheReason) {
  const test::EnvironmentVariable nowhere("TMPDIR", scratch_.path().string() + "/missing");
  testing::internal::CaptureStderr();
  EXPECT_FALSE(filter_->begin(test::pageHeader(16, 8, 1)));
  const std::string errors = testing::internal::GetCapturedStderr();
  EXPECT_NE(errors.find("No such file or directory\n"), std::string::npos) << errors;
}

TEST_F(PlanarFilterTest, EveryPlaneHasAFileOfItsOwnThatThePagesEndDeletes) {
  ASSERT_TRUE(filter_->begin(test::pageHeader(16, 8, 4)));
  EXPECT_EQ(planeFiles(), 4U);
  EXPECT_TRUE(filter_->endPage(0));
  EXPECT_EQ(planeFiles(), 0U);
  EXPECT_EQ(filter_->channelCount, 0U);
  EXPECT_EQ(filter_->halftoner, nullptr);
  EXPECT_EQ(filter_->halftoneKey, "");
}

TEST_F(PlanarFilterTest, APageThatIsNeverEndedLeavesNoFile) {
  ASSERT_TRUE(filter_->begin(test::pageHeader(16, 8, 4)));
  filter_.reset();
  EXPECT_EQ(planeFiles(), 0U);
}

TEST_F(PlanarFilterTest, EveryPlaneIsFlippedBeforeTheFirstLineWhenThePageIs) {
  filter_->flip = true;
  ASSERT_TRUE(filter_->begin(test::pageHeader(16, 8, 4)));
  EXPECT_EQ(log_.count("RasterBandBuffer setFlipped: YES, rasterCount: 8, pixelHeight: 8"), 4U);
  for (const auto& plane : filter_->rasterBand) {
    EXPECT_EQ(plane->rasterLine(0) - plane->rasterLine(7), 7 * 16);
  }
}

TEST_F(PlanarFilterTest, NoPlaneIsFlippedOtherwise) {
  ASSERT_TRUE(filter_->begin(test::pageHeader(16, 8, 4)));
  for (const auto& plane : filter_->rasterBand) {
    EXPECT_EQ(plane->rasterLine(7) - plane->rasterLine(0), 7 * 16);
  }
}

TEST_F(PlanarFilterTest, AMonoLineIsScreenedIntoThePixelsOfTheOnlyPlane) {
  ASSERT_TRUE(filter_->begin(test::pageHeader(10, 2, 1)));
  ASSERT_TRUE(filter_->sendLine(0, {255, 0, 128, 127, 0, 0, 0, 200, 0, 255}));
  Bytes row(16);
  row[0] = 0b10100001;
  row[1] = 0b01000000;
  EXPECT_EQ(filter_->planeRow(0, 0), row);
  EXPECT_EQ(filter_->planeRow(0, 1), Bytes(16));
}

TEST_F(PlanarFilterTest, AColourLineIsScreenedIntoThePlaneOfEachByteOfAPixel) {
  ASSERT_TRUE(filter_->begin(test::pageHeader(4, 1, 4), {{"Gradiation", "Fine"}}));
  ASSERT_TRUE(filter_->sendLine(0, {255, 0, 0, 0,         // cyan
                                    0, 64, 0, 0,          // light magenta
                                    0, 0, 128, 192,       // yellow and black
                                    64, 128, 192, 64}));  // all
  const std::array<Bytes, 4> expected{Bytes{0x30, 0x01}, Bytes{0x04, 0x05}, Bytes{0x00, 0x89},
                                      Bytes{0x00, 0xEC}};
  for (std::size_t plane = 0; plane < 4; ++plane) {
    const Bytes row = filter_->planeRow(plane, 0);
    EXPECT_EQ(Bytes(row.begin(), row.begin() + 2), expected[plane]) << "plane " << plane;
    EXPECT_EQ(Bytes(row.begin() + 2, row.end()), Bytes(14)) << "plane " << plane;
  }
}

TEST_F(PlanarFilterTest, AMonoLineIsScreenedWithTheBlackScreen) {
  ASSERT_TRUE(filter_->begin(test::pageHeader(4, 1, 1), {{"Gradiation", "Fine"}}));
  ASSERT_TRUE(filter_->sendLine(0, {0, 64, 128, 192}));
  const Bytes row = filter_->planeRow(0, 0);
  EXPECT_EQ(Bytes(row.begin(), row.begin() + 2), (Bytes{0x0C, 0xDE}));
}

TEST_F(PlanarFilterTest, AScreenedLineIsApproved) {
  ASSERT_TRUE(filter_->begin(test::pageHeader(16, 2, 4)));
  ASSERT_TRUE(filter_->sendLine(0, Bytes(64)));
  EXPECT_EQ(filter_->rasterBand[3]->band(0), nullptr);
  ASSERT_TRUE(filter_->sendLine(1, Bytes(64)));
  for (const auto& plane : filter_->rasterBand) {
    EXPECT_NE(plane->band(0), nullptr);
  }
}

TEST_F(PlanarFilterTest, AChannelWithoutInkIsNotWrittenToItsPlane) {
  ASSERT_TRUE(filter_->begin(test::pageHeader(2, 2, 4)));
  ASSERT_TRUE(filter_->sendLine(0, {0, 0, 0, 0, 0, 255, 0, 0}));
  ASSERT_TRUE(filter_->sendLine(1, Bytes(8)));
  EXPECT_TRUE(filter_->rasterBand[0]->bandIsBlank(0));
  EXPECT_FALSE(filter_->rasterBand[1]->bandIsBlank(0));
  EXPECT_EQ(filter_->planeRow(1, 0).front(), 0b01000000);
  EXPECT_EQ(filter_->planeRow(1, 1), Bytes(16));
}

TEST_F(PlanarFilterTest, AMonoLineWithInkAnywhereIsWritten) {
  for (std::size_t x = 0; x < 8; ++x) {
    ASSERT_TRUE(filter_->begin(test::pageHeader(8, 2, 1)));
    Bytes line(8);
    line[x] = 255;
    ASSERT_TRUE(filter_->sendLine(0, Bytes(8)));
    EXPECT_TRUE(filter_->rasterBand[0]->bandIsBlank(0));
    ASSERT_TRUE(filter_->sendLine(1, line));
    EXPECT_EQ(filter_->planeRow(0, 1).front(), 0x80 >> x);
    ASSERT_TRUE(filter_->endPage(0));
  }
}

TEST_F(PlanarFilterTest, AScreenThatPrintsOnPaperPrintsOnBlankLines) {
  ASSERT_TRUE(filter_->begin(test::pageHeader(16, 1, 1), {{"PaperType", "Negative"}}));
  ASSERT_TRUE(filter_->sendLine(0, Bytes(16)));
  EXPECT_FALSE(filter_->rasterBand[0]->bandIsBlank(0));
  EXPECT_EQ(filter_->planeRow(0, 0)[1], 0xFF);
}

TEST_F(PlanarFilterTest, ALineThatCannotBeScreenedIsNotApprovedAndFails) {
  ASSERT_TRUE(filter_->begin(test::pageHeader(0, 1, 1)));
  testing::internal::CaptureStderr();
  EXPECT_FALSE(filter_->sendRaster());
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "ERROR: width must be at least 1");
  EXPECT_EQ(log_.count("ASSERT: PlanarFilter sendRaster: halftoneChunkyScanlineToPlanar failed"),
            1U);
  EXPECT_EQ(filter_->rasterBand[0]->band(0), nullptr);
}

TEST_F(PlanarFilterTest, EveryPageLoadsTheScreenSetOfItsKey) {
  ASSERT_TRUE(filter_->begin(test::pageHeader(16, 8, 4)));
  ASSERT_TRUE(filter_->endPage(0));
  ASSERT_TRUE(filter_->begin(test::pageHeader(16, 8, 1)));
  EXPECT_EQ(log_.count("PlanarFilter loading screen set: FastPlainColor"), 1U);
  EXPECT_EQ(log_.count("PlanarFilter loading screen set: FastPlainMono"), 1U);
}

TEST_F(PlanarFilterTest, AScreenThatChangesBetweenPagesPrintsOnTheNext) {
  const std::filesystem::path screen = bundle_.folder().path() / "Screens/one";
  const auto hourAgo = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1);
  for (const auto& entry : std::filesystem::recursive_directory_iterator(bundle_.folder().path())) {
    std::filesystem::last_write_time(entry, hourAgo);
  }
  const auto printedOn = [&](std::uint8_t sample) {
    EXPECT_TRUE(filter_->begin(test::pageHeader(2, 1, 1)));
    EXPECT_TRUE(filter_->sendLine(0, {sample, sample}));
    const std::uint8_t printed = filter_->planeRow(0, 0).front();
    EXPECT_TRUE(filter_->endPage(0));
    return printed;
  };
  EXPECT_EQ(printedOn(255), 0b11000000);
  EXPECT_EQ(printedOn(255), 0b11000000);
  std::filesystem::copy_file(bundle_.folder().path() / "Screens/negative", screen,
                             std::filesystem::copy_options::overwrite_existing);
  EXPECT_EQ(printedOn(255), 0);
  EXPECT_EQ(printedOn(0), 0b11000000);
}

}  // namespace
}  // namespace gdi
