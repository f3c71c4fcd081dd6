// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Pages compared that have lost bands, or no pixels.

#include <gtest/gtest.h>

#include "tests/gdiview/page_difference_fixture.h"

namespace gdi::gdiview {
namespace {

using jobtest::Bytes;
using reader::Ink;
using reader::Page;

TEST(LostBandsDifference, ALostBandIsBlankAndItsNeighboursAreStillEqual) {
  Page a = blackPage(1, 96, {rowStartingWith({0x11})});
  Page b = a;
  add(a, Ink::kBlack, {rowStartingWith({0x07})});
  planeOf(b, Ink::kBlack).appendLost(1);
  add(a, Ink::kBlack, {rowStartingWith({0x22})});
  add(b, Ink::kBlack, {rowStartingWith({0x22})});
  const PlaneDifference black = blackDifference(a, b);
  EXPECT_EQ(black.pixels, 3U);
  EXPECT_EQ(black.firstPixel, (PixelPlace{5, 1}));
  EXPECT_EQ(black.different.count, 1U);
  EXPECT_EQ(black.different.first, 1U);
  EXPECT_EQ(black.decodedInA.count, 1U);
  EXPECT_EQ(black.decodedInA.first, 1U);
  EXPECT_EQ(black.decodedInB.count, 0U);
  EXPECT_EQ(black.recoded.count, 0U);
}

TEST(LostBandsDifference, ABandThatIsLostInOneAndBlankInTheOtherIsDecodedOnlyInThat) {
  Page lost = blackPage(1, 96, {rowStartingWith({0x11})});
  Page blank = lost;
  planeOf(lost, Ink::kBlack).appendLost(1);
  add(blank, Ink::kBlack, {rowStartingWith({0x00})});
  PlaneDifference black = blackDifference(lost, blank);
  EXPECT_EQ(black.decodedInB.count, 1U);
  EXPECT_EQ(black.decodedInB.first, 1U);
  black.decodedInB = {};
  expectSame(black);
  black = blackDifference(blank, lost);
  EXPECT_EQ(black.decodedInA.count, 1U);
  EXPECT_EQ(black.decodedInB.count, 0U);
}

TEST(LostBandsDifference, BandsThatAreLostInBothAreComparedByTheirChecksums) {
  const auto lostBand = [](const Bytes& bytes) {
    reader::Checksum checksum;
    checksum.add(bytes);
    Page page = blackPage(1, 96, {rowStartingWith({0x11})});
    planeOf(page, Ink::kBlack).appendLost(1, checksum);
    return page;
  };
  expectSame(blackDifference(lostBand({1, 2}), lostBand({1, 2})));
  PlaneDifference black = blackDifference(lostBand({1, 2}), lostBand({1, 3}));
  EXPECT_EQ(black.lostOtherwise.count, 1U);
  EXPECT_EQ(black.lostOtherwise.first, 1U);
  black.lostOtherwise = {};
  expectSame(black);
}

// A page whose record's bits a row are none that exist.
TEST(LostBandsDifference, APageWithoutPixelsIsComparedAllTheSame) {
  Page none = pageWith(1, 1, 96);
  none.rowBits = 0;
  none.planes.fill(reader::StoredPlane(0, 1000));
  planeOf(none, Ink::kBlack).appendLost(256);
  ASSERT_EQ(none.widthPixels(), 0U);
  const PageDifference same = compared(none, none);
  EXPECT_TRUE(same.samePixels());
  expectSame(same.plane(Ink::kBlack));
  const Page page = blackPage(1, 96, {rowStartingWith({0x11})});
  for (const PlaneDifference& black : {blackDifference(none, page), blackDifference(page, none)}) {
    EXPECT_EQ(black.pixels, 2U);
    EXPECT_EQ(black.firstPixel, (PixelPlace{3, 0}));
    EXPECT_EQ(black.paddingBits, 0U);
    EXPECT_EQ(black.decodedInA.count + black.decodedInB.count, 1U);
  }
}

}  // namespace
}  // namespace gdi::gdiview
