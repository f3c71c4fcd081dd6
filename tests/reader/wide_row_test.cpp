// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <string>

#include <gtest/gtest.h>

#include "reader/JobReader.h"
#include "tests/jobs/job_builder.h"

namespace gdi::reader {
namespace {

using jobtest::Bytes;
using jobtest::JobBuilder;
using jobtest::kFirst;
using jobtest::kLast;
using jobtest::Rows;
using jobtest::solidRows;

// 17,000 pixels of 4 bits and 32 bits more are 68,032 bits, in multiples of 128 bits 68,096, of
// which the records tell 2,560.
constexpr std::size_t kWideRowBytes = 8512;
constexpr std::uint16_t kTold = 2560;
constexpr std::uint32_t kWidePaper = 719667;  // micrometres: 17,000 pixels

PageRecord recordOf(std::uint16_t rowBits, std::uint32_t widthMicrometres) {
  PageRecord record;
  record.rowBits = rowBits;
  record.widthMicrometres = widthMicrometres;
  return record;
}

struct ReadPage {
  Page page;
  std::vector<Trouble> troubles;
};

ReadPage readOne(const JobBuilder& job) {
  std::istringstream input = job.stream();
  JobReader reader(input);
  ReadPage read;
  read.page = reader.nextPage().value_or(Page());
  EXPECT_FALSE(reader.nextPage());
  read.troubles = reader.takeTroubles();
  return read;
}

// A page whose first band is blank and whose second is black all over.
JobBuilder blankThenBlack(std::uint16_t told, std::size_t rowBytes, std::uint32_t paper) {
  JobBuilder job;
  job.jobRecord(4).hostRecord();
  job.pageRecord({.rowBits = told, .rows = 258, .widthMicrometres = paper});
  job.band(Ink::kBlack, kFirst, solidRows(256, rowBytes, 0));
  return job.band(Ink::kBlack, kLast, solidRows(2, rowBytes, 0xFF)).end();
}

// A blank band as writers send it, which is the same for rows of any length.
Bytes blankBand() {
  Bytes band{0x08, 0x00, 0x00, 0x3F, 0xFF, 0xFF};
  for (int i = 0; i < 6; ++i) {
    band.insert(band.end(), {0xFE, 0x00});
  }
  band.resize(band.size() + 2 * 255);  // rows equal to the one above
  band.insert(band.end(), 528 - band.size(), 0);
  return band;
}

TEST(RowWidth, IsTheOneThatThePaperSuggests) {
  EXPECT_EQ(likelyRowBits(recordOf(kTold, kWidePaper), 4), 68096U);
  EXPECT_EQ(likelyRowBits(recordOf(kTold, kWidePaper), 1), 2560U);
  EXPECT_EQ(likelyRowBits(recordOf(19968, 209902), 4), 19968U);
  // 57,336 pixels of 4 bits: 229,344 bits and 32 are 229,376 = 3 x 65,536 + 32,768.
  EXPECT_EQ(likelyRowBits(recordOf(32768, 2427224), 4), 229376U);
}

TEST(RowWidth, IsTheShortestWhenThePaperSaysNothingOrTooMuch) {
  EXPECT_EQ(likelyRowBits(recordOf(128, 0), 4), 128U);
  EXPECT_EQ(likelyRowBits(recordOf(128, 0xFFFFFFFF), 4), 128U);
  EXPECT_EQ(likelyRowBits(recordOf(0, 0), 4), 65536U);
}

TEST(RowWidth, StaysWithinTheLongestRowThatIsSent) {
  EXPECT_EQ(nextLongerRow(128), 65664U);
  EXPECT_EQ(nextLongerRow(163840), 229376U);
  EXPECT_FALSE(nextLongerRow(163968));
}

TEST(WideRow, Of17000PixelsOf4BitsIsReadWhole) {
  const ReadPage read = readOne(blankThenBlack(kTold, kWideRowBytes, kWidePaper));
  EXPECT_TRUE(read.troubles.empty()) << read.troubles.front().text;
  EXPECT_EQ(read.page.rowBits, 68096U);
  EXPECT_EQ(read.page.widthPixels(), 17000U);
  EXPECT_EQ(read.page.plane(Ink::kBlack).rowsOfBand(1), Bytes(2 * kWideRowBytes, 0xFF));
}

TEST(WideRow, OfNoToldBitsIsLegal) {
  // 16,376 pixels of 4 bits: 65,504 and 32 bits are 65,536.
  const ReadPage read = readOne(blankThenBlack(0, 8192, 693251));
  EXPECT_TRUE(read.troubles.empty()) << read.troubles.front().text;
  EXPECT_EQ(read.page.widthPixels(), 16376U);
  EXPECT_EQ(read.page.plane(Ink::kBlack).rowsOfBand(1), Bytes(16384, 0xFF));
}

TEST(WideRow, IsFoundWithoutThePapersHelpWhenTheFirstInkDoesNotFitAndIsNoted) {
  JobBuilder job;
  job.jobRecord(4).hostRecord();
  job.pageRecord({.rowBits = kTold, .rows = 258, .widthMicrometres = 0});
  job.band({.flags = kFirst, .rowBits = kTold, .rows = 256}, blankBand());
  job.band(Ink::kBlack, kLast, solidRows(2, kWideRowBytes, 0xFF)).end();
  const ReadPage read = readOne(job);
  ASSERT_EQ(read.troubles.size(), 1U);
  EXPECT_TRUE(read.troubles[0].note);
  EXPECT_EQ(read.troubles[0].text,
            "the page's rows are of 68096 bits, which its paper's width does not suggest");
  EXPECT_EQ(read.page.rowBits, 68096U);
  EXPECT_EQ(read.page.plane(Ink::kBlack).rowsOfBand(0), Bytes(256 * kWideRowBytes));
  EXPECT_EQ(read.page.plane(Ink::kBlack).rowsOfBand(1), Bytes(2 * kWideRowBytes, 0xFF));
}

TEST(WideRow, OfFourPlanesHasTheSameLengthInAll) {
  JobBuilder job;
  job.jobRecord(4).hostRecord();
  job.pageRecord({.rowBits = kTold, .rows = 1, .channels = 4, .widthMicrometres = 0});
  for (const Ink ink : {Ink::kBlack, Ink::kCyan, Ink::kMagenta, Ink::kYellow}) {
    job.band(ink, ink == Ink::kYellow ? kFirst | kLast : kFirst, solidRows(1, kWideRowBytes, 0x11));
  }
  const ReadPage read = readOne(job.end());
  EXPECT_EQ(read.troubles.size(), 1U);
  for (const Ink ink : kInks) {
    EXPECT_EQ(read.page.plane(ink).rowsOfBand(0), Bytes(kWideRowBytes, 0x11)) << nameOf(ink);
  }
}

TEST(WideRow, IsNotTriedOnceThereIsInk) {
  JobBuilder job;
  job.jobRecord(4).hostRecord();
  job.pageRecord({.rowBits = kTold, .rows = 257, .widthMicrometres = 0});
  job.band(Ink::kBlack, kFirst, solidRows(256, 320, 0xFF));
  job.band(Ink::kBlack, kLast, solidRows(1, kWideRowBytes, 0xFF)).end();
  const ReadPage read = readOne(job);
  ASSERT_EQ(read.troubles.size(), 1U);
  EXPECT_FALSE(read.troubles[0].note);
  EXPECT_EQ(read.page.rowBits, 2560U);
}

}  // namespace
}  // namespace gdi::reader
