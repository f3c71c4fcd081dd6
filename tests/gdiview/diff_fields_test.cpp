// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// How the fields of two jobs' records, and their numbers, are told to differ.

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/gdiview/diff_jobs_fixture.h"

namespace gdi::gdiview {
namespace {

using jobtest::JobBuilder;
using jobtest::kFirst;
using jobtest::kLast;
using reader::Ink;

class DiffFields : public DiffJobs {};

TEST_F(DiffFields, AFieldOfTheJobRecordIsTold) {
  EXPECT_EQ(told(twoPages("Report"), twoPages("Letter")),
            "job record: name: \"Report\" in A, \"Letter\" in B\n");
  EXPECT_EQ(toldOf(0, 10, {0, 7}), "job record: copies: 3 in A, 7 in B\n");
}

// The hour is the lowest 5 bits of 0x7DAE96D5.
TEST_F(DiffFields, ADateIsToldAsItStandsAndAsADate) {
  EXPECT_EQ(toldOf(0, 23, {0xD6}),
            "job record: date: 2108593877 (2026-11-15 21:54:36) in A, "
            "2108593878 (2026-11-15 22:54:36) in B\n");
}

TEST_F(DiffFields, AFieldOfTheHostRecordIsTold) {
  EXPECT_EQ(toldOf(kHostOffset, 8, {'d', 'i'}),
            "host record: host: \"desk\" in A, \"disk\" in B\n");
  EXPECT_EQ(toldOf(kHostOffset, 72, {'e', 'm', 'm'}),
            "host record: user: \"anna\" in A, \"emma\" in B\n");
}

TEST_F(DiffFields, AFieldOfAPageRecordIsTold) {
  EXPECT_EQ(toldOf(kPage1Offset, 34, {0, 5}), "page 1: number: 0 in A, 5 in B\n");
  EXPECT_EQ(toldOf(kPage2Offset, 63, {142}),
            "page 2: page_length: 42 (0.042 mm) in A, 142 (0.142 mm) in B\n");
}

TEST_F(DiffFields, ABandsFlagsAreToldWithTheirMeaning) {
  EXPECT_EQ(toldOf(kBand1Offset, 7, {1}),
            "page 1: black band 0: flags: 3 (first of its plane, last of the page) in A, "
            "1 (first of its plane) in B\n");
}

// Records of page 2 are 64 bytes apart with their data: cyan's is the second of four.
TEST_F(DiffFields, AFieldOfManyBandRecordsIsOneLine) {
  JobBuilder other = twoPages();
  other.patch(kBand2Offset + 64, 7, {0}).patch(kBand2Offset + 128, 7, {0});
  EXPECT_EQ(told(twoPages(), other),
            "page 2: cyan band 0: flags: 1 (first of its plane) in A, 0 in B, "
            "and so in 1 more record\n");
}

TEST_F(DiffFields, AByteThatIsNoFieldIsToldByItsPlace) {
  EXPECT_EQ(toldOf(kPage1Offset, 16, {9}), "page 1: byte 16: 0 in A, 9 in B\n");
  EXPECT_EQ(toldOf(kBand1Offset, 28, {1}), "page 1: black band 0: byte 28: 0 in A, 1 in B\n");
}

TEST_F(DiffFields, IgnoredFieldsMayDiffer) {
  options_.ignored = {"date", "host"};
  JobBuilder other = twoPages();
  other.patch(0, 23, {0xD6}).patch(kHostOffset, 8, {'d', 'i'});
  EXPECT_EQ(run(twoPages(), other), kSound);
  EXPECT_EQ(lines_.str(), "");
  other.patch(kHostOffset, 72, {'e', 'm', 'm'});
  EXPECT_EQ(told(twoPages(), other), "host record: user: \"anna\" in A, \"emma\" in B\n");
}

TEST_F(DiffFields, APlaneThatOnePageLacksIsOneLine) {
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

TEST_F(DiffFields, AMissingBandIsCountedInItsPlane) {
  JobBuilder a;
  a.jobRecord(1).hostRecord().pageRecord({.rows = 2});
  JobBuilder b = a;
  a.band(Ink::kBlack, kFirst, {rowOf(0xF0)}).band(Ink::kBlack, 0, {rowOf(0)}).end();
  b.band(Ink::kBlack, kFirst, {rowOf(0xF0)}).end();
  EXPECT_EQ(told(a, b), "page 1, black: 2 bands in A, 1 in B\n");
}

// Cyan's record and data are the first 64 bytes behind black's.
TEST_F(DiffFields, BandsInAnotherOrderAreTold) {
  const JobBuilder a = twoPages();
  JobBuilder b = a;
  const auto black = b.bytes().begin() + kBand2Offset;
  std::rotate(black, black + 64, black + 128);
  EXPECT_EQ(told(a, b),
            "page 2: band record 1: plane: black in A, cyan in B, and so in 1 more record\n");
}

// A band of 64 bytes whose record says 60: what is missing is read all the same.
TEST_F(DiffFields, ALengthThatLiesOfTheSameBytesIsTold) {
  EXPECT_EQ(toldOf(kBand1Offset, 11, {60}),
            "page 1: black band 0: black_bytes: 64 in A, 60 in B\n");
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
