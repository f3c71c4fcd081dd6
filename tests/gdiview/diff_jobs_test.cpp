// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/diff_jobs.h"

#include <algorithm>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "tests/gdiview/png_reader.h"
#include "tests/gdiview/small_jobs.h"
#include "tests/support/TemporaryFolder.h"

namespace gdi::gdiview {
namespace {

using jobtest::Bytes;
using jobtest::JobBuilder;
using jobtest::kFirst;
using jobtest::kLast;
using jobtest::Rows;
using reader::Ink;

class DiffJobs : public testing::Test {
 protected:
  int run(std::istream& a, std::istream& b) {
    JobInput inputA(a, "ONE");
    JobInput inputB(b, "TWO");
    return diffJobs(inputA, inputB, options_, progress_, lines_, errors_);
  }
  int run(const JobBuilder& a, const JobBuilder& b) {
    std::istringstream streamA = a.stream();
    std::istringstream streamB = b.stream();
    return run(streamA, streamB);
  }
  // The lines for two jobs that differ.
  std::string told(const JobBuilder& a, const JobBuilder& b) {
    lines_.str("");
    EXPECT_EQ(run(a, b), kFaulty);
    return lines_.str();
  }
  // The lines for twoPages() and the same with other bytes in one field.
  std::string toldOf(std::size_t record, std::size_t field, const Bytes& bytes) {
    return told(twoPages(), twoPages().patch(record, field, bytes));
  }

  test::TemporaryFolder scratch_;
  DiffOptions options_;
  std::ostringstream lines_;
  std::ostringstream errors_;
  Progress progress_{errors_, false};
};

// One black page whose pixels have so many bits.
JobBuilder blackPage(unsigned bitsPerPixel, const Rows& rows) {
  JobBuilder job;
  job.jobRecord(bitsPerPixel).hostRecord();
  job.pageRecord({.rows = static_cast<std::uint32_t>(rows.size())});
  job.band(Ink::kBlack, kFirst | kLast, rows);
  return job.end();
}

TEST_F(DiffJobs, TheSameJobHasNoLine) {
  EXPECT_EQ(run(twoPages(), twoPages()), kSound);
  EXPECT_EQ(lines_.str(), "");
  EXPECT_EQ(errors_.str(), "");
}

TEST_F(DiffJobs, AFieldOfTheJobRecordIsTold) {
  EXPECT_EQ(told(twoPages("Report"), twoPages("Letter")),
            "job record: name: \"Report\" in A, \"Letter\" in B\n");
  EXPECT_EQ(toldOf(0, 10, {0, 7}), "job record: copies: 3 in A, 7 in B\n");
}

// The hour is the lowest 5 bits of 0x7DAE96D5.
TEST_F(DiffJobs, ADateIsToldAsItStandsAndAsADate) {
  EXPECT_EQ(toldOf(0, 23, {0xD6}),
            "job record: date: 2108593877 (2026-11-15 21:54:36) in A, "
            "2108593878 (2026-11-15 22:54:36) in B\n");
}

TEST_F(DiffJobs, AFieldOfTheHostRecordIsTold) {
  EXPECT_EQ(toldOf(kHostOffset, 8, {'d', 'i'}),
            "host record: host: \"desk\" in A, \"disk\" in B\n");
  EXPECT_EQ(toldOf(kHostOffset, 72, {'e', 'm', 'm'}),
            "host record: user: \"anna\" in A, \"emma\" in B\n");
}

TEST_F(DiffJobs, AFieldOfAPageRecordIsTold) {
  EXPECT_EQ(toldOf(kPage1Offset, 34, {0, 5}), "page 1: number: 0 in A, 5 in B\n");
  EXPECT_EQ(toldOf(kPage2Offset, 63, {142}),
            "page 2: page_length: 42 (0.042 mm) in A, 142 (0.142 mm) in B\n");
}

TEST_F(DiffJobs, ABandsFlagsAreToldWithTheirMeaning) {
  EXPECT_EQ(toldOf(kBand1Offset, 7, {1}),
            "page 1: band record 1: flags: 3 (first of its plane, last of the page) in A, "
            "1 (first of its plane) in B\n");
}

// Records of page 2 are 64 bytes apart with their data: cyan's is the second of four.
TEST_F(DiffJobs, AFieldOfManyBandRecordsIsOneLine) {
  JobBuilder other = twoPages();
  other.patch(kBand2Offset + 64, 7, {0}).patch(kBand2Offset + 128, 7, {0});
  EXPECT_EQ(told(twoPages(), other),
            "page 2: band record 2: flags: 1 (first of its plane) in A, 0 in B, "
            "and so in 1 more record\n");
}

TEST_F(DiffJobs, AByteThatIsNoFieldIsToldByItsPlace) {
  EXPECT_EQ(toldOf(kPage1Offset, 16, {9}), "page 1: byte 16: 0 in A, 9 in B\n");
  EXPECT_EQ(toldOf(kBand1Offset, 28, {1}), "page 1: band record 1: byte 28: 0 in A, 1 in B\n");
}

TEST_F(DiffJobs, IgnoredFieldsMayDiffer) {
  options_.ignored = {"date", "host"};
  JobBuilder other = twoPages();
  other.patch(0, 23, {0xD6}).patch(kHostOffset, 8, {'d', 'i'});
  EXPECT_EQ(run(twoPages(), other), kSound);
  EXPECT_EQ(lines_.str(), "");
  other.patch(kHostOffset, 72, {'e', 'm', 'm'});
  EXPECT_EQ(told(twoPages(), other), "host record: user: \"anna\" in A, \"emma\" in B\n");
}

TEST_F(DiffJobs, ThePrologueIsTold) {
  JobBuilder other;
  other.text("HELLO\n").raw(twoPages().bytes());
  EXPECT_EQ(told(twoPages(), other), "prologue: 0 bytes \"\" in A, 6 bytes \"HELLO\\n\" in B\n");
  options_.ignored = {"prologue"};
  lines_.str("");
  EXPECT_EQ(run(twoPages(), other), kSound);
  EXPECT_EQ(lines_.str(), "");
}

TEST_F(DiffJobs, APageThatOneJobLacksIsTold) {
  JobBuilder shorter = twoPages();
  shorter.bytes().resize(kPage2Offset);
  shorter.end();
  EXPECT_EQ(told(twoPages(), shorter), "page 2: only in A\n");
  EXPECT_EQ(told(shorter, twoPages()), "page 2: only in B\n");
}

TEST_F(DiffJobs, BytesOutsideOfPagesAreTold) {
  JobBuilder longer = twoPages();
  longer.raw({0, 0, 0});
  // 120 + 152 + 4 bytes of records and mark.
  EXPECT_EQ(told(twoPages(), longer),
            "job: 276 bytes outside its prologue and pages in A, 279 in B\n");
}

// The second row's record is at byte 24 of the band: a count of 15 words, one literal run of eight
// pixel words and six filler words. Two runs of four have the same pixels.
TEST_F(DiffJobs, ABandWithOtherBytesForTheSameRowsIsTold) {
  const Bytes twoRuns{3,    0,    0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF,
                      3,    0,    0xFF, 0xFF, 0xFF, 0xFF, 0,    0,    0,    0,
                      0xFE, 0x00, 0xFE, 0x00, 0xFE, 0x00, 0xFE, 0x00, 0xFE, 0x00};
  EXPECT_EQ(toldOf(kBand1Offset + 32, 26, twoRuns),
            "page 1, black: 1 band with different bytes for the same rows, the first is 0\n");
}

// The row's record has 11 words, or 8 filler words more; 4 words of trailer follow.
TEST_F(DiffJobs, TheLengthOfARecodedBandIsNoDifferenceOfItsOwn) {
  std::vector<std::uint16_t> words{19, 0x3F00, 0xFFFF, 7, 0xF000, 0, 0, 0, 0, 0, 0, 0};
  words.insert(words.end(), 8, 0x00FE);
  words.insert(words.end(), {0x0002, 0x3F00, 0xFFFF, 0x0000});
  JobBuilder longer;
  longer.jobRecord(1).hostRecord().pageRecord({.rows = 1});
  longer.band({.flags = kFirst | kLast, .rows = 1}, jobtest::bandOfWords(words)).end();
  const JobBuilder shorter = blackPage(1, {rowOf(0xF0)});
  ASSERT_EQ(longer.size(), shorter.size() + 16);
  EXPECT_EQ(told(shorter, longer),
            "page 1, black: 1 band with different bytes for the same rows, the first is 0\n");
}

// 0x0F and 0x2C differ in 0b00100011.
TEST_F(DiffJobs, PixelsAreCountedAndTheFirstIsNamed) {
  EXPECT_EQ(told(twoPages("Report", 0x0F), twoPages("Report", 0x2C)),
            "page 1, black: 3 pixels differ, the first at column 2, row 0\n"
            "page 1, black: 1 band with different rows, the first is 0\n");
}

TEST_F(DiffJobs, APixelOfManyBitsCountsOnce) {
  const JobBuilder a = blackPage(4, {rowOf(0), rowOf(0), rowOf(0x10)});
  const JobBuilder b = blackPage(4, {rowOf(0), rowOf(0), rowOf(0x1F)});
  EXPECT_EQ(told(a, b),
            "page 1, black: 1 pixel differs, the first at column 1, row 2\n"
            "page 1, black: 1 band with different rows, the first is 0\n");
}

TEST_F(DiffJobs, PaddingIsNotTakenForPixels) {
  Bytes row = rowOf(0xF0);
  row[15] = 0b101;
  EXPECT_EQ(told(blackPage(1, {rowOf(0xF0)}), blackPage(1, {row})),
            "page 1, black: 2 bits of padding differ\n"
            "page 1, black: 1 band with different rows, the first is 0\n");
}

TEST_F(DiffJobs, PixelsOfOtherBitsAreNotCompared) {
  const JobBuilder a = blackPage(1, {rowOf(0xF0)});
  const JobBuilder b = blackPage(2, {rowOf(0x0F)});
  EXPECT_EQ(told(a, b),
            "job record: bits_per_pixel: 1 (Fast) in A, 2 (Standard) in B\n"
            "page 1: pixels of 1 bit in A, of 2 bits in B\n");
}

TEST_F(DiffJobs, WhatIsNoJobStreamIsUnusableOnEitherSide) {
  for (const bool first : {true, false}) {
    std::istringstream sound = twoPages().stream();
    std::istringstream document("%PDF-1.7\n");
    errors_.str("");
    EXPECT_EQ(first ? run(document, sound) : run(sound, document), kUnusable);
    EXPECT_EQ(errors_.str(), std::string("gdiview: ") + (first ? "ONE" : "TWO") +
                                 ": this is no job stream: it begins like a PDF document\n");
    EXPECT_EQ(lines_.str(), "");
  }
}

TEST_F(DiffJobs, TwoUnusableInputsAreTwoLines) {
  std::istringstream empty;
  std::istringstream text("text");
  EXPECT_EQ(run(empty, text), kUnusable);
  EXPECT_EQ(errors_.str(),
            "gdiview: ONE: the input is empty\n"
            "gdiview: TWO: this is no job stream: it holds no record of one\n");
}

TEST_F(DiffJobs, AnInputThatCannotBeReadOnIsUnusable) {
  Bytes bytes = twoPages().bytes();
  bytes.resize(kPage2Offset);
  FailingInput failing(bytes);
  std::istringstream sound = twoPages().stream();
  EXPECT_EQ(run(sound, failing), kUnusable);
  EXPECT_NE(errors_.str().find("gdiview: TWO: the input cannot be read beyond offset 432\n"),
            std::string::npos);
}

// The first eight pixels are 00001111 and 00101100, and the second row is solid in both.
TEST_F(DiffJobs, APictureShowsWhereThePixelsOfAPageDiffer) {
  options_.folder = scratch_.path() / "pictures";
  EXPECT_EQ(run(twoPages("Report", 0x0F), twoPages("Report", 0x2C)), kFaulty);
  const std::string path = (*options_.folder / "page-1-diff.png").string();
  EXPECT_NE(lines_.str().find("\npage 1: " + path + "\n"), std::string::npos);
  const PngPicture picture = readPng(path);
  ASSERT_EQ(picture.width, 96U);
  ASSERT_EQ(picture.height, 2U);
  ASSERT_EQ(picture.channels, 3);
  const auto colorAt = [&picture](std::size_t x, std::size_t y) {
    const auto sample = picture.samples.begin() + static_cast<std::ptrdiff_t>((y * 96 + x) * 3);
    return Bytes(sample, sample + 3);
  };
  const Bytes white{255, 255, 255};
  const Bytes paleBlack{192, 192, 192};
  EXPECT_EQ(colorAt(0, 0), white);
  EXPECT_EQ(colorAt(2, 0), (Bytes{0, 0, 220}));  // more ink in the second job
  EXPECT_EQ(colorAt(3, 0), white);
  EXPECT_EQ(colorAt(4, 0), paleBlack);
  EXPECT_EQ(colorAt(5, 0), paleBlack);
  EXPECT_EQ(colorAt(6, 0), (Bytes{220, 0, 0}));  // in the first
  EXPECT_EQ(colorAt(7, 0), (Bytes{220, 0, 0}));
  EXPECT_EQ(colorAt(95, 0), white);
  EXPECT_EQ(colorAt(0, 1), paleBlack);
  EXPECT_EQ(colorAt(95, 1), paleBlack);
  EXPECT_FALSE(std::filesystem::exists(*options_.folder / "page-2-diff.png"));
}

TEST_F(DiffJobs, AFolderThatCannotBeMadeIsTold) {
  options_.folder = scratch_.write("file", "x") / "pictures";
  EXPECT_EQ(run(twoPages(), twoPages()), kUnusable);
  EXPECT_EQ(errors_.str(), "gdiview: " + options_.folder->string() + ": Not a directory\n");
}

TEST_F(DiffJobs, APictureThatCannotBeWrittenIsUnusable) {
  options_.folder = scratch_.path();
  scratch_.makeFolder("page-1-diff.png");
  EXPECT_EQ(run(twoPages("Report", 0x0F), twoPages("Report", 0x2C)), kUnusable);
  EXPECT_EQ(errors_.str(),
            "gdiview: " + (scratch_.path() / "page-1-diff.png").string() + ": Is a directory\n");
}

TEST(FieldNames, TheyAreThePrologueAndEveryFieldOnce) {
  std::vector<std::string> names = fieldNames();
  EXPECT_EQ(names.front(), "prologue");
  for (const char* name : {"date", "host", "number", "flags", "rows"}) {
    EXPECT_EQ(std::ranges::count(names, name), 1) << name;
  }
  std::ranges::sort(names);
  EXPECT_EQ(std::ranges::adjacent_find(names), names.end());
}

}  // namespace
}  // namespace gdi::gdiview
