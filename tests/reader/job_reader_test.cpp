// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "reader/JobReader.h"
#include "tests/jobs/read_job.h"
#include "tests/reader/breaches.h"

namespace gdi::reader {
namespace {

using jobtest::Bytes;
using jobtest::JobBuilder;
using jobtest::kFirst;
using jobtest::kLast;
using jobtest::readJob;
using jobtest::ReadJob;
using jobtest::Rows;
using jobtest::rowsOf;

constexpr std::size_t kSlackBytes = 4;  // a row's last bytes, which are zero

Bytes joined(std::initializer_list<Rows> bands) {
  Bytes all;
  for (const Rows& rows : bands) {
    for (const Bytes& row : rows) {
      all.insert(all.end(), row.begin(), row.end());
    }
  }
  return all;
}

// Rows that all differ, so that a misplaced one shows.
Rows countedRows(std::size_t count, std::size_t rowBytes, unsigned seed) {
  Rows rows(count, Bytes(rowBytes));
  for (std::size_t row = 0; row < count; ++row) {
    for (std::size_t i = 0; i + kSlackBytes < rowBytes; ++i) {
      rows[row][i] = static_cast<std::uint8_t>(seed + row * 7 + i * 31);
    }
  }
  return rows;
}

TEST(JobReader, AMonoPageIsItsBlackRowsTopToBottom) {
  const Rows top = countedRows(256, 16, 1);
  const Rows bottom = countedRows(104, 16, 77);
  JobBuilder job = headers();
  job.pageRecord(fieldsOf(360))
      .band(Ink::kBlack, kFirst, top)
      .band(Ink::kBlack, kLast, bottom)
      .end();
  const ReadJob read = readJob(job);
  EXPECT_EQ(read.told(), "");
  ASSERT_EQ(read.pages.size(), 1U);
  const Page& page = read.pages[0];
  EXPECT_FALSE(page.isColor());
  EXPECT_FALSE(page.brokenOff);
  EXPECT_EQ(page.rows(), 360U);
  EXPECT_EQ(page.bandCount, 2U);
  EXPECT_EQ(page.compressedBytes,
            jobtest::literalBand(top, false).size() + jobtest::literalBand(bottom, true).size());
  EXPECT_EQ(rowsOf(page.plane(Ink::kBlack)), joined({top, bottom}));
  EXPECT_EQ(page.plane(Ink::kCyan).rows(), 0U);
}

// 96 pixels of 2 bits and the slack make a row of 256 bits.
TEST(JobReader, AColourPageHasFourPlanesWhateverTheJobRecordsColourFlagSays) {
  JobBuilder job;
  job.jobRecord(2).hostRecord();
  job.pageRecord(jobtest::fieldsOf({.rows = 300, .bitsPerPixel = 2, .color = true}));
  std::vector<std::pair<Ink, Bytes>> expected;
  unsigned seed = 3;
  for (const Ink ink : {Ink::kBlack, Ink::kCyan, Ink::kMagenta, Ink::kYellow}) {
    const Rows top = countedRows(256, 32, seed++);
    const Rows bottom = countedRows(44, 32, seed++);
    job.band(ink, kFirst, top).band(ink, ink == Ink::kYellow ? kLast : 0, bottom);
    expected.emplace_back(ink, joined({top, bottom}));
  }
  const ReadJob read = readJob(job.end());
  EXPECT_EQ(read.told(), "");
  ASSERT_EQ(read.pages.size(), 1U);
  EXPECT_EQ(parseJobRecord(read.totals.job).colorFlag, 0U);
  EXPECT_TRUE(read.pages[0].isColor());
  EXPECT_EQ(read.pages[0].bitsPerPixel, 2U);
  for (const auto& [ink, rows] : expected) {
    EXPECT_EQ(rowsOf(read.pages[0].plane(ink)), rows) << nameOf(ink);
  }
}

TEST(JobReader, PagesComeOneAfterTheOther) {
  JobBuilder job = headers();
  for (const std::uint8_t number : {std::uint8_t{0}, std::uint8_t{1}, std::uint8_t{2}}) {
    jobtest::addPage(
        job, {.rows = 1, .number = number, .ink = static_cast<std::uint8_t>(0x10 + number)});
  }
  const ReadJob read = readJob(job.end());
  EXPECT_EQ(read.told(), "");
  EXPECT_EQ(read.totals.pages, 3U);
  ASSERT_EQ(read.pages.size(), 3U);
  EXPECT_EQ(read.pages[2].record.number, 2);
  EXPECT_EQ(read.pages[2].ordinal, 3U);
  Bytes row(12, 0x12);
  row.resize(16);
  EXPECT_EQ(rowsOf(read.pages[2].plane(Ink::kBlack)), row);
}

TEST(JobReader, TheJobsOwnRecordsAreThereWithTheFirstPage) {
  JobBuilder job;
  job.text("prologue\n").jobRecord(1, "Letter").hostRecord("desk", "anna");
  std::istringstream input = jobtest::addPage(job, {}).end().stream();
  JobReader reader(input, [](const Finding& finding) { ADD_FAILURE() << lineOf(finding); });
  EXPECT_TRUE(reader.totals().job.empty());
  ASSERT_TRUE(reader.nextPage());
  ASSERT_EQ(reader.totals().job.size(), 120U);
  ASSERT_EQ(reader.totals().host.size(), 152U);
  EXPECT_EQ(parseJobRecord(reader.totals().job).name, "Letter");
  EXPECT_EQ(parseHostRecord(reader.totals().host).userName, "anna");
  EXPECT_EQ(reader.prologueBytes(), 9U);
}

TEST(JobReader, AJobWithoutPagesIsNoViolation) {
  JobBuilder job;
  const ReadJob read = readJob(job.text("prologue").end());
  EXPECT_TRUE(read.pages.empty());
  EXPECT_EQ(read.rules(), "no-pages");
  EXPECT_EQ(read.prologueBytes, 8U);
  EXPECT_EQ(read.totals.bytes, 12U);
}

TEST(JobReader, APageOfMoreThan65535RowsSaysOnlyItsLow16Bits) {
  const ReadJob read = readJob(jobtest::jobOf({.rows = 65792}));
  EXPECT_EQ(read.told(), "");
  ASSERT_EQ(read.pages.size(), 1U);
  EXPECT_EQ(read.pages[0].record.rowsModulo64K, 256U);
  EXPECT_EQ(read.pages[0].rows(), 65792U);
}

TEST(JobReader, APageShortOfRowsIsToldAndHasTheRowsThatCame) {
  JobBuilder job = headers();
  job.pageRecord(fieldsOf(300)).band(Ink::kBlack, kFirst, inkedRows(256)).end();
  const ReadJob read = readJob(job);
  EXPECT_EQ(read.told(),
            "offset 286: page 1: page-rows: the page has 256 rows of black, not 300\n");
  ASSERT_EQ(read.pages.size(), 1U);
  EXPECT_EQ(read.pages[0].rows(), 256U);
}

// A page that says `rows` and sends `bands` without the last band's flag.
JobBuilder blackBands(std::uint32_t rows, int bands, std::size_t rowsOfLast = 256) {
  JobBuilder job = headers();
  job.pageRecord(fieldsOf(rows));
  for (int band = 0; band < bands; ++band) {
    job.band(Ink::kBlack, band == 0 ? kFirst : 0, inkedRows(band == bands - 1 ? rowsOfLast : 256));
  }
  return job.end();
}

// docs/quirks.md, "A page of 257 rows"
TEST(JobReader, APageOf257RowsWithoutItsLastBandIsWorthANoteOnly) {
  const ReadJob read = readJob(blackBands(257, 1));
  EXPECT_EQ(read.told(),
            "offset 272: page 1: note steps-left-out: "
            "the page ends after its band step 0, as one of 257 rows does\n");
  EXPECT_EQ(read.totals.violations, 0U);
  EXPECT_EQ(read.totals.remarks, 1U);
  EXPECT_EQ(read.pages.at(0).rows(), 256U);
  const ReadJob longer = readJob(blackBands(1025, 4));
  EXPECT_EQ(longer.rules(), "steps-left-out") << longer.told();
  EXPECT_EQ(longer.pages.at(0).rows(), 1024U);
}

TEST(JobReader, APageShortOfOtherBandsThanTheWriterLeavesOutIsTold) {
  EXPECT_EQ(readJob(blackBands(513, 1)).rules(), "page-rows");       // two bands short
  EXPECT_EQ(readJob(blackBands(258, 1)).rules(), "page-rows");       // two rows short
  EXPECT_EQ(readJob(blackBands(513, 2, 255)).rules(), "page-rows");  // a row of band 1 short
  EXPECT_EQ(readJob(blackBands(257, 2, 1)).rules(), "page-end");     // all there without the flag
}

// A colour page of 13 x 256 + 1 rows: steps 0 to 12 send 13, 7, 1 and 0 bands.
JobBuilder colourPageOf3329Rows(std::uint32_t cyanBands) {
  JobBuilder job = headers();
  job.pageRecord(fieldsOf(3329, 4));
  const Rows rows = inkedRows(256);
  for (std::uint32_t step = 0; step < 13; ++step) {
    job.band(Ink::kBlack, step == 0 ? kFirst : 0, rows);
    if (step >= 6 && step - 6 < cyanBands) {
      job.band(Ink::kCyan, step == 6 ? kFirst : 0, rows);
    }
    if (step == 12) {
      job.band(Ink::kMagenta, kFirst, rows);
    }
  }
  return job.end();
}

TEST(JobReader, AColourPageOf3329RowsEndsAfterStep12) {
  const ReadJob read = readJob(colourPageOf3329Rows(7));
  EXPECT_EQ(read.told(),
            "offset 272: page 1: note steps-left-out: "
            "the page ends after its band step 12, as one of 3329 rows does\n");
  EXPECT_EQ(read.pages.at(0).plane(Ink::kCyan).rows(), 7U * 256);
  const ReadJob shorter = readJob(colourPageOf3329Rows(6));
  EXPECT_EQ(shorter.rules(), "page-rows") << shorter.told();
  EXPECT_EQ(shorter.totals.remarks, 0U);
}

TEST(JobReader, APageFlaggedBlankIsSoundAndSaysSo) {
  const ReadJob read = readJob(jobtest::jobOf({.blank = true}));
  EXPECT_EQ(read.told(), "");
  ASSERT_EQ(read.pages.size(), 1U);
  EXPECT_TRUE(read.pages[0].flaggedBlank);
  EXPECT_FALSE(read.pages[0].inked);
  EXPECT_EQ(rowsOf(read.pages[0].plane(Ink::kBlack)), Bytes(32));
}

TEST(JobReader, FlagsInTheWrongPlaceAreToldOnceEach) {
  JobBuilder job = headers();
  job.pageRecord(fieldsOf(768))
      .band(Ink::kBlack, 0, inkedRows(256))
      .band(Ink::kBlack, kFirst | kLast, inkedRows(256))
      .band(Ink::kBlack, kLast, inkedRows(256))
      .end();
  const ReadJob read = readJob(job);
  EXPECT_EQ(read.rules(), "first-flag first-flag last-flag") << read.told();
  ASSERT_EQ(read.findings.size(), 3U);
  EXPECT_EQ(read.findings[0].record, "page 1, black band 0");
  EXPECT_EQ(read.findings[1].record, "page 1, black band 1");
  EXPECT_EQ(read.findings[2].record, "page 1, black band 1");
  EXPECT_EQ(read.pages.at(0).rows(), 768U);
}

TEST(JobReader, AMissingTrailerCostsNoRows) {
  const Rows rows = countedRows(1, 16, 1);
  JobBuilder job = headers();
  job.pageRecord(fieldsOf(1))
      .band({.flags = kFirst | kLast, .rows = 1}, jobtest::literalBand(rows, false))
      .end();
  const ReadJob read = readJob(job);
  EXPECT_EQ(read.rules(), "trailer") << read.told();
  EXPECT_EQ(read.pages.at(0).lostBands, 0U);
  EXPECT_EQ(rowsOf(read.pages.at(0).plane(Ink::kBlack)), joined({rows}));
}

}  // namespace
}  // namespace gdi::reader
