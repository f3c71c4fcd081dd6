// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

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
using jobtest::literalBand;
using jobtest::solidRows;

struct ReadJob {
  std::vector<Page> pages;
  std::vector<Trouble> troubles;
};

ReadJob readAll(const Bytes& bytes) {
  std::istringstream input = jobtest::streamOf(bytes);
  JobReader reader(input);
  ReadJob result;
  while (std::optional<Page> page = reader.nextPage()) {
    result.pages.push_back(std::move(*page));
  }
  result.troubles = reader.takeTroubles();
  return result;
}

JobBuilder headers() {
  JobBuilder job;
  job.text("@").jobRecord(1).hostRecord();
  return job;
}

JobBuilder smallColourJob() {
  JobBuilder job = headers();
  job.pageRecord({.rows = 2, .channels = 4});
  for (const Ink ink : {Ink::kBlack, Ink::kCyan, Ink::kMagenta, Ink::kYellow}) {
    job.band(ink, ink == Ink::kYellow ? kFirst | kLast : kFirst, solidRows(2, 16, 0xF0));
  }
  job.pageRecord({.rows = 1, .number = 1});
  return job.band(Ink::kBlack, kFirst | kLast, solidRows(1, 16, 0x0F)).end();
}

TEST(BrokenJob, CutAtAnyByteIsOneTroubleAtItsEnd) {
  const Bytes whole = smallColourJob().bytes();
  ASSERT_TRUE(readAll(whole).troubles.empty());
  for (std::size_t length = 0; length < whole.size(); ++length) {
    const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
    const ReadJob read = readAll(cut);
    ASSERT_GE(read.troubles.size(), 1U) << length;
    EXPECT_LE(read.troubles.back().offset, length);
    EXPECT_EQ(read.troubles.back().text.find("the stream ends"), 0U) << length;
  }
}

TEST(BrokenJob, WhatArrivedOfAPageThatIsBrokenOffIsGiven) {
  JobBuilder job = headers();
  job.pageRecord({.rows = 512})
      .band(Ink::kBlack, kFirst, solidRows(256, 16, 0xF0))
      .bandRecord({.flags = kLast, .rows = 256}, 1000)
      .raw(Bytes(10));
  const ReadJob read = readAll(job.bytes());
  ASSERT_EQ(read.pages.size(), 1U);
  EXPECT_EQ(read.pages[0].rows(), 256U);
  ASSERT_EQ(read.troubles.size(), 1U);
  EXPECT_EQ(read.troubles[0].text, "the stream ends after 10 of the black band's 1000 bytes");
}

TEST(BrokenJob, ABandThatDoesNotDecodeCostsThatBandOnly) {
  JobBuilder job = headers();
  job.pageRecord({.rows = 768}).band(Ink::kBlack, kFirst, solidRows(256, 16, 0xAA));
  const std::size_t bad = job.size();
  job.band({.rows = 256}, Bytes(4096, 0xFF));  // copies from before the row
  job.band(Ink::kBlack, kLast, solidRows(256, 16, 0x55)).end();
  const ReadJob read = readAll(job.bytes());
  ASSERT_EQ(read.troubles.size(), 1U);
  EXPECT_EQ(read.troubles[0].offset, bad + 32);
  EXPECT_EQ(read.troubles[0].text,
            "black band 1 (4096 bytes) does not decode to 256 rows: left blank");
  ASSERT_EQ(read.pages.size(), 1U);
  const StoredPlane& black = read.pages[0].plane(Ink::kBlack);
  EXPECT_EQ(black.rowsOfBand(0), Bytes(4096, 0xAA));
  EXPECT_EQ(black.rowsOfBand(1), Bytes(4096, 0x00));
  EXPECT_EQ(black.rowsOfBand(2), Bytes(4096, 0x55));
}

TEST(BrokenJob, ABandThatWasNotCompressedKeepsItsPlaceOnAMonoPage) {
  JobBuilder job = headers();
  job.pageRecord({.rows = 512})
      .bandRecord({.flags = kFirst, .rows = 256}, 0)
      .band(Ink::kBlack, kLast, solidRows(256, 16, 0x55))
      .end();
  const ReadJob read = readAll(job.bytes());
  ASSERT_EQ(read.troubles.size(), 1U);
  EXPECT_EQ(read.troubles[0].text, "black band 0 was not compressed: left blank");
  const StoredPlane& black = read.pages.at(0).plane(Ink::kBlack);
  EXPECT_EQ(black.rowsOfBand(0), Bytes(4096));
  EXPECT_EQ(black.rowsOfBand(1), Bytes(4096, 0x55));
}

TEST(BrokenJob, ABandThatWasNotCompressedIsThatOfThePlaneWhoseTurnItIs) {
  JobBuilder job = headers();
  job.pageRecord({.rows = 1, .channels = 4})
      .band(Ink::kBlack, kFirst, solidRows(1, 16, 1))
      .bandRecord({.flags = kFirst, .rows = 1}, 0)
      .band(Ink::kMagenta, kFirst, solidRows(1, 16, 2))
      .band(Ink::kYellow, kFirst | kLast, solidRows(1, 16, 3))
      .end();
  const ReadJob read = readAll(job.bytes());
  ASSERT_EQ(read.troubles.size(), 1U);
  EXPECT_EQ(read.troubles[0].text, "cyan band 0 was not compressed: left blank");
  EXPECT_EQ(read.pages.at(0).plane(Ink::kCyan).rows(), 1U);
}

TEST(BrokenJob, ABandThatWasNotCompressedIsLeftOutWhenItsPlaneCannotBeTold) {
  JobBuilder job = headers();
  job.pageRecord({.rows = 1, .channels = 4})
      .band(Ink::kYellow, kFirst, solidRows(1, 16, 1))
      .bandRecord({.flags = kFirst, .rows = 1}, 0)
      .end();
  const ReadJob read = readAll(job.bytes());
  ASSERT_FALSE(read.troubles.empty());
  EXPECT_EQ(read.troubles[0].text, "a band of an unknown plane was not compressed: left out");
}

TEST(BrokenJob, ABandOfNoRowsOrOfTooManyIsLeftOut) {
  for (const std::uint16_t rows : std::initializer_list<std::uint16_t>{0, 257, 65535}) {
    JobBuilder job = headers();
    job.pageRecord({}).band({.flags = kFirst | kLast, .rows = rows}, Bytes(1024)).end();
    const ReadJob read = readAll(job.bytes());
    ASSERT_FALSE(read.troubles.empty()) << rows;
    EXPECT_EQ(read.troubles[0].text, "black band 0 says that it has " + std::to_string(rows) +
                                         " rows; bands have 1 to 256");
    EXPECT_EQ(read.pages.at(0).rows(), 0U);
  }
}

TEST(BrokenJob, ABandOfAnotherRowWidthIsLeftBlank) {
  JobBuilder job = headers();
  job.pageRecord({.rows = 2})
      .band({.flags = kFirst | kLast, .rowBits = 256, .rows = 2},
            literalBand(solidRows(2, 32, 1), true))
      .end();
  const ReadJob read = readAll(job.bytes());
  ASSERT_EQ(read.troubles.size(), 1U);
  EXPECT_EQ(read.pages.at(0).plane(Ink::kBlack).rowsOfBand(0), Bytes(32));
}

TEST(BrokenJob, AColouredBandOnABlackPageIsLeftOut) {
  JobBuilder job = headers();
  job.pageRecord({.rows = 1})
      .band(Ink::kBlack, kFirst | kLast, solidRows(1, 16, 1))
      .band(Ink::kCyan, kFirst, solidRows(1, 16, 1))
      .end();
  const ReadJob read = readAll(job.bytes());
  ASSERT_EQ(read.troubles.size(), 1U);
  EXPECT_EQ(read.troubles[0].text, "a cyan band on a page of black alone");
}

TEST(BrokenJob, APageRecordThatMakesNoSenseLeavesItsBandsOut) {
  for (const std::uint16_t rowBits : std::initializer_list<std::uint16_t>{1, 127, 65535}) {
    JobBuilder job = headers();
    job.pageRecord({.rowBits = rowBits, .rows = 65535})
        .band(Ink::kBlack, kFirst | kLast, solidRows(1, 16, 1))
        .end();
    const ReadJob read = readAll(job.bytes());
    EXPECT_EQ(read.troubles.size(), 1U) << rowBits;
    EXPECT_EQ(read.pages.at(0).rows(), 0U);
  }
  for (const std::uint8_t channels : std::initializer_list<std::uint8_t>{0, 2, 3, 5, 255}) {
    JobBuilder job = headers();
    job.pageRecord({.channels = channels}).end();
    EXPECT_EQ(readAll(job.bytes()).troubles.size(), 1U) << int{channels};
  }
}

TEST(BrokenJob, AHugeClaimedPageOccupiesWhatArrived) {
  JobBuilder job = headers();
  job.pageRecord({.rowBits = 65408, .rows = 65535, .channels = 4})
      .band(Ink::kBlack, kFirst, solidRows(1, 8176, 1))
      .end();
  const ReadJob read = readAll(job.bytes());
  EXPECT_EQ(read.pages.at(0).rows(), 1U);
  EXPECT_EQ(read.pages.at(0).compressedBytes, literalBand(solidRows(1, 8176, 1), false).size());
}

TEST(BrokenJob, TroublesOfAPageAreToldUpToALimit) {
  JobBuilder job = headers();
  job.pageRecord({});
  for (int i = 0; i < 1000; ++i) {
    job.band({.rows = 0}, Bytes(16));
  }
  const ReadJob read = readAll(job.end().bytes());
  ASSERT_EQ(read.troubles.size(), JobReader::kMostTroubles + 1);
  EXPECT_EQ(read.troubles.back().text, "there is more that is not told");
}

TEST(BrokenJob, TheLimitHoldsForEachPageAndTheStreamsEndIsAlwaysTold) {
  JobBuilder job = headers();
  for (int page = 0; page < 2; ++page) {
    job.pageRecord({.rowBits = 127});  // one trouble
    job.pageRecord({});
    for (int i = 0; i < 1000; ++i) {
      job.band({.rows = 0}, Bytes(16));
    }
  }
  const ReadJob read = readAll(job.bytes());  // no end-of-job mark
  const std::size_t most = JobReader::kMostTroubles;
  ASSERT_EQ(read.troubles.size(), 2 * (1 + most + 1) + 1);
  EXPECT_EQ(read.troubles[1 + most].text, "there is more that is not told");
  EXPECT_EQ(read.troubles[2 * (1 + most + 1) - 1].text, "there is more that is not told");
  EXPECT_EQ(read.troubles.back().text, "the stream ends without the end-of-job mark (JIDG)");
}

TEST(BrokenJob, BandsWithoutDataDoNotMakeAPageLongerThanItIsTold) {
  JobBuilder job = headers();
  job.pageRecord({.rows = 600}).band(Ink::kBlack, kFirst, solidRows(256, 16, 1));
  for (int i = 0; i < 1000; ++i) {
    job.bandRecord({.rows = 256}, 0);
  }
  const ReadJob read = readAll(job.end().bytes());
  EXPECT_EQ(read.pages.at(0).rows(), 512U);
  EXPECT_EQ(read.pages.at(0).bandCount, 1001U);
}

// Every byte of a job is set to a few values in turn; the sanitizers watch.
TEST(BrokenJob, NoChangedByteDoesHarm) {
  const Bytes whole = smallColourJob().bytes();
  for (std::size_t at = 0; at < whole.size(); ++at) {
    for (const std::uint8_t value :
         std::initializer_list<std::uint8_t>{0x00, 0x3F, 0x7F, 0x80, 0xC0, 0xFF}) {
      Bytes changed = whole;
      changed[at] = value;
      for (const Page& page : readAll(changed).pages) {
        for (const StoredPlane& plane : page.planes) {
          RowCursor cursor(plane);
          std::uint32_t rows = 0;
          while (!cursor.next().empty()) {
            ++rows;
          }
          EXPECT_EQ(rows, plane.rows());
        }
      }
    }
  }
}

}  // namespace
}  // namespace gdi::reader
