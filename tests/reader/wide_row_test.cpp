// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <string>

#include <gtest/gtest.h>

#include "reader/row_width.h"
#include "tests/jobs/read_job.h"
#include "tests/jobs/sound_page.h"

namespace gdi::reader {
namespace {

using jobtest::Bytes;
using jobtest::JobBuilder;
using jobtest::kFirst;
using jobtest::kLast;
using jobtest::ReadJob;
using jobtest::Rows;
using jobtest::SoundPage;

// 17,000 pixels of 4 bits and 32 bits more are 68,032 bits, in multiples of 128 bits 68,096, of
// which the records tell 2,560.
constexpr std::size_t kWideRowBytes = 8512;
constexpr std::uint16_t kTold = 2560;
constexpr std::uint32_t kWidePixels = 17000;
constexpr std::uint32_t kWidePaper = 719667;  // micrometres: 17,000 pixels

PageRecord recordOf(std::uint16_t rowBits, std::uint32_t widthMicrometres) {
  PageRecord record;
  record.rowBits = rowBits;
  record.widthMicrometres = widthMicrometres;
  return record;
}

// Rows one after the other.
Bytes joined(const Rows& rows) {
  Bytes bytes;
  for (const Bytes& row : rows) {
    bytes.insert(bytes.end(), row.begin(), row.end());
  }
  return bytes;
}

// Pixels of 4 bits that are black all over.
SoundPage blackPage(std::uint32_t widthPixels, std::uint32_t rows) {
  return {.rows = rows, .widthPixels = widthPixels, .bitsPerPixel = 4, .ink = 0xFF};
}

JobBuilder headers() {
  JobBuilder job;
  job.jobRecord(4).hostRecord();
  return job;
}

// A page whose first band is blank and whose second is black all over.
JobBuilder blankThenBlack(std::uint32_t widthPixels, std::size_t rowBytes) {
  const SoundPage page = blackPage(widthPixels, 258);
  JobBuilder job = headers();
  job.pageRecord(fieldsOf(page));
  job.band(Ink::kBlack, kFirst, jobtest::solidRows(256, rowBytes, 0));
  return job.band(Ink::kBlack, kLast, rowsOf(page, 2)).end();
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
  const ReadJob read = readJob(blankThenBlack(kWidePixels, kWideRowBytes));
  EXPECT_EQ(read.told(), "");
  ASSERT_EQ(read.pages.size(), 1U);
  const Page& page = read.pages.front();
  EXPECT_EQ(page.record.rowBits, kTold);
  EXPECT_EQ(page.rowBits, 68096U);
  EXPECT_EQ(page.widthPixels(), 17000U);
  const Bytes black = page.plane(Ink::kBlack).rowsOfBand(1);
  ASSERT_EQ(black.size(), 2 * kWideRowBytes);
  EXPECT_EQ(Bytes(black.begin(), black.begin() + 8500), Bytes(8500, 0xFF));
}

TEST(WideRow, OfNoToldBitsIsLegal) {
  // 16,376 pixels of 4 bits: 65,504 and 32 bits are 65,536.
  const ReadJob read = readJob(blankThenBlack(16376, 8192));
  EXPECT_EQ(read.told(), "");
  ASSERT_EQ(read.pages.size(), 1U);
  const Page& page = read.pages.front();
  EXPECT_EQ(page.record.rowBits, 0U);
  EXPECT_EQ(page.widthPixels(), 16376U);
  EXPECT_EQ(page.plane(Ink::kBlack).rowsOfBand(1), joined(rowsOf(blackPage(16376, 2), 2)));
}

TEST(WideRow, IsFoundWithoutThePapersHelpWhenTheFirstInkDoesNotFitAndIsNoted) {
  const SoundPage page = blackPage(kWidePixels, 258);
  jobtest::PageFields fields = fieldsOf(page);
  fields.widthMicrometres = 0;
  JobBuilder job = headers();
  job.pageRecord(fields).band({.flags = kFirst, .rowBits = kTold, .rows = 256}, blankBand());
  job.band(Ink::kBlack, kLast, rowsOf(page, 2)).end();
  const ReadJob read = readJob(job);
  EXPECT_EQ(read.told(),
            "offset 284: page 1: note wide-rows: the page's rows are of 68096 bits, which its "
            "paper's width does not suggest\n");
  ASSERT_EQ(read.pages.size(), 1U);
  EXPECT_EQ(read.pages[0].rowBits, 68096U);
  const StoredPlane& black = read.pages[0].plane(Ink::kBlack);
  EXPECT_EQ(black.rowsOfBand(0), Bytes(256 * kWideRowBytes));
  EXPECT_EQ(black.rowsOfBand(1), joined(rowsOf(page, 2)));
}

TEST(WideRow, OfFourPlanesHasTheSameLengthInAll) {
  SoundPage page = blackPage(kWidePixels, 1);
  page.color = true;
  const ReadJob read = readJob(jobOf(page).patch(272, 56, {0, 0, 0, 0}));
  EXPECT_EQ(read.rules(), "wide-rows");
  ASSERT_EQ(read.pages.size(), 1U);
  for (const Ink ink : kInks) {
    EXPECT_EQ(jobtest::rowsOf(read.pages[0].plane(ink)), joined(rowsOf(page, 1))) << nameOf(ink);
  }
}

// A page of 632 pixels of 4 bits: 2,528 and 32 bits are the 2,560 that 17,000 pixels tell as well.
// Its first band is `ink` all over, its second has one row of 17,000 black pixels.
JobBuilder narrowThenWide(std::uint8_t ink, std::uint32_t paperWidth) {
  SoundPage narrow = blackPage(632, 257);
  narrow.ink = ink;
  jobtest::PageFields fields = fieldsOf(narrow);
  fields.widthMicrometres = paperWidth;
  JobBuilder job = headers();
  job.pageRecord(fields).band(Ink::kBlack, kFirst, rowsOf(narrow, 256));
  return job.band(Ink::kBlack, kLast, rowsOf(blackPage(kWidePixels, 1), 1)).end();
}

TEST(WideRow, IsNotTriedWhenThePaperVouchesForTheShorterOne) {
  for (const std::uint8_t ink : std::initializer_list<std::uint8_t>{0x00, 0xFF}) {
    const ReadJob read = readJob(narrowThenWide(ink, jobtest::micrometresOf(632)));
    ASSERT_EQ(read.rules(), "band-data") << read.told();
    EXPECT_EQ(read.findings[0].record, "page 1, black band 1");
    EXPECT_EQ(read.pages.at(0).rowBits, 2560U);
    EXPECT_EQ(read.pages.at(0).plane(Ink::kBlack).rowsOfBand(1), Bytes(320));
  }
}

TEST(WideRow, IsTriedOnPaperOfNoWidthBehindInkThatFitsTheShorterOne) {
  const ReadJob read = readJob(narrowThenWide(0xFF, 0));
  ASSERT_EQ(read.rules(), "wide-rows") << read.told();
  const Page& page = read.pages.at(0);
  EXPECT_EQ(page.rowBits, 68096U);
  // The 79 words of ink and what is to the right of them, blank.
  Bytes row(kWideRowBytes);
  std::fill(row.begin(), row.begin() + 316, 0xFF);
  EXPECT_EQ(page.plane(Ink::kBlack).rowsOfBand(0), joined(Rows(256, row)));
}

TEST(WideRow, WithInkInTheLast32BitsOfTheShorterOneIsTriedFirst) {
  // 2,560 bits are told, and black is all over the first 160 words of the wider row and no further.
  SoundPage page = blackPage(kWidePixels, 1);
  Rows rows(1, Bytes(kWideRowBytes));
  std::fill(rows[0].begin(), rows[0].begin() + 320, 0xFF);
  jobtest::PageFields fields = fieldsOf(page);
  fields.widthMicrometres = 0;
  JobBuilder job = headers();
  job.pageRecord(fields).band(Ink::kBlack, kFirst | kLast, rows).end();
  const ReadJob read = readJob(job);
  EXPECT_EQ(read.rules(), "wide-rows") << read.told();
  EXPECT_EQ(read.pages.at(0).rowBits, 68096U);
}

// A blank band but for a literal run of one word behind the 320 words of a row of 5,120 bits.
Bytes bandWithAWordBeyondItsRow() {
  Bytes band = blankBand();
  const Bytes run{0x00, 0x3F, 0x40, 0x01, 0x34, 0x12};
  std::copy(run.begin(), run.end(), band.begin() + 6);
  return band;
}

TEST(WideRow, ThatThePaperDoesNotSuggestHidesNoFault) {
  // 5,000 pixels of 1 bit and 32 bits are 5,120 with their padding.
  const SoundPage page{.rows = 257, .widthPixels = 5000};
  Rows slack = rowsOf(page, 1);
  slack[0].back() = 1;
  JobBuilder job;
  job.jobRecord(1).hostRecord().pageRecord(fieldsOf(page));
  const std::size_t first = job.size();
  job.band({.flags = kFirst, .rowBits = 5120, .rows = 256}, bandWithAWordBeyondItsRow());
  const std::size_t second = job.size();
  job.band({.flags = kLast, .rowBits = 5120, .rows = 1}, jobtest::literalBand(slack, true)).end();
  const ReadJob read = readJob(job);
  EXPECT_EQ(read.rules(), "band-data row-slack") << read.told();
  ASSERT_EQ(read.findings.size(), 2U);
  EXPECT_EQ(read.findings[0].offset, first + 32);
  EXPECT_EQ(read.findings[1].offset, second + 32);
  EXPECT_EQ(read.pages.at(0).rowBits, 5120U);
}

}  // namespace
}  // namespace gdi::reader
