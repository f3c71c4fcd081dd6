// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <algorithm>
#include <string>
#include <vector>

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

struct ReadJob {
  std::vector<Page> pages;
  std::vector<Trouble> troubles;
  bool ended = false;
};

ReadJob readAll(const JobBuilder& job) {
  std::istringstream input = job.stream();
  JobReader reader(input);
  ReadJob result;
  while (std::optional<Page> page = reader.nextPage()) {
    result.pages.push_back(std::move(*page));
  }
  result.troubles = reader.takeTroubles();
  result.ended = reader.ended();
  return result;
}

// Every troubled offset and text in one string, so that a failing test shows them.
std::string told(const ReadJob& job) {
  std::string text;
  for (const Trouble& trouble : job.troubles) {
    text += std::to_string(trouble.offset) + ": " + trouble.text + "\n";
  }
  return text;
}

Bytes rowsOf(const StoredPlane& plane) {
  Bytes rows;
  for (std::size_t band = 0; band < plane.bands().size(); ++band) {
    const Bytes decoded = plane.rowsOfBand(band);
    rows.insert(rows.end(), decoded.begin(), decoded.end());
  }
  return rows;
}

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
    for (std::size_t i = 0; i < rowBytes; ++i) {
      rows[row][i] = static_cast<std::uint8_t>(seed + row * 7 + i * 31);
    }
  }
  return rows;
}

JobBuilder headers(unsigned bitsPerPixel = 1) {
  JobBuilder job;
  job.text("prologue\n").jobRecord(bitsPerPixel, "Letter").hostRecord("desk", "anna");
  return job;
}

TEST(JobReader, AMonoPageIsItsBlackRowsTopToBottom) {
  const Rows top = countedRows(256, 16, 1);
  const Rows bottom = countedRows(104, 16, 77);
  JobBuilder job = headers();
  job.pageRecord({.rows = 360})
      .band(Ink::kBlack, kFirst, top)
      .band(Ink::kBlack, kLast, bottom)
      .end();
  const ReadJob read = readAll(job);
  EXPECT_EQ(told(read), "");
  EXPECT_TRUE(read.ended);
  ASSERT_EQ(read.pages.size(), 1U);
  const Page& page = read.pages[0];
  EXPECT_FALSE(page.isColor());
  EXPECT_EQ(page.rows(), 360U);
  EXPECT_EQ(page.bandCount, 2U);
  EXPECT_EQ(page.compressedBytes,
            jobtest::literalBand(top, false).size() + jobtest::literalBand(bottom, true).size());
  EXPECT_EQ(rowsOf(page.plane(Ink::kBlack)), joined({top, bottom}));
  EXPECT_EQ(page.plane(Ink::kCyan).rows(), 0U);
}

TEST(JobReader, AColourPageHasFourPlanesWhateverTheJobRecordsColourFlagSays) {
  JobBuilder job = headers(2);
  job.pageRecord({.rows = 300, .channels = 4});
  std::vector<std::pair<Ink, Bytes>> expected;
  unsigned seed = 3;
  for (const Ink ink : {Ink::kBlack, Ink::kCyan, Ink::kMagenta, Ink::kYellow}) {
    const Rows top = countedRows(256, 16, seed++);
    const Rows bottom = countedRows(44, 16, seed++);
    job.band(ink, kFirst, top).band(ink, ink == Ink::kYellow ? kLast : 0, bottom);
    expected.emplace_back(ink, joined({top, bottom}));
  }
  const ReadJob read = readAll(job.end());
  EXPECT_EQ(told(read), "");
  ASSERT_EQ(read.pages.size(), 1U);
  EXPECT_TRUE(read.pages[0].isColor());
  EXPECT_EQ(read.pages[0].bitsPerPixel, 2U);
  for (const auto& [ink, rows] : expected) {
    EXPECT_EQ(rowsOf(read.pages[0].plane(ink)), rows) << nameOf(ink);
  }
}

TEST(JobReader, PagesComeOneAfterTheOther) {
  JobBuilder job = headers();
  for (std::uint16_t number = 0; number < 3; ++number) {
    job.pageRecord({.rows = 1, .number = number})
        .band(Ink::kBlack, kFirst | kLast, solidRows(1, 16, static_cast<std::uint8_t>(number)));
  }
  const ReadJob read = readAll(job.end());
  EXPECT_EQ(told(read), "");
  ASSERT_EQ(read.pages.size(), 3U);
  EXPECT_EQ(read.pages[2].record.number, 2);
  EXPECT_EQ(rowsOf(read.pages[2].plane(Ink::kBlack)), Bytes(16, 2));
}

TEST(JobReader, TheJobsOwnRecordsAreThereWithTheFirstPage) {
  JobBuilder job = headers();
  job.pageRecord({}).end();
  std::istringstream input = job.stream();
  JobReader reader(input);
  EXPECT_FALSE(reader.job());
  ASSERT_TRUE(reader.nextPage());
  ASSERT_TRUE(reader.job() && reader.host());
  EXPECT_EQ(reader.job()->name, "Letter");
  EXPECT_EQ(reader.host()->userName, "anna");
  EXPECT_EQ(reader.prologueBytes(), 9U);
}

TEST(JobReader, AJobWithoutPagesIsSound) {
  JobBuilder job;
  const ReadJob read = readAll(job.text("prologue").end());
  EXPECT_TRUE(read.pages.empty());
  EXPECT_EQ(told(read), "");
  EXPECT_TRUE(read.ended);
}

TEST(JobReader, APageOfMoreThan65535RowsSaysOnlyItsLow16Bits) {
  JobBuilder job = headers();
  job.pageRecord({.rows = 65792 - 65536});
  const Rows band = solidRows(256, 16, 0x81);
  for (int i = 0; i < 257; ++i) {
    job.band(Ink::kBlack, i == 0 ? kFirst : i == 256 ? kLast : 0, band);
  }
  const ReadJob read = readAll(job.end());
  EXPECT_EQ(told(read), "");
  ASSERT_EQ(read.pages.size(), 1U);
  EXPECT_EQ(read.pages[0].rows(), 65792U);
}

TEST(JobReader, APageShortOfRowsIsTold) {
  JobBuilder job = headers();
  const std::size_t page = job.size();
  job.pageRecord({.rows = 300}).band(Ink::kBlack, kFirst, solidRows(256, 16, 1)).end();
  const ReadJob read = readAll(job);
  EXPECT_EQ(told(read),
            std::to_string(page) + ": the page has 256 rows of black, its page record says 300\n" +
                std::to_string(page) + ": the page's last band lacks the last band's flag\n");
  ASSERT_EQ(read.pages.size(), 1U);
  EXPECT_EQ(read.pages[0].rows(), 256U);
}

JobBuilder blackBands(std::uint16_t rows, int bands, std::size_t rowsOfLast = 256) {
  JobBuilder job = headers();
  job.pageRecord({.rows = rows});
  for (int band = 0; band < bands; ++band) {
    job.band(Ink::kBlack, band == 0 ? kFirst : 0,
             solidRows(band == bands - 1 ? rowsOfLast : 256, 16, 1));
  }
  return job.end();
}

// docs/quirks.md, "A page of 257 rows"
TEST(JobReader, APageOf257RowsWithoutItsLastBandIsWorthANoteOnly) {
  const ReadJob read = readAll(blackBands(257, 1));
  const std::size_t page = headers().size();
  EXPECT_EQ(told(read), std::to_string(page) +
                            ": the page ends after its band step 0, as one of 257 rows does "
                            "(docs/quirks.md, \"A page of 257 rows\")\n");
  ASSERT_EQ(read.troubles.size(), 1U);
  EXPECT_TRUE(read.troubles[0].note);
  EXPECT_EQ(read.pages.at(0).rows(), 256U);
  const ReadJob longer = readAll(blackBands(1025, 4));
  ASSERT_EQ(longer.troubles.size(), 1U) << told(longer);
  EXPECT_TRUE(longer.troubles[0].note);
}

TEST(JobReader, APageOf65537RowsWithoutItsLastBandIsWorthANoteOnly) {
  const ReadJob read = readAll(blackBands(1, 256));
  ASSERT_EQ(read.troubles.size(), 1U) << told(read);
  EXPECT_TRUE(read.troubles[0].note);
}

TEST(JobReader, APageShortOfOtherBandsThanTheWriterLeavesOutIsTold) {
  EXPECT_EQ(readAll(blackBands(513, 1)).troubles.size(), 2U);       // two bands short
  EXPECT_EQ(readAll(blackBands(258, 1)).troubles.size(), 2U);       // two rows short
  EXPECT_EQ(readAll(blackBands(513, 2, 255)).troubles.size(), 2U);  // a row of band 1 short
  EXPECT_EQ(readAll(blackBands(257, 2, 1)).troubles.size(), 1U);    // all there without the flag
  for (const Trouble& trouble : readAll(blackBands(513, 1)).troubles) {
    EXPECT_FALSE(trouble.note);
  }
}

// A colour page of 13 x 256 + 1 rows: steps 0 to 12 send 13, 7, 1 and 0 bands.
JobBuilder colourPageOf3329Rows(std::uint32_t cyanBands) {
  JobBuilder job = headers();
  job.pageRecord({.rows = 3329, .channels = 4});
  const Rows rows = solidRows(256, 16, 1);
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
  const ReadJob read = readAll(colourPageOf3329Rows(7));
  ASSERT_EQ(read.troubles.size(), 1U) << told(read);
  EXPECT_TRUE(read.troubles[0].note);
  EXPECT_EQ(read.pages.at(0).plane(Ink::kCyan).rows(), 7U * 256);
  EXPECT_EQ(readAll(colourPageOf3329Rows(6)).troubles.size(), 5U);
}

TEST(JobReader, ABlankFlagOnAPageWithInkIsTold) {
  for (const std::uint8_t byte : std::initializer_list<std::uint8_t>{0x00, 0x10}) {
    const Rows rows = solidRows(1, 16, byte);
    JobBuilder job = headers();
    job.pageRecord({.rows = 1})
        .band({.flags = kFirst | kLast, .rows = 1, .pageBlank = true},
              jobtest::literalBand(rows, true))
        .end();
    const ReadJob read = readAll(job);
    EXPECT_EQ(read.troubles.size(), byte == 0 ? 0U : 1U) << told(read);
    EXPECT_TRUE(read.pages[0].flaggedBlank);
  }
}

TEST(JobReader, FlagsInTheWrongPlaceAreTold) {
  JobBuilder job = headers();
  job.pageRecord({.rows = 768})
      .band(Ink::kBlack, 0, solidRows(256, 16, 1))
      .band(Ink::kBlack, kFirst | kLast, solidRows(256, 16, 2))
      .band(Ink::kBlack, kLast, solidRows(256, 16, 3))
      .end();
  const std::string text = told(readAll(job));
  EXPECT_NE(text.find("black band 0 lacks the first band's flag"), std::string::npos) << text;
  EXPECT_NE(text.find("black band 1 has the first band's flag"), std::string::npos) << text;
  EXPECT_NE(text.find("black band 2 follows the page's last band"), std::string::npos) << text;
}

TEST(JobReader, AMissingTrailerIsTold) {
  const Rows rows = solidRows(1, 16, 1);
  JobBuilder job = headers();
  job.pageRecord({.rows = 1})
      .band({.flags = kFirst | kLast, .rows = 1}, jobtest::literalBand(rows, false))
      .end();
  const ReadJob read = readAll(job);
  ASSERT_EQ(read.troubles.size(), 1U) << told(read);
  EXPECT_NE(told(read).find("not the page's trailer"), std::string::npos);
  EXPECT_EQ(rowsOf(read.pages[0].plane(Ink::kBlack)), Bytes(16, 1));
}

}  // namespace
}  // namespace gdi::reader
