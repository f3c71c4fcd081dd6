// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The blank back side that completes a duplex job of an odd number of sides.

#include "filter/signals.h"
#include "tests/printer/FilterJob.h"

namespace gdi::test {
namespace {

class FillerPage : public FilterJob {
 protected:
  // A job of that many pages with ink.
  static JobFilter job(const std::string& options, std::size_t pages, std::uint32_t channels = 1) {
    return {options, std::vector<FakePage>(pages, {pageHeader(8, 300, channels),
                                                   [](std::uint32_t /*line*/, auto bytes) {
                                                     std::ranges::fill(bytes, std::uint8_t{255});
                                                   }})};
  }
  [[nodiscard]] std::vector<int> pageNumbers() const {
    std::vector<int> numbers;
    for (const StreamRecord& record : recordsOf(records_, "GDIP")) {
      numbers.push_back(record.head[34] * 256 + record.head[35]);
    }
    return numbers;
  }
  [[nodiscard]] std::size_t pagesEnded() const { return logLines({"RasterFilter endPage"}).size(); }
};

TEST_F(FillerPage, OfThreeSidesAndThreePagesIsNumberedFour) {
  JobFilter filter = job(kLongEdge + sidesOption(3), 3);
  EXPECT_TRUE(run(filter));
  EXPECT_EQ(pageNumbers(), (std::vector<int>{0, 1, 2, 4}));
  EXPECT_EQ(framingOf(records_), "GDIJ GJET GDIP GDIP GDIP GDIP JIDG");
  EXPECT_NE(errors_.find("INFO: Processing page 5\n"), std::string::npos) << errors_;
}

TEST_F(FillerPage, IsBlankAndSaysSo) {
  JobFilter filter = job(kLongEdge + sidesOption(3), 3);
  EXPECT_TRUE(run(filter));
  const std::vector<Band> bands = bandsOf(records_);
  ASSERT_EQ(bands.size(), 8U);
  EXPECT_EQ(bands[5].blank, 0U);  // the last of the third page
  EXPECT_EQ(bands[6].flags, 1U);
  EXPECT_EQ(rowsOf(bands[6]), Bytes(256 * 16));
  EXPECT_EQ(bands[7].flags, 2U);
  EXPECT_EQ(bands[7].rows, 44U);
  EXPECT_EQ(bands[7].blank, 1U);
  EXPECT_EQ(rowsOf(bands[7]), Bytes(44 * 16));
}

TEST_F(FillerPage, IsAColourPageAfterColourPages) {
  JobFilter filter = job(kLongEdge + sidesOption(3), 3, 4);
  EXPECT_TRUE(run(filter));
  EXPECT_EQ(recordsOf(records_, "GDIP").at(3).head[32], 4);
  const std::vector<Band> bands = bandsOf(records_);
  ASSERT_EQ(bands.size(), 32U);
  EXPECT_EQ(bands.back().plane, 'Y');
  EXPECT_EQ(bands.back().blank, 1U);
}

TEST_F(FillerPage, FollowsTwoPagesOfAJobOfThreeSides) {
  JobFilter filter = job(kShortEdge + sidesOption(3), 2);
  EXPECT_TRUE(run(filter));
  EXPECT_EQ(pageNumbers(), (std::vector<int>{0, 1, 3}));
}

TEST_F(FillerPage, IsMissingFromAOnePageDuplexJob) {
  JobFilter filter = job(kLongEdge + sidesOption(1), 1);
  EXPECT_TRUE(run(filter));
  EXPECT_EQ(pageNumbers(), std::vector<int>{0});
}

TEST_F(FillerPage, IsMissingFromASimplexJob) {
  JobFilter filter = job(sidesOption(3), 3);
  EXPECT_TRUE(run(filter));
  EXPECT_EQ(pageNumbers(), (std::vector<int>{0, 1, 2}));
}

TEST_F(FillerPage, IsMissingWhenTheSidesOfOneCopyAreEven) {
  JobFilter filter = job(kLongEdge + sidesOption(4), 3);
  EXPECT_TRUE(run(filter));
  EXPECT_EQ(pageNumbers(), (std::vector<int>{0, 1, 2}));
}

TEST_F(FillerPage, FollowsWhenTheSidesOfOneCopyAreOdd) {
  JobFilter filter = job(kLongEdge + sidesOption(6) + copiesOption(2), 6);
  EXPECT_TRUE(run(filter));
  EXPECT_EQ(pageNumbers(), (std::vector<int>{0, 1, 2, 3, 4, 5, 7}));
}

TEST_F(FillerPage, IsDecidedOnTheSidesAsTheyHaveGrown) {
  setInformation({{"SystemVersion", "10.4.0"}, {"SolvaneFlipDuplex", "true"}});
  JobFilter filter = job(kLongEdge + kCollate + sidesOption(3), 3);
  EXPECT_TRUE(run(filter));
  EXPECT_EQ(filter.sides.back(), 4U);
  EXPECT_EQ(pageNumbers(), (std::vector<int>{0, 1, 2}));
}

TEST_F(FillerPage, IsLoggedAheadOfTheJobsEnd) {
  JobFilter filter = job(kLongEdge + sidesOption(3), 3);
  EXPECT_TRUE(run(filter));
  EXPECT_EQ(
      logLines({"GDIFilter blankPage", "GDIFilter endJob", "GDIFilter startPage: page",
                "RasterFilter endPage"}),
      (std::vector<std::string>{
          "GDIFilter startPage: page 0", "RasterFilter endPage: blankAccumulator = 0xff",
          "GDIFilter startPage: page 1", "RasterFilter endPage: blankAccumulator = 0xff",
          "GDIFilter startPage: page 2", "RasterFilter endPage: blankAccumulator = 0xff",
          "GDIFilter blankPage: starting page", "GDIFilter startPage: page 4",
          "GDIFilter blankPage: ending page", "RasterFilter endPage: blankAccumulator = 0x00",
          "GDIFilter blankPage: complete", "GDIFilter endJob:", "GDIFilter endJob: sending JIDG"}));
}

TEST_F(FillerPage, ThatCannotStartEndsTheJobWithoutItsMark) {
  JobFilter filter = job(kLongEdge + sidesOption(3), 3);
  filter.beforePage = [](std::uint32_t page) { return page != 4; };
  EXPECT_FALSE(run(filter));
  EXPECT_EQ(framingOf(records_), "GDIJ GJET GDIP GDIP GDIP");
  EXPECT_EQ(logLines({"GDIFilter blankPage", "GDIFilter endJob", "ASSERT: GDIFilter"}),
            (std::vector<std::string>{"GDIFilter blankPage: starting page",
                                      "ASSERT: GDIFilter blankPage: startPage failed",
                                      "GDIFilter blankPage: ending page",
                                      "GDIFilter blankPage: complete", "GDIFilter endJob:"}));
  EXPECT_EQ(pagesEnded(), 3U);  // the filler page is not ended
}

TEST_F(FillerPage, WithoutALineBufferEndsTheJobWithoutItsMark) {
  cups_page_header_t bad = pageHeader(8, 1, 1);
  bad.cupsBitsPerColor = 0;
  const FakePage good{pageHeader(8, 1, 1), {}};
  EXPECT_FALSE(run(kLongEdge + sidesOption(3), {good, good, {bad, {}}}));
  EXPECT_EQ(framingOf(records_), "GDIJ GJET GDIP GDIP");
  EXPECT_EQ(logLines({"GDIFilter blankPage", "GDIFilter endJob", "ASSERT: GDIFilter"}),
            (std::vector<std::string>{"ASSERT: GDIFilter blankPage: allocRasterBuffer failed",
                                      "GDIFilter blankPage: ending page",
                                      "GDIFilter blankPage: complete", "GDIFilter endJob:"}));
}

TEST_F(FillerPage, OfACancelledJobHasNoBandsAndTheJobNoMark) {
  JobFilter filter = job(kLongEdge + sidesOption(3), 3);
  filter.beforePage = [](std::uint32_t page) {
    gSigTerm = page == 4 ? 1 : 0;
    return true;
  };
  EXPECT_FALSE(run(filter));
  EXPECT_EQ(framingOf(records_), "GDIJ GJET GDIP GDIP GDIP GDIP");
  EXPECT_EQ(bandsOf(records_).size(), 6U);
  EXPECT_EQ(logLines({"GDIFilter blankPage", "GDIFilter endJob"}),
            (std::vector<std::string>{"GDIFilter blankPage: starting page",
                                      "GDIFilter blankPage: ending page",
                                      "GDIFilter blankPage: complete", "GDIFilter endJob:"}));
  EXPECT_EQ(pagesEnded(), 3U);  // the filler page is not ended
}

TEST_F(FillerPage, StartsFromTheOrientationOfTheLastPage) {
  JobFilter filter = job(kLongEdge + sidesOption(3) + "Rotated=true", 3);
  EXPECT_TRUE(run(filter));
  ASSERT_EQ(filter.turns.size(), 4U);
  EXPECT_TRUE(filter.turns[2].flip);
  EXPECT_FALSE(filter.turns[3].flip);
}

}  // namespace
}  // namespace gdi::test
