// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// How bands and pixels are told to differ.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/gdiview/diff_jobs_fixture.h"

namespace gdi::gdiview {
namespace {

using jobtest::Bytes;
using jobtest::JobBuilder;
using jobtest::kFirst;
using jobtest::kLast;
using jobtest::Rows;

class DiffBands : public DiffJobs {};

// The second row's record is at byte 24 of the band: a count of 15 words, one literal run of eight
// pixel words and six filler words. Two runs of four have the same pixels.
TEST_F(DiffBands, ABandWithOtherBytesForTheSameRowsIsTold) {
  const Bytes twoRuns{3,    0,    0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF,
                      3,    0,    0xFF, 0xFF, 0xFF, 0xFF, 0,    0,    0,    0,
                      0xFE, 0x00, 0xFE, 0x00, 0xFE, 0x00, 0xFE, 0x00, 0xFE, 0x00};
  EXPECT_EQ(toldOf(kBand1Offset + 32, 26, twoRuns),
            "page 1, black: 1 band with different bytes for the same rows, the first is 0\n");
}

// The row's record has 11 words, or 8 filler words more; 4 words of trailer follow.
TEST_F(DiffBands, TheLengthOfARecodedBandIsNoDifferenceOfItsOwn) {
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
TEST_F(DiffBands, ABandThatDecodesInNeitherIsComparedByItsBytes) {
  const auto broken = [](std::uint8_t byte) {
    return twoPages().patch(kData1Offset, 0, {byte, 0xFF});
  };
  EXPECT_EQ(run(broken(0xFE), broken(0xFE)), kSound);
  EXPECT_EQ(told(broken(0xFE), broken(0xFF)),
            "page 1, black: 1 band with different bytes that cannot be decoded, "
            "the first is 0\n");
}

TEST_F(DiffBands, ABandThatIsBlankInOneAndLostInTheOtherIsToldAsThat) {
  JobBuilder lost = blackPage(1, {rowOf(0)});
  lost.patch(kData1Offset, 0, {0xFF, 0xFF});
  const JobBuilder blank = blackPage(1, {rowOf(0)});
  EXPECT_EQ(told(lost, blank), "page 1, black: 1 band to be decoded only in B, the first is 0\n");
  EXPECT_EQ(told(blank, lost), "page 1, black: 1 band to be decoded only in A, the first is 0\n");
}

// Rows of 5 bits are none that exist: what they hold cannot be told.
TEST_F(DiffBands, PagesWithoutPixelsAreComparedByTheirBytes) {
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

// 0x0F and 0x2C differ in 0b00100011.
TEST_F(DiffBands, PixelsAreCountedAndTheFirstIsNamed) {
  EXPECT_EQ(told(twoPages("Report", 0x0F), twoPages("Report", 0x2C)),
            "page 1, black: 3 pixels differ, the first at column 2, row 0\n"
            "page 1, black: 1 band with different rows, the first is 0\n");
}

TEST_F(DiffBands, APixelOfManyBitsCountsOnce) {
  const JobBuilder a = blackPage(4, {rowOf(0), rowOf(0), rowOf(0x10)});
  const JobBuilder b = blackPage(4, {rowOf(0), rowOf(0), rowOf(0x1F)});
  EXPECT_EQ(told(a, b),
            "page 1, black: 1 pixel differs, the first at column 1, row 2\n"
            "page 1, black: 1 band with different rows, the first is 0\n");
}

TEST_F(DiffBands, PaddingIsNotTakenForPixels) {
  Bytes row = rowOf(0xF0);
  row[15] = 0b101;
  EXPECT_EQ(told(blackPage(1, {rowOf(0xF0)}), blackPage(1, {row})),
            "page 1, black: 2 bits of padding differ\n"
            "page 1, black: 1 band with different rows, the first is 0\n");
}

TEST_F(DiffBands, PixelsOfOtherBitsAreNotCompared) {
  const JobBuilder a = blackPage(1, {rowOf(0xF0)});
  const JobBuilder b = blackPage(2, {rowOf(0x0F)});
  EXPECT_EQ(told(a, b),
            "job record: bits_per_pixel: 1 (Fast) in A, 2 (Standard) in B\n"
            "page 1: pixels of 1 bit in A, of 2 bits in B\n");
}

}  // namespace
}  // namespace gdi::gdiview
