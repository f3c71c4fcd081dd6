// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/diff_jobs.h"

#include <algorithm>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "tests/gdiview/png_reader.h"
#include "tests/gdiview/small_jobs.h"
#include "tests/support/FailingInput.h"
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
            "page 1: black band 0: flags: 3 (first of its plane, last of the page) in A, "
            "1 (first of its plane) in B\n");
}

// Records of page 2 are 64 bytes apart with their data: cyan's is the second of four.
TEST_F(DiffJobs, AFieldOfManyBandRecordsIsOneLine) {
  JobBuilder other = twoPages();
  other.patch(kBand2Offset + 64, 7, {0}).patch(kBand2Offset + 128, 7, {0});
  EXPECT_EQ(told(twoPages(), other),
            "page 2: cyan band 0: flags: 1 (first of its plane) in A, 0 in B, "
            "and so in 1 more record\n");
}

TEST_F(DiffJobs, AByteThatIsNoFieldIsToldByItsPlace) {
  EXPECT_EQ(toldOf(kPage1Offset, 16, {9}), "page 1: byte 16: 0 in A, 9 in B\n");
  EXPECT_EQ(toldOf(kBand1Offset, 28, {1}), "page 1: black band 0: byte 28: 0 in A, 1 in B\n");
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

// A row record of so many words is longer than the band.
constexpr std::size_t kData1Offset = kBand1Offset + 32;

TEST_F(DiffJobs, ABandThatDecodesInNeitherIsComparedByItsBytes) {
  const auto broken = [](std::uint8_t byte) {
    return twoPages().patch(kData1Offset, 0, {byte, 0xFF});
  };
  EXPECT_EQ(run(broken(0xFE), broken(0xFE)), kSound);
  EXPECT_EQ(told(broken(0xFE), broken(0xFF)),
            "page 1, black: 1 band with different bytes that cannot be decoded, "
            "the first is 0\n");
}

TEST_F(DiffJobs, ABandThatIsBlankInOneAndLostInTheOtherIsToldAsThat) {
  JobBuilder lost = blackPage(1, {rowOf(0)});
  lost.patch(kData1Offset, 0, {0xFF, 0xFF});
  const JobBuilder blank = blackPage(1, {rowOf(0)});
  EXPECT_EQ(told(lost, blank), "page 1, black: 1 band to be decoded only in B, the first is 0\n");
  EXPECT_EQ(told(blank, lost), "page 1, black: 1 band to be decoded only in A, the first is 0\n");
}

TEST_F(DiffJobs, APlaneThatOnePageLacksIsOneLine) {
  JobBuilder color;
  color.jobRecord(1).hostRecord().pageRecord({.rows = 1, .channels = 4});
  color.band(Ink::kBlack, kFirst, {rowOf(0xF0)});
  color.band(Ink::kCyan, kFirst, {rowOf(0)}).band(Ink::kMagenta, kFirst, {rowOf(0)});
  color.band(Ink::kYellow, kFirst | kLast, {rowOf(0x80)}).end();
  EXPECT_EQ(told(blackPage(1, {rowOf(0xF0)}), color),
            "page 1: planes: 1 (black) in A, 4 (CMYK) in B\n"
            "page 1, cyan: only in B, 1 band\n"
            "page 1, magenta: only in B, 1 band\n"
            "page 1, yellow: only in B, 1 band\n"
            "page 1: black band 0: flags: 3 (first of its plane, last of the page) in A, "
            "1 (first of its plane) in B\n"
            "page 1, yellow: 1 pixel differs, the first at column 0, row 0\n"
            "page 1, black: 1 band with different bytes for the same rows, the first is 0\n");
}

TEST_F(DiffJobs, AMissingBandIsCountedInItsPlane) {
  JobBuilder a;
  a.jobRecord(1).hostRecord().pageRecord({.rows = 2});
  JobBuilder b = a;
  a.band(Ink::kBlack, kFirst, {rowOf(0xF0)}).band(Ink::kBlack, 0, {rowOf(0)}).end();
  b.band(Ink::kBlack, kFirst, {rowOf(0xF0)}).end();
  EXPECT_EQ(told(a, b), "page 1, black: 2 bands in A, 1 in B\n");
}

// Cyan's record and data are the first 64 bytes behind black's.
TEST_F(DiffJobs, BandsInAnotherOrderAreTold) {
  const JobBuilder a = twoPages();
  JobBuilder b = a;
  const auto black = b.bytes().begin() + kBand2Offset;
  std::rotate(black, black + 64, black + 128);
  EXPECT_EQ(told(a, b),
            "page 2: band record 1: plane: black in A, cyan in B, and so in 1 more record\n");
}

// A band of 64 bytes whose record says 60: what is missing is read all the same.
TEST_F(DiffJobs, ALengthThatLiesOfTheSameBytesIsTold) {
  EXPECT_EQ(toldOf(kBand1Offset, 11, {60}),
            "page 1: black band 0: black_bytes: 64 in A, 60 in B\n");
}

TEST_F(DiffJobs, APrologueIsComparedToItsEnd) {
  const auto withPrologue = [](char last) {
    JobBuilder job;
    job.text(std::string(2000, '.') + last).raw(twoPages().bytes());
    return job;
  };
  EXPECT_EQ(run(withPrologue('a'), withPrologue('a')), kSound);
  EXPECT_EQ(told(withPrologue('a'), withPrologue('b')),
            "prologue: differs behind its first 1024 bytes\n");
  options_.ignored = {"prologue"};
  EXPECT_EQ(run(withPrologue('a'), withPrologue('b')), kSound);
}

constexpr const char* kOtherBytesDiffer =
    "job: differs in bytes outside its prologue, first records and pages\n";

TEST_F(DiffJobs, TheRecordsOfASecondJobAreCompared) {
  const JobBuilder a = twoPages().raw(twoPages().bytes());
  const JobBuilder b = twoPages().raw(twoPages("Letter").bytes());
  EXPECT_EQ(run(a, a), kSound);
  EXPECT_EQ(told(a, b), kOtherBytesDiffer);
  JobBuilder c = a;
  c.patch(twoPages().size() + kHostOffset, 8, {'d', 'i'});
  EXPECT_EQ(told(a, c), kOtherBytesDiffer);
}

TEST_F(DiffJobs, IgnoredFieldsOfASecondJobMayDiffer) {
  const JobBuilder a = twoPages().raw(twoPages().bytes());
  JobBuilder b = twoPages().raw(twoPages().bytes());
  b.patch(twoPages().size() + kHostOffset, 8, {'d', 'i'});
  b.patch(twoPages().size(), 23, {0xD6});
  options_.ignored = {"date", "host"};
  EXPECT_EQ(run(a, b), kSound);
  b.patch(twoPages().size() + kHostOffset, 72, {'e', 'm', 'm'});
  EXPECT_EQ(told(a, b), kOtherBytesDiffer);
}

// Without a job record ahead of the first page.
TEST_F(DiffJobs, AJobRecordBehindThePagesIsCompared) {
  const auto jobOf = [](const std::string& name) {
    JobBuilder job = twoPages();
    job.bytes().erase(job.bytes().begin(), job.bytes().begin() + kPage1Offset);
    return job.raw(twoPages(name).bytes());
  };
  EXPECT_EQ(told(jobOf("Report"), jobOf("Letter")), kOtherBytesDiffer);
}

TEST_F(DiffJobs, BytesBetweenBandsAreCompared) {
  const auto withGap = [](const std::string& gap) {
    JobBuilder job = twoPages();
    job.bytes().insert(job.bytes().begin() + kPage2Offset, gap.begin(), gap.end());
    return job;
  };
  EXPECT_EQ(run(withGap("abc"), withGap("abc")), kSound);
  EXPECT_EQ(told(withGap("abc"), withGap("abd")), "page 1: differs in bytes beside its bands\n");
  EXPECT_EQ(told(withGap("abc"), withGap("abcd")),
            "page 1: 3 bytes beside its bands in A, 4 in B\n");
}

TEST_F(DiffJobs, WhereBytesStandBetweenBandsIsCompared) {
  const auto withGapAt = [](std::ptrdiff_t offset) {
    JobBuilder job = twoPages();
    job.bytes().insert(job.bytes().begin() + offset, 3, '.');
    return job;
  };
  EXPECT_EQ(told(withGapAt(kBand2Offset + 64), withGapAt(kBand2Offset + 128)),
            "page 2: differs in bytes beside its bands\n");
}

TEST_F(DiffJobs, TheDataOfABandThatThePageHasNoPlaceForAreCompared) {
  const auto withCyan = [](std::uint8_t byte) {
    JobBuilder job;
    job.jobRecord(1).hostRecord().pageRecord({.rows = 1});
    job.band(Ink::kCyan, kFirst, {rowOf(byte)}).band(Ink::kBlack, kFirst | kLast, {rowOf(0)});
    return job.end();
  };
  EXPECT_EQ(told(withCyan(1), withCyan(2)), "page 1: differs in bytes beside its bands\n");
  EXPECT_EQ(told(withCyan(1), blackPage(1, {rowOf(0)})),
            "page 1, without a place: only in A, 1 band record\n"
            "page 1: differs in bytes beside its bands\n");
}

TEST_F(DiffJobs, BytesBehindTheEndOfTheJobAreCompared) {
  EXPECT_EQ(told(twoPages().text("abc"), twoPages().text("abd")), kOtherBytesDiffer);
}

TEST_F(DiffJobs, ABandAheadOfTheFirstPageIsCompared) {
  const auto withBand = [](std::uint32_t flags, std::uint8_t byte) {
    JobBuilder job;
    job.jobRecord(1).hostRecord().band(Ink::kBlack, flags, {rowOf(byte)});
    const JobBuilder page = blackPage(1, {rowOf(0)});
    return job.raw(Bytes(page.bytes().begin() + kPage1Offset, page.bytes().end()));
  };
  EXPECT_EQ(run(withBand(1, 2), withBand(1, 2)), kSound);
  EXPECT_EQ(told(withBand(1, 2), withBand(1, 3)), kOtherBytesDiffer);
  EXPECT_EQ(told(withBand(1, 2), withBand(0, 2)), kOtherBytesDiffer);
  options_.ignored = {"flags"};
  EXPECT_EQ(run(withBand(1, 2), withBand(0, 2)), kSound);
}

TEST_F(DiffJobs, WhatAStreamBreaksOffInIsCompared) {
  for (const std::size_t size :
       {kData1Offset + 20, kBand1Offset + 20, kPage1Offset + 20, kHostOffset + 20}) {
    JobBuilder a = twoPages();
    a.bytes().resize(size);
    JobBuilder b = a;
    b.bytes().back() ^= 0x40;
    EXPECT_EQ(run(a, a), kSound) << size;
    EXPECT_EQ(told(a, b), kOtherBytesDiffer) << size;
  }
}

TEST_F(DiffJobs, ARecordAheadOfAnotherPageIsADifference) {
  const auto withHostAt = [](std::ptrdiff_t offset) {
    JobBuilder job = twoPages();
    const Bytes host(job.bytes().begin() + kHostOffset, job.bytes().begin() + kPage1Offset);
    job.bytes().insert(job.bytes().begin() + offset, host.begin(), host.end());
    return job;
  };
  EXPECT_EQ(told(withHostAt(kPage1Offset), withHostAt(kEndOffset)),
            std::string("page 2: differs in bytes beside its bands\n").append(kOtherBytesDiffer));
}

// Rows of 5 bits are none that exist: what they hold cannot be told.
TEST_F(DiffJobs, PagesWithoutPixelsAreComparedByTheirBytes) {
  options_.folder = scratch_.path();
  const auto withoutPixels = [](std::uint8_t byte) {
    JobBuilder job;
    job.jobRecord(1).hostRecord().pageRecord({.rowBits = 5, .rows = 1});
    job.band({.flags = kFirst | kLast, .rowBits = 5, .rows = 1},
             jobtest::literalBand({rowOf(byte)}, true));
    return job.end();
  };
  EXPECT_EQ(run(withoutPixels(1), withoutPixels(1)), kSound);
  EXPECT_EQ(told(withoutPixels(1), withoutPixels(2)),
            "page 1, black: 1 band with different bytes that cannot be decoded, "
            "the first is 0\n");
  EXPECT_NE(told(withoutPixels(1), blackPage(1, {rowOf(0x81)}))
                .find("page 1, black: 2 pixels differ, the first at column 0, row 0\n"
                      "page 1, black: 1 band with different rows, the first is 0\n"
                      "page 1, black: 1 band to be decoded only in B, the first is 0\n"),
            std::string::npos);
}

// Each byte of a job is changed in turn: none differs unseen.
TEST_F(DiffJobs, NoByteDiffersUnseen) {
  const JobBuilder whole = twoPages().raw(twoPages().bytes()).text("abc");
  for (std::size_t at = 0; at < whole.size(); ++at) {
    JobBuilder other = whole;
    other.bytes()[at] ^= 0x40U;
    EXPECT_EQ(run(whole, other), kFaulty) << at;
  }
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

TEST_F(DiffJobs, APictureThatEndsLikeAJobIsUnusable) {
  JobBuilder picture;
  picture.text("\x89PNG\r\n\x1a\n").end();
  EXPECT_EQ(run(picture, picture), kUnusable);
  EXPECT_EQ(errors_.str(),
            "gdiview: ONE: this is no job stream: it begins like a PNG picture\n"
            "gdiview: TWO: this is no job stream: it begins like a PNG picture\n");
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
  test::FailingInput failing(bytes);
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

// Of the jobs' 2 x 756 bytes 992 are read when the first pages are over. Comparing the page's two
// rows is half of the work on them, and painting them the other half: 248 bytes a step.
TEST_F(DiffJobs, ATerminalSeesHowMuchIsComparedAndPainted) {
  options_.folder = scratch_.path();
  Progress::Time now;
  Progress progress(lines_, true, 1512, [&now] { return now += std::chrono::seconds(2); });
  std::istringstream streamA = twoPages("Report", 0x0F).stream();
  std::istringstream streamB = twoPages("Report", 0x2C).stream();
  JobInput a(streamA, "ONE");
  JobInput b(streamB, "TWO");
  EXPECT_EQ(diffJobs(a, b, options_, progress, lines_, errors_), kFaulty);
  const std::string wiped = "\r" + std::string(21, ' ') + "\r";
  EXPECT_EQ(lines_.str().find("\rgdiview: page 1, 0 %\rgdiview: page 1, 16 %"
                              "\rgdiview: page 1, 32 %" +
                              wiped + "page 1, black: 3 pixels differ, "),
            0U);
  EXPECT_NE(
      lines_.str().find("\rgdiview: page 1, 49 %\rgdiview: page 1, 65 %" + wiped + "page 1: "),
      std::string::npos);
  // Four planes of a row each are compared, and nothing is painted: 65 bytes a step.
  EXPECT_NE(lines_.str().find("\rgdiview: page 2, 65 %\rgdiview: page 2, 69 %"
                              "\rgdiview: page 2, 74 %\rgdiview: page 2, 78 %"
                              "\rgdiview: page 2, 82 %" +
                              wiped),
            std::string::npos);
}

TEST_F(DiffJobs, WithoutPicturesComparingIsAllOfTheWork) {
  Progress::Time now;
  Progress progress(lines_, true, 1512, [&now] { return now += std::chrono::seconds(2); });
  std::istringstream streamA = twoPages("Report", 0x0F).stream();
  std::istringstream streamB = twoPages("Report", 0x2C).stream();
  JobInput a(streamA, "ONE");
  JobInput b(streamB, "TWO");
  EXPECT_EQ(diffJobs(a, b, options_, progress, lines_, errors_), kFaulty);
  EXPECT_EQ(lines_.str().find("\rgdiview: page 1, 0 %\rgdiview: page 1, 32 %"
                              "\rgdiview: page 1, 65 %\r "),
            0U);
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
