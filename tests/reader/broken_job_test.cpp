// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "tests/jobs/read_job.h"
#include "tests/reader/breaches.h"

namespace gdi::reader {
namespace {

using jobtest::Bytes;
using jobtest::JobBuilder;
using jobtest::kFirst;
using jobtest::kLast;
using jobtest::literalBand;
using jobtest::ReadJob;
using jobtest::readJob;
using jobtest::Rows;

// `count` rows of 16 bytes, of which the last four are zero.
Rows rowsWith(std::uint8_t byte, std::size_t count) {
  return jobtest::rowsOf({.ink = byte}, count);
}

// The same one after the other.
Bytes bytesOf(std::uint8_t byte, std::size_t count) {
  Bytes bytes;
  for (const Bytes& row : rowsWith(byte, count)) {
    bytes.insert(bytes.end(), row.begin(), row.end());
  }
  return bytes;
}

JobBuilder smallColorJob() {
  JobBuilder job;
  job.text("@").jobRecord(1).hostRecord();
  jobtest::addPage(job, {.color = true});
  return jobtest::addPage(job, {.rows = 1, .number = 1, .ink = 0x0F}).end();
}

TEST(BrokenJob, CutAtAnyByteIsOneTroubleAtItsEnd) {
  const Bytes whole = smallColorJob().bytes();
  ASSERT_EQ(readJob(whole).told(), "");
  // One byte of prologue and the eight bytes that tell a record.
  for (std::size_t length = 9; length < whole.size(); ++length) {
    const ReadJob read = readJob(Bytes(whole.begin(), whole.begin() + std::ptrdiff_t(length)));
    ASSERT_EQ(read.findings.size(), 1U) << length << ":\n" << read.told();
    EXPECT_EQ(read.findings[0].offset, length);
    EXPECT_EQ(read.findings[0].text.find("the stream ends"), 0U) << length;
  }
}

TEST(BrokenJob, CutAheadOfItsFirstRecordIsNoJob) {
  const Bytes whole = smallColorJob().bytes();
  for (std::size_t length = 0; length < 9; ++length) {
    const ReadJob read = readJob(Bytes(whole.begin(), whole.begin() + std::ptrdiff_t(length)));
    EXPECT_FALSE(read.foundRecord) << length;
    EXPECT_EQ(read.prologueBytes, length);
    EXPECT_EQ(read.told(), "");
  }
}

TEST(BrokenJob, WhatArrivedOfAPageThatIsBrokenOffIsGiven) {
  JobBuilder job = headers();
  job.pageRecord(fieldsOf(512))
      .band(Ink::kBlack, kFirst, inkedRows(256))
      .bandRecord({.flags = kLast, .rows = 256}, 1008)
      .raw(Bytes(10));
  const ReadJob read = readJob(job);
  ASSERT_EQ(read.findings.size(), 1U) << read.told();
  EXPECT_EQ(read.findings[0].text, "the stream ends after 10 of the black band's 1008 bytes");
  ASSERT_EQ(read.pages.size(), 1U);
  EXPECT_TRUE(read.pages[0].brokenOff);
  EXPECT_EQ(read.pages[0].rows(), 256U);
}

TEST(BrokenJob, ABandThatDoesNotDecodeCostsThatBandOnly) {
  JobBuilder job = headers();
  job.pageRecord(fieldsOf(768)).band(Ink::kBlack, kFirst, rowsWith(0xAA, 256));
  const std::size_t bad = job.size();
  job.band({.rows = 256}, Bytes(4096, 0xFF));  // a row of more words than there are
  job.band(Ink::kBlack, kLast, rowsWith(0x55, 256)).end();
  const ReadJob read = readJob(job);
  ASSERT_EQ(read.rules(), "band-data") << read.told();
  EXPECT_EQ(read.findings[0].offset, bad + 32);
  EXPECT_EQ(read.findings[0].record, "page 1, black band 1");
  ASSERT_EQ(read.pages.size(), 1U);
  EXPECT_EQ(read.pages[0].lostBands, 1U);
  const StoredPlane& black = read.pages[0].plane(Ink::kBlack);
  EXPECT_EQ(black.rowsOfBand(0), bytesOf(0xAA, 256));
  EXPECT_EQ(black.rowsOfBand(1), Bytes(4096, 0x00));
  EXPECT_EQ(black.rowsOfBand(2), bytesOf(0x55, 256));
}

TEST(BrokenJob, ABandThatWasNotCompressedKeepsItsPlaceOnAMonoPage) {
  JobBuilder job = headers();
  job.pageRecord(fieldsOf(512))
      .bandRecord({.flags = kFirst, .rows = 256}, 0)
      .band(Ink::kBlack, kLast, rowsWith(0x55, 256))
      .end();
  const ReadJob read = readJob(job);
  ASSERT_EQ(read.rules(), "not-compressed") << read.told();
  EXPECT_EQ(read.findings[0].text, "the band was not compressed: its rows are lost");
  const StoredPlane& black = read.pages.at(0).plane(Ink::kBlack);
  ASSERT_EQ(black.bands().size(), 2U);
  EXPECT_EQ(black.rowsOfBand(0), Bytes(4096));
  EXPECT_EQ(black.rowsOfBand(1), bytesOf(0x55, 256));
}

TEST(BrokenJob, ABandThatWasNotCompressedIsThatOfThePlaneWhoseTurnItIs) {
  JobBuilder job = headers();
  job.pageRecord(fieldsOf(1, 4))
      .band(Ink::kBlack, kFirst, inkedRows(1))
      .bandRecord({.flags = kFirst, .rows = 1}, 0)
      .band(Ink::kMagenta, kFirst, inkedRows(1))
      .band(Ink::kYellow, kFirst | kLast, inkedRows(1))
      .end();
  const ReadJob read = readJob(job);
  ASSERT_EQ(read.rules(), "not-compressed") << read.told();
  EXPECT_EQ(read.findings[0].record, "page 1, cyan band 0");
  EXPECT_EQ(read.pages.at(0).plane(Ink::kCyan).rows(), 1U);
}

TEST(BrokenJob, ABandThatWasNotCompressedIsLeftOutWhenItsPlaneCannotBeTold) {
  JobBuilder job = headers();
  job.pageRecord(fieldsOf(1, 4))
      .band(Ink::kYellow, kFirst, inkedRows(1))
      .bandRecord({.flags = kFirst, .rows = 1}, 0)
      .end();
  const ReadJob read = readJob(job);
  ASSERT_EQ(read.rules(), "not-compressed page-rows page-end") << read.told();
  EXPECT_EQ(read.findings[0].record, "page 1, band record");
  EXPECT_EQ(read.findings[0].text, "the band was not compressed, and its plane cannot be told");
  for (const Ink ink : kInks) {
    EXPECT_EQ(read.pages.at(0).plane(ink).rows(), ink == Ink::kYellow ? 1U : 0U) << nameOf(ink);
  }
}

TEST(BrokenJob, ABandOfNoRowsOrOfTooManyIsLeftOut) {
  for (const std::uint16_t rows : std::initializer_list<std::uint16_t>{0, 257, 65535}) {
    JobBuilder job = headers();
    job.pageRecord({}).band({.flags = kFirst | kLast, .rows = rows}, Bytes(1024)).end();
    const ReadJob read = readJob(job);
    ASSERT_FALSE(read.findings.empty()) << rows;
    EXPECT_EQ(read.findings[0].rule, Rule::kBandRows);
    EXPECT_EQ(read.findings[0].text,
              "the band has " + std::to_string(rows) + " rows, not 1 to 256");
    EXPECT_EQ(read.pages.at(0).rows(), 0U);
  }
}

// The rows of a page of 300 pixels, 48 bytes each.
jobtest::Rows widerRows(std::size_t count) {
  return jobtest::rowsOf({.widthPixels = 300}, count);
}

TEST(BrokenJob, ABandOfAnotherRowWidthIsLeftBlank) {
  JobBuilder job = headers();
  job.pageRecord(fieldsOf(258))
      .band(Ink::kBlack, kFirst, inkedRows(256))
      .band({.flags = kLast, .rowBits = 384, .rows = 2}, literalBand(widerRows(2), true))
      .end();
  const ReadJob read = readJob(job);
  EXPECT_EQ(read.rules(), "band-row-bits") << read.told();
  EXPECT_EQ(read.pages.at(0).plane(Ink::kBlack).rowsOfBand(1), Bytes(32));
}

TEST(BrokenJob, ABandThatLiesAboutItsRowWidthIsReadAllTheSame) {
  const ReadJob read = readJob(jobtest::jobOf({.rows = 512}).patch(kSecondBandAt, 24, {1, 0}));
  EXPECT_EQ(read.rules(), "band-row-bits") << read.told();
  EXPECT_EQ(read.pages.at(0).plane(Ink::kBlack).rowsOfBand(1), bytesOf(0xF0, 256));
}

TEST(BrokenJob, RowsAreAsLongAsTheFirstInkSaysAndItsBandAgrees) {
  JobBuilder job = headers();
  job.pageRecord(fieldsOf(2))
      .band({.flags = kFirst | kLast, .rowBits = 384, .rows = 2}, literalBand(widerRows(2), true))
      .end();
  const ReadJob read = readJob(job);
  EXPECT_EQ(read.rules(), "band-row-bits paper-size") << read.told();
  EXPECT_EQ(read.pages.at(0).rowBits, 384U);
  EXPECT_EQ(read.pages.at(0).lostBands, 0U);
}

TEST(BrokenJob, APageWhoseRowsHaveNoLengthTakesThatOfItsBands) {
  for (const std::uint16_t rowBits : std::initializer_list<std::uint16_t>{1, 127, 65535}) {
    JobBuilder job = headers();
    jobtest::PageFields fields = fieldsOf(1);
    fields.rowBits = rowBits;
    job.pageRecord(fields).band(Ink::kBlack, kFirst | kLast, inkedRows(1)).end();
    const ReadJob read = readJob(job);
    EXPECT_EQ(read.rules(), "page-row-bits") << read.told();
    EXPECT_EQ(read.pages.at(0).rowBits, 128U);
    EXPECT_EQ(jobtest::rowsOf(read.pages.at(0).plane(Ink::kBlack)), bytesOf(0xF0, 1));
  }
}

TEST(BrokenJob, APageWhoseRowsHaveNoLengthAnywhereLosesItsBands) {
  JobBuilder job = headers();
  jobtest::PageFields fields = fieldsOf(1);
  fields.rowBits = 127;
  job.pageRecord(fields)
      .band({.flags = kFirst | kLast, .rowBits = 127, .rows = 1}, literalBand(inkedRows(1), true))
      .end();
  const ReadJob read = readJob(job);
  EXPECT_EQ(read.rules(), "page-row-bits") << read.told();
  EXPECT_EQ(read.pages.at(0).rowBits, 0U);
  EXPECT_EQ(read.pages.at(0).lostBands, 1U);
  EXPECT_EQ(read.pages.at(0).widthPixels(), 0U);
  EXPECT_TRUE(jobtest::rowsOf(read.pages.at(0).plane(Ink::kBlack)).empty());
}

TEST(BrokenJob, AColoredBandOnABlackPageIsLeftOut) {
  JobBuilder job = headers();
  job.pageRecord(fieldsOf(1))
      .band(Ink::kCyan, kFirst, inkedRows(1))
      .band(Ink::kBlack, kFirst | kLast, inkedRows(1))
      .end();
  const ReadJob read = readJob(job);
  ASSERT_EQ(read.rules(), "band-plane") << read.told();
  EXPECT_EQ(read.findings[0].text, "a cyan band on a page of black alone");
  EXPECT_EQ(read.pages.at(0).plane(Ink::kCyan).rows(), 0U);
  EXPECT_EQ(jobtest::rowsOf(read.pages.at(0).plane(Ink::kBlack)), bytesOf(0xF0, 1));
}

TEST(BrokenJob, APageOfAnyNumberOfPlanesIsGiven) {
  for (const std::uint8_t channels : std::initializer_list<std::uint8_t>{0, 2, 3, 5, 255}) {
    JobBuilder job = headers();
    job.pageRecord({.channels = channels}).end();
    const ReadJob read = readJob(job);
    EXPECT_EQ(read.rules(), "channels") << int{channels};
    EXPECT_EQ(read.pages.size(), 1U);
  }
}

TEST(BrokenJob, AHugeClaimedPageOccupiesWhatArrived) {
  JobBuilder job = headers();
  job.pageRecord({.rowBits = 65408, .rows = 65535, .channels = 4})
      .band(Ink::kBlack, kFirst, jobtest::solidRows(1, 8176, 1))
      .end();
  const ReadJob read = readJob(job);
  EXPECT_EQ(read.pages.at(0).rows(), 1U);
  EXPECT_EQ(read.pages.at(0).compressedBytes,
            literalBand(jobtest::solidRows(1, 8176, 1), false).size());
}

TEST(BrokenJob, EveryTroubleIsToldAndTheStreamsEndLast) {
  JobBuilder job = headers();
  job.pageRecord({});
  for (int i = 0; i < 1000; ++i) {
    job.band({.rows = 0}, Bytes(16));
  }
  const ReadJob read = readJob(job);  // no end-of-job mark
  EXPECT_EQ(std::ranges::count(read.findings, Rule::kBandRows, &Finding::rule), 1000);
  EXPECT_EQ(read.findings.back().text, "the stream ends without the end-of-job mark (JIDG)");
  EXPECT_EQ(read.totals.violations + read.totals.remarks, read.findings.size());
}

TEST(BrokenJob, BandsWithoutDataDoNotMakeAPageLongerThanItIsTold) {
  JobBuilder job = headers();
  job.pageRecord(fieldsOf(600)).band(Ink::kBlack, kFirst, inkedRows(256));
  for (int i = 0; i < 1000; ++i) {
    job.bandRecord({.rows = 256}, 0);
  }
  const ReadJob read = readJob(job.end());
  EXPECT_EQ(read.pages.at(0).rows(), 512U);
  EXPECT_EQ(read.pages.at(0).bandCount, 1001U);
  EXPECT_EQ(read.pages.at(0).lostBands, 1000U);
}

// Every byte of a job is set to a few values in turn; the sanitizers watch.
TEST(BrokenJob, NoChangedByteDoesHarm) {
  const Bytes whole = smallColorJob().bytes();
  for (std::size_t at = 0; at < whole.size(); ++at) {
    for (const std::uint8_t value :
         std::initializer_list<std::uint8_t>{0x00, 0x3F, 0x7F, 0x80, 0xC0, 0xFF}) {
      Bytes changed = whole;
      changed[at] = value;
      const ReadJob read = readJob(changed);
      EXPECT_EQ(read.totals.bytes, whole.size()) << at;
      for (const Page& page : read.pages) {
        for (const StoredPlane& plane : page.planes) {
          PlaneRows planeRows(plane);
          std::uint32_t rows = 0;
          while (!planeRows.row(rows).empty()) {
            ++rows;
          }
          // Rows of no bytes cannot be gone through.
          EXPECT_EQ(rows, plane.rowBytes() == 0 ? 0 : plane.rows()) << at;
        }
      }
    }
  }
}

}  // namespace
}  // namespace gdi::reader
