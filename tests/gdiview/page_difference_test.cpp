// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/page_difference.h"

#include <cstdint>
#include <vector>

#include <gtest/gtest.h>

#include "tests/gdiview/page_difference_fixture.h"

namespace gdi::gdiview {
namespace {

using jobtest::Bytes;
using jobtest::Rows;
using reader::Ink;
using reader::Page;

TEST(PageDifference, EqualPagesDifferInNothing) {
  const Page page = blackPage(1, 96, {rowStartingWith({0xA0, 0x01})});
  const PageDifference difference = compared(page, page);
  EXPECT_TRUE(difference.comparable);
  EXPECT_TRUE(difference.samePixels());
  expectSame(difference.plane(Ink::kBlack));
  EXPECT_FALSE(difference.plane(Ink::kBlack).firstPixel);
}

TEST(PageDifference, PixelsAreCountedAndTheFirstIsTheLeftmostInTheTopmostRow) {
  const Page a = blackPage(
      1, 96,
      {rowStartingWith({0xFF}), rowStartingWith({0x00, 0x00, 0x10}), rowStartingWith({0x80})});
  const Page b = blackPage(
      1, 96,
      {rowStartingWith({0xFF}), rowStartingWith({0x00, 0x00, 0x09}), rowStartingWith({0x00})});
  const PageDifference difference = compared(a, b);
  const PlaneDifference& black = difference.plane(Ink::kBlack);
  EXPECT_EQ(black.pixels, 4U);  // three in the row of 0x10 ^ 0x09, one in the row below
  EXPECT_EQ(black.firstPixel, (PixelPlace{19, 1}));
  EXPECT_EQ(black.paddingBits, 0U);
  EXPECT_EQ(black.different.count, 1U);
  EXPECT_EQ(black.different.first, 0U);
  EXPECT_EQ(black.recoded.count, 0U);
  EXPECT_FALSE(black.recoded.first);
  EXPECT_FALSE(difference.samePixels());
}

TEST(PageDifference, APixelOfSeveralBitsCountsOnceHoweverManyOfThemDiffer) {
  const PlaneDifference two =
      blackDifference(blackPage(2, 48, {rowStartingWith({0b00'01'10'11, 0b00'00'00'00})}),
                      blackPage(2, 48, {rowStartingWith({0b00'10'10'00, 0b00'01'00'10})}));
  EXPECT_EQ(two.pixels, 4U);
  EXPECT_EQ(two.firstPixel, (PixelPlace{1, 0}));
  const PlaneDifference four = blackDifference(blackPage(4, 24, {rowStartingWith({0x10, 0xF7})}),
                                               blackPage(4, 24, {rowStartingWith({0x10, 0x01})}));
  EXPECT_EQ(four.pixels, 2U);
  EXPECT_EQ(four.firstPixel, (PixelPlace{2, 0}));
}

TEST(PageDifference, EqualRowsInOtherBytesAreABandCodedOtherwise) {
  const Page a = blackPage(1, 96, {Bytes(16, 0xFF)});
  Page b = pageWith(1, 1, 96);
  // 15 words: clear the row, both bytes of word 0 from the alphabet, copy 7 words, eleven NOPs.
  Bytes band{0x0F, 0x00, 0x00, 0x3F, 0xFF, 0xFF, 0xFF, 0x8F, 0x00, 0xD8};
  for (int i = 0; i < 11; ++i) {
    band.insert(band.end(), {0xFE, 0x00});
  }
  planeOf(b, Ink::kBlack).append(1, band);
  ASSERT_EQ(b.plane(Ink::kBlack).rowsOfBand(0), Bytes(16, 0xFF));
  const PageDifference difference = compared(a, b);
  const PlaneDifference& black = difference.plane(Ink::kBlack);
  EXPECT_EQ(black.recoded.count, 1U);
  EXPECT_EQ(black.recoded.first, 0U);
  EXPECT_EQ(black.different.count, 0U);
  EXPECT_TRUE(difference.samePixels());
}

TEST(PageDifference, BitsRightOfTheWidthAreCountedAsPadding) {
  Bytes padded = rowStartingWith({0b10000'111});
  padded[15] = 0x81;
  const PageDifference difference =
      compared(blackPage(1, 5, {rowStartingWith({0b10000'001})}), blackPage(1, 5, {padded}));
  const PlaneDifference& black = difference.plane(Ink::kBlack);
  EXPECT_EQ(black.pixels, 0U);
  EXPECT_FALSE(black.firstPixel);
  EXPECT_EQ(black.paddingBits, 4U);
  EXPECT_EQ(black.different.count, 1U);
  EXPECT_EQ(black.recoded.count, 0U);
  EXPECT_TRUE(difference.samePixels());
}

TEST(PageDifference, AByteCanHoldPixelsAndPadding) {
  const PlaneDifference two = blackDifference(blackPage(2, 3, {rowStartingWith({0b11'00'00'00})}),
                                              blackPage(2, 3, {rowStartingWith({0b11'00'01'11})}));
  EXPECT_EQ(two.pixels, 1U);
  EXPECT_EQ(two.firstPixel, (PixelPlace{2, 0}));
  EXPECT_EQ(two.paddingBits, 2U);
}

TEST(PageDifference, TheWiderPageTellsWherePaddingBegins) {
  const PlaneDifference black =
      blackDifference(blackPage(1, 5, {rowStartingWith({0xF8})}),
                      blackPage(1, 10, {rowStartingWith({0xF8, 0b01'000001})}));
  EXPECT_EQ(black.pixels, 1U);
  EXPECT_EQ(black.firstPixel, (PixelPlace{9, 0}));
  EXPECT_EQ(black.paddingBits, 1U);
}

TEST(PageDifference, AShorterRowIsBlankBehindItsLastByte) {
  Page longRows;
  longRows.rowBits = 256;
  longRows.bitsPerPixel = 1;
  longRows.record.channels = 1;
  longRows.planes.fill(reader::StoredPlane(32, 1));
  ASSERT_EQ(longRows.widthPixels(), 224U);
  Bytes row(32);
  row[0] = 0xFF;
  row[16] = 0b00100000;
  row[31] = 0x01;  // behind the width
  add(longRows, Ink::kBlack, {row});
  const Page shortRows = blackPage(1, 96, {rowStartingWith({0xFF})});
  for (const PlaneDifference& black :
       {blackDifference(shortRows, longRows), blackDifference(longRows, shortRows)}) {
    EXPECT_EQ(black.pixels, 1U);
    EXPECT_EQ(black.firstPixel, (PixelPlace{130, 0}));
    EXPECT_EQ(black.paddingBits, 1U);
    EXPECT_EQ(black.different.count, 1U);
  }
}

TEST(PageDifference, RowsThatOnePageLacksAreBlankInIt) {
  const Page a = blackPage(1, 96, {rowStartingWith({0x80})});
  Page b = blackPage(1, 96, {rowStartingWith({0x80})});
  add(b, Ink::kBlack, {rowStartingWith({0x00}), rowStartingWith({0x00, 0xC0})});
  add(b, Ink::kBlack, {rowStartingWith({0x00})});
  for (const PlaneDifference& black : {blackDifference(a, b), blackDifference(b, a)}) {
    EXPECT_EQ(black.pixels, 2U);
    EXPECT_EQ(black.firstPixel, (PixelPlace{8, 2}));
    EXPECT_EQ(black.different.count, 1U);
    EXPECT_EQ(black.different.first, 1U);
    EXPECT_EQ(black.recoded.count, 0U);
  }
}

// Black has three rows in one page and one in the other, and cyan has two: five to compare. Cyan's
// are in one band that is the same in both.
TEST(PageDifference, ComparedRowsAreCountedThroughAllPlanes) {
  Page a = pageWith(1, 4, 96);
  add(a, Ink::kCyan, {rowStartingWith({0x01}), rowStartingWith({0x02})});
  Page b = a;
  add(a, Ink::kBlack, {rowStartingWith({0x01})});
  add(b, Ink::kBlack, {rowStartingWith({0x02}), rowStartingWith({0x04}), rowStartingWith({0x08})});
  std::vector<std::uint64_t> counts;
  (void)differenceOf(a, b, [&counts](std::uint64_t done, std::uint64_t all) {
    EXPECT_EQ(all, 5U);
    counts.push_back(done);
  });
  EXPECT_EQ(counts, (std::vector<std::uint64_t>{2, 3, 4, 5}));
}

TEST(PageDifference, APlaneThatOnePageLacksIsBlankInIt) {
  const Page mono = blackPage(1, 96, {rowStartingWith({0xFF})});
  Page color = pageWith(1, 4, 96);
  add(color, Ink::kBlack, {rowStartingWith({0xFF})});
  add(color, Ink::kCyan, {rowStartingWith({0x00, 0x3C})});
  add(color, Ink::kMagenta, {rowStartingWith({0x00})});
  const PageDifference difference = compared(mono, color);
  expectSame(difference.plane(Ink::kBlack));
  EXPECT_EQ(difference.plane(Ink::kCyan).pixels, 4U);
  EXPECT_EQ(difference.plane(Ink::kCyan).firstPixel, (PixelPlace{10, 0}));
  EXPECT_EQ(difference.plane(Ink::kCyan).different.count, 0U);
  expectSame(difference.plane(Ink::kMagenta));
  expectSame(difference.plane(Ink::kYellow));
}

TEST(PageDifference, RowsAreComparedWhereTheyStandWhateverTheirBands) {
  const Rows rows{rowStartingWith({0x01}), rowStartingWith({0x02}), rowStartingWith({0x04})};
  Page cut = blackPage(1, 96, {rows[0], rows[1]});
  add(cut, Ink::kBlack, {rows[2]});
  const Page whole = blackPage(1, 96, rows);
  PlaneDifference black = blackDifference(cut, whole);
  EXPECT_EQ(black.pixels, 0U);
  EXPECT_EQ(black.paddingBits, 0U);
  EXPECT_EQ(black.recoded.count, 1U);  // the other page has no second one
  EXPECT_EQ(black.recoded.first, 0U);
  EXPECT_EQ(black.different.count, 0U);

  const Page other = blackPage(1, 96, {rows[0], rowStartingWith({0x03}), rows[2]});
  black = blackDifference(cut, other);
  EXPECT_EQ(black.pixels, 1U);
  EXPECT_EQ(black.firstPixel, (PixelPlace{7, 1}));
  EXPECT_EQ(black.different.count, 1U);  // the second one has nothing but row 2
  EXPECT_EQ(black.different.first, 0U);
  EXPECT_EQ(black.recoded.count, 0U);
}

TEST(PageDifference, PixelsOfDifferentBitsAreNotComparable) {
  const PageDifference difference = compared(blackPage(1, 20, {rowStartingWith({0xFF})}),
                                             blackPage(2, 20, {rowStartingWith({0x00})}));
  EXPECT_FALSE(difference.comparable);
  EXPECT_FALSE(difference.samePixels());
  EXPECT_EQ(difference.plane(Ink::kBlack).pixels, 0U);
  EXPECT_EQ(difference.plane(Ink::kBlack).different.count, 0U);
}

}  // namespace
}  // namespace gdi::gdiview
