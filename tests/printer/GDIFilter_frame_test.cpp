// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The frame of the job stream: which records a job consists of, and what stands in them.

#include <algorithm>
#include <array>

#include <unistd.h>

#include "printer/format/solvane_date.h"
#include "tests/printer/FilterJob.h"

namespace gdi::test {
namespace {

class JobFrame : public FilterJob {
 protected:
  // The bytes [offset, offset + count) of the only record of that tag.
  [[nodiscard]] Bytes field(const std::string& tag, std::size_t offset, std::size_t count) const {
    const std::vector<StreamRecord> found = recordsOf(records_, tag);
    if (found.empty()) {
      return {};
    }
    const auto begin = found.front().head.begin() + static_cast<std::ptrdiff_t>(offset);
    return {begin, begin + static_cast<std::ptrdiff_t>(count)};
  }
};

Bytes textField(std::string text) {
  text.resize(64);
  return {text.begin(), text.end()};
}

TEST_F(JobFrame, BeginsWithThePrologueAndEndsWithTheMark) {
  EXPECT_TRUE(run("", {{pageHeader(8, 1, 1), {}}}));
  const std::string output(stream_.begin(), stream_.end());
  EXPECT_TRUE(output.starts_with("PROLOGUE;GDIJ")) << output;
  EXPECT_TRUE(output.ends_with("JIDG"));
  EXPECT_EQ(framingOf(records_), "GDIJ GJET GDIP JIDG");
}

TEST_F(JobFrame, WithoutAPrologueBeginsWithTheJobRecord) {
  bundle_.emplace();
  EXPECT_TRUE(run("", {{pageHeader(8, 1, 1), {}}}));
  EXPECT_EQ(std::string(stream_.begin(), stream_.begin() + 4), "GDIJ");
}

TEST_F(JobFrame, CutsAPrologueBeyondASCIIShort) {
  setInformation({{"CUPSFileHeader", "caf\xC3\xA9;"}});  // 5 units, 6 bytes
  EXPECT_TRUE(run("", {}));
  EXPECT_EQ(std::string(stream_.begin(), stream_.end()), "caf\xC3\xA9JIDG");
}

TEST_F(JobFrame, OfAJobWithoutPagesIsPrologueAndMarkOnly) {
  EXPECT_TRUE(run("", {}));
  EXPECT_EQ(std::string(stream_.begin(), stream_.end()), "PROLOGUE;JIDG");
}

TEST_F(JobFrame, SendsJobAndHostRecordOnceAJob) {
  const FakePage page{pageHeader(8, 1, 1), {}};
  EXPECT_TRUE(run("", {page, page, page}));
  EXPECT_EQ(framingOf(records_), "GDIJ GJET GDIP GDIP GDIP JIDG");
}

TEST_F(JobFrame, NumbersItsPagesFromZero) {
  const FakePage page{pageHeader(8, 1, 1), {}};
  EXPECT_TRUE(run("", {page, page, page}));
  const auto pages = recordsOf(records_, "GDIP");
  ASSERT_EQ(pages.size(), 3U);
  for (std::size_t i = 0; i < pages.size(); ++i) {
    EXPECT_EQ(pages[i].head[34], 0);
    EXPECT_EQ(pages[i].head[35], i);
  }
}

TEST_F(JobFrame, NeverSaysColourInTheJobRecordButInThePageRecord) {
  const FakePage page{pageHeader(8, 1, 4), {}};
  EXPECT_TRUE(run("", {page, page}));
  EXPECT_EQ(field("GDIJ", 24, 1), Bytes{0});
  EXPECT_EQ(recordsOf(records_, "GDIP").at(0).head[32], 4);
  EXPECT_EQ(recordsOf(records_, "GDIP").at(1).head[32], 4);
}

TEST_F(JobFrame, TakesTheCopiesOfTheJobRecordFromThePageHeadersLow16Bits) {
  cups_page_header_t header = pageHeader(8, 1, 1);
  header.NumCopies = 0x10203;
  EXPECT_TRUE(run(copiesOption(7), {{header, {}}}));
  EXPECT_EQ(field("GDIJ", 10, 2), (Bytes{0x02, 0x03}));
}

TEST_F(JobFrame, DatesTheJobRecordWithTheMomentItIsMade) {
  const NSCalendarDate before = NSCalendarDate::calendarDate();
  EXPECT_TRUE(run("", {{pageHeader(8, 1, 1), {}}}));
  const NSCalendarDate after = NSCalendarDate::calendarDate();
  const auto bigEndian = [](std::uint32_t date) {
    return Bytes{static_cast<std::uint8_t>(date >> 24), static_cast<std::uint8_t>(date >> 16),
                 static_cast<std::uint8_t>(date >> 8), static_cast<std::uint8_t>(date)};
  };
  const Bytes date = field("GDIJ", 20, 4);
  EXPECT_TRUE(date == bigEndian(solvaneDate(before)) || date == bigEndian(solvaneDate(after)));
}

TEST_F(JobFrame, NamesTheJobAfterItsTitle) {
  JobFilter filter("", {{pageHeader(8, 1, 1), {}}});
  filter.title = "@Report(3)";
  EXPECT_TRUE(run(filter));
  EXPECT_EQ(field("GDIJ", 56, 64), textField("Report"));
}

TEST_F(JobFrame, NamesHostAndUser) {
  std::array<char, 256> host{};
  ASSERT_EQ(gethostname(host.data(), host.size() - 1), 0);
  JobFilter filter("", {{pageHeader(8, 1, 1), {}}});
  filter.user = "grace";
  EXPECT_TRUE(run(filter));
  EXPECT_EQ(field("GJET", 8, 64), textField(host.data()));
  EXPECT_EQ(field("GJET", 72, 64), textField("grace"));
  EXPECT_EQ(log_.count("hostname = " + std::string(host.data())), 1U);
}

TEST_F(JobFrame, AFineA4PageHasItsFigures) {
  cups_page_header_t header = pageHeader(4961, 3, 1);
  header.PageSize[0] = 595;
  header.PageSize[1] = 842;
  EXPECT_TRUE(run("media=A6 InputTray=Tray2 PaperType=Thin Gradiation=Fine", {{header, {}}}));
  EXPECT_EQ(field("GDIJ", 33, 1), Bytes{3});
  const Bytes expected{'G',  'D',  'I',  'P',  0, 0, 0, 0x40,  //
                       0x46, 3,    15,   0,                    // media, tray, paper
                       0x4E, 0x00,                             // 19968 bits a row
                       0,    3,                                // rows
                       0,    0,    0,    0,    0, 0, 0, 0,    0, 0, 0, 0, 0, 0, 0, 0,  //
                       1,    1,                                                        // channels
                       0,    0,  // page number
                       0,    0,    0,    0,    0, 0, 0, 0,    0, 0, 0, 0, 0, 0, 0, 0, 0, 0,  //
                       0,    1,                  // bands
                       0x00, 0x03, 0x33, 0xEE,   // 209902 micrometres
                       0x00, 0x04, 0x88, 0x4E};  // 297038 micrometres
  EXPECT_EQ(field("GDIP", 0, 64), expected);
}

TEST_F(JobFrame, AnUnknownQualityBehavesAsFastForThePlanes) {
  JobFilter filter("Gradiation=Best", {{pageHeader(4961, 3, 1), {}}});
  EXPECT_FALSE(run(filter));  // no screen set is named after it
  EXPECT_EQ(field("GDIJ", 33, 1), Bytes{0});
  EXPECT_EQ(log_.count("PlanarFilter loading screen set: BestPlainMono"), 1U);
  EXPECT_EQ(framingOf(records_), "GDIJ GJET JIDG");
}

TEST_F(JobFrame, StatesOneBandTooManyFor7167Rows) {
  EXPECT_TRUE(run("", {{pageHeader(8, 7016, 1), {}}, {pageHeader(8, 7167, 1), {}}}));
  const auto pages = recordsOf(records_, "GDIP");
  ASSERT_EQ(pages.size(), 2U);
  EXPECT_EQ(pages[0].head[55], 28);
  EXPECT_EQ(pages[1].head[55], 29);
}

TEST_F(JobFrame, UsesTheDefaultPaperTypeOfThePPD) {
  std::ranges::copy(std::string_view("Thin\0", 5), std::begin(DefaultPaperType));
  EXPECT_TRUE(run("PaperType=Plain", {{pageHeader(8, 1, 1), {}}}));
  EXPECT_EQ(field("GDIP", 10, 1), Bytes{1});
  EXPECT_TRUE(run("", {{pageHeader(8, 1, 1), {}}}));
  EXPECT_EQ(field("GDIP", 10, 1), Bytes{15});
  DefaultPaperType[0] = '\0';
}

TEST_F(JobFrame, HasNoRecordOfAPageThatCouldNotStart) {
  EXPECT_FALSE(run("", {{pageHeader(8, 1, 1), {}}, {pageHeader(8, 1, 3), {}}}));
  EXPECT_EQ(framingOf(records_), "GDIJ GJET GDIP JIDG");
  EXPECT_EQ(log_.count("GDIFilter startPage: exiting - result: 0"), 1U);
}

TEST_F(JobFrame, APageOfNeitherOneNorFourChannelsFailsWithTheReason) {
  for (const std::uint32_t channels : {2U, 3U, 5U}) {
    EXPECT_FALSE(run("", {{pageHeader(8, 1, channels), {}}}));
    EXPECT_NE(errors_.find("ERROR: a page of " + std::to_string(channels) +
                           " channels cannot be printed: the raster must be black (1) or CMYK "
                           "(4)\n"),
              std::string::npos)
        << errors_;
  }
}

TEST_F(JobFrame, APageThatFailsForAnotherReasonIsNotBlamedOnItsChannels) {
  for (const std::uint32_t channels : {1U, 4U}) {
    EXPECT_FALSE(run("Gradiation=Best", {{pageHeader(8, 1, channels), {}}}));
    EXPECT_EQ(errors_.find("channels cannot be printed"), std::string::npos) << errors_;
  }
}

TEST_F(JobFrame, LogsTheStepsOfAJobInOrder) {
  std::array<char, 256> host{};
  ASSERT_EQ(gethostname(host.data(), host.size() - 1), 0);
  EXPECT_TRUE(run("", {{pageHeader(8, 1, 1), {}}}));
  EXPECT_EQ(logLines({"GDIFilter", "PlanarFilter startPage", "hostname", "ASSERT"}),
            (std::vector<std::string>{
                "GDIFilter init exiting with result: 1",
                "GDIFilter startJob:", "GDIFilter startJob: exiting - result: 1",
                "GDIFilter startPage: page 0", "hostname = " + std::string(host.data()),
                "PlanarFilter startPage: page 0", "PlanarFilter startPage: exiting - result: 1",
                "GDIFilter startPage: exiting - result: 1", "GDIFilter sendRaster: wrote K band 0",
                "GDIFilter endJob:", "GDIFilter endJob: sending JIDG"}));
}

// 28,672 bytes are 229,376 bits: 229,344 pixels and 32 bits of slack.
TEST_F(JobFrame, APageAsWideAsTheSeedRowPrints) {
  EXPECT_TRUE(run("", {{pageHeader(229344, 1, 1), {}}}));
  EXPECT_EQ(orderOf(bandsOf(records_)), "K0");
}

TEST_F(JobFrame, APageWiderThanTheSeedRowFailsWithoutARecord) {
  EXPECT_FALSE(run("", {{pageHeader(229345, 1, 1), {}}}));
  EXPECT_NE(
      errors_.find("ERROR: rows of 229345 pixels at 1 bits a pixel are wider than the printer "
                   "takes (28672 bytes); choose a lower quality or smaller paper\n"),
      std::string::npos)
      << errors_;
  EXPECT_EQ(std::string(stream_.begin(), stream_.end()), "PROLOGUE;JIDG");
}

TEST_F(JobFrame, APageWhoseRowBitsDoNotFit32BitsFails) {
  JobFilter filter("Gradiation=Fine", {});
  ASSERT_TRUE(filter.prepare());
  testing::internal::CaptureStderr();
  EXPECT_FALSE(filter.startPageOf(pageHeader(0x40000008, 1, 1)));
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "ERROR: rows of 1073741832 pixels at 4 bits a pixel are wider than the printer takes "
            "(28672 bytes); choose a lower quality or smaller paper\n");
}

TEST_F(JobFrame, APageWhosePlaneIsBeyond32BitsFails) {
  JobFilter filter("", {});
  ASSERT_TRUE(filter.prepare());
  testing::internal::CaptureStderr();
  EXPECT_FALSE(filter.startPageOf(pageHeader(8, 0xFFFFFFFF, 1)));
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "ERROR: a page of 8 x 4294967295 pixels is too large; choose a lower quality or "
            "smaller paper\n");
}

}  // namespace
}  // namespace gdi::test
