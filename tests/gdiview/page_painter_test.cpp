// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <algorithm>

#include <gtest/gtest.h>

#include "tests/gdiview/small_pages.h"
#include "tools/gdiview/PagePainter.h"

namespace gdi::gdiview {
namespace {

using jobtest::Bytes;
using jobtest::Rows;
using reader::Ink;
using reader::Page;

TEST(PagePainter, OneBitPixelsComeFromTheMostSignificantBitOn) {
  Page page = pageWith(1, 1);
  add(page, Ink::kBlack, {rowStartingWith({0xA0, 0x01})});
  PagePainter painter(page, {});
  EXPECT_EQ(painter.width(), 96U);
  EXPECT_EQ(painter.height(), 1U);
  EXPECT_EQ(painter.channels(), 1U);
  Bytes expected(96, 255);
  expected[0] = expected[2] = expected[15] = 0;
  EXPECT_EQ(next(painter), expected);
}

TEST(PagePainter, PixelsOfTwoAndFourBitsAreGreys) {
  Page two = pageWith(2, 1);
  add(two, Ink::kBlack, {rowStartingWith({0b00'01'10'11})});
  PagePainter twoBits(two, {});
  Bytes row = next(twoBits);
  EXPECT_EQ(row.size(), 48U);
  EXPECT_EQ(Bytes(row.begin(), row.begin() + 5), (Bytes{255, 170, 85, 0, 255}));

  Page four = pageWith(4, 1);
  add(four, Ink::kBlack, {rowStartingWith({0x0F, 0x1E})});
  PagePainter fourBits(four, {});
  row = next(fourBits);
  EXPECT_EQ(row.size(), 24U);
  EXPECT_EQ(Bytes(row.begin(), row.begin() + 5), (Bytes{255, 0, 238, 17, 255}));
}

TEST(PagePainter, AColourPageIsRedGreenBlue) {
  Page page = pageWith(1, 4);
  add(page, Ink::kCyan, {rowStartingWith({0b10010000})});
  add(page, Ink::kMagenta, {rowStartingWith({0b01000000})});
  add(page, Ink::kYellow, {rowStartingWith({0b00010000})});
  add(page, Ink::kBlack, {rowStartingWith({0b00100000})});
  PagePainter painter(page, {});
  EXPECT_EQ(painter.channels(), 3U);
  const Bytes row = next(painter);
  ASSERT_EQ(row.size(), 288U);
  EXPECT_EQ(Bytes(row.begin(), row.begin() + 15),
            (Bytes{0, 160, 225, 225, 0, 125, 0, 0, 0, 0, 144, 0, 255, 255, 255}));
}

TEST(PagePainter, APlaneThatEndsEarlyIsBlankFromThereOn) {
  Page page = pageWith(1, 4);
  add(page, Ink::kBlack, jobtest::solidRows(2, 16, 0xFF));
  add(page, Ink::kCyan, jobtest::solidRows(3, 16, 0xFF));
  PagePainter painter(page, {});
  ASSERT_EQ(painter.height(), 3U);
  EXPECT_EQ(next(painter)[1], 0);
  EXPECT_EQ(next(painter)[1], 0);
  EXPECT_EQ(next(painter)[1], 160);
}

TEST(PagePainter, AReducedSampleIsTheMeanOfItsPixels) {
  Page page = pageWith(1, 1);
  add(page, Ink::kBlack, {rowStartingWith({0xF0, 0x80}), rowStartingWith({0xC0})});
  PagePainter painter(page, {.reduction = 4});
  EXPECT_EQ(painter.width(), 24U);
  EXPECT_EQ(painter.height(), 1U);
  const Bytes row = next(painter);
  // 6, 0 and 1 of 8 pixels are black: 63.75, 255 and 223.125.
  EXPECT_EQ(Bytes(row.begin(), row.begin() + 4), (Bytes{64, 255, 223, 255}));
}

TEST(PagePainter, TheLastReducedSamplesStandForWhatIsLeft) {
  Page page = pageWith(1, 1);
  Rows rows = jobtest::solidRows(5, 16, 0x00);
  rows[4].assign(16, 0xFF);
  add(page, Ink::kBlack, rows);
  PagePainter painter(page, {.reduction = 4});
  ASSERT_EQ(painter.height(), 2U);
  EXPECT_EQ(next(painter), Bytes(24, 255));
  EXPECT_EQ(next(painter), Bytes(24, 0));

  PagePainter sevenths(page, {.reduction = 7});
  ASSERT_EQ(sevenths.width(), 14U);  // 13 x 7 pixels and 5 more
  ASSERT_EQ(sevenths.height(), 1U);
  EXPECT_EQ(next(sevenths), Bytes(14, 204));
}

TEST(PagePainter, AReductionLargerThanThePageIsOneSample) {
  Page page = pageWith(1, 1);
  add(page, Ink::kBlack, jobtest::solidRows(2, 16, 0xFF));
  PagePainter painter(page, {.reduction = 0xFFFFFFFF});
  ASSERT_EQ(painter.width(), 1U);
  ASSERT_EQ(painter.height(), 1U);
  EXPECT_EQ(next(painter), Bytes{0});
}

// The rows of a picture one below the other.
Bytes all(PagePainter& painter) {
  Bytes samples;
  for (std::uint32_t y = 0; y < painter.height(); ++y) {
    const Bytes row = next(painter);
    samples.insert(samples.end(), row.begin(), row.end());
  }
  return samples;
}

// 5 x 3 pixels: #.... / .#... / ..##.
Page oddPage() {
  Page page = pageWith(1, 1, 5);
  add(page, Ink::kBlack,
      {rowStartingWith({0b10000000}), rowStartingWith({0b01000000}),
       rowStartingWith({0b00110000})});
  return page;
}

TEST(PagePainter, AnUprightPageIsTurnedBy180Degrees) {
  const Page page = oddPage();
  PagePainter painter(page, {.upright = true});
  ASSERT_EQ(painter.width(), 5U);
  ASSERT_EQ(painter.height(), 3U);
  EXPECT_EQ(next(painter), (Bytes{255, 0, 0, 255, 255}));
  EXPECT_EQ(next(painter), (Bytes{255, 255, 255, 0, 255}));
  EXPECT_EQ(next(painter), (Bytes{255, 255, 255, 255, 0}));
}

TEST(PagePainter, CellsOfAnUprightPageBeginAtItsTurnedTopLeft) {
  const Page page = oddPage();
  PagePainter painter(page, {.reduction = 2, .upright = true});
  ASSERT_EQ(painter.width(), 3U);
  ASSERT_EQ(painter.height(), 2U);
  // 1, 2 and 0 of 4, 4 and 2 pixels are black: 191.25, 127.5 and 255.
  EXPECT_EQ(next(painter), (Bytes{191, 128, 255}));
  EXPECT_EQ(next(painter), (Bytes{255, 255, 0}));
}

TEST(PagePainter, PlanesOfDifferentLengthsBeginAtTheBottomOfAnUprightPage) {
  Page page = pageWith(1, 4, 2);
  add(page, Ink::kBlack,
      {rowStartingWith({0x00}), rowStartingWith({0x00}), rowStartingWith({0b10000000})});
  add(page, Ink::kCyan, {rowStartingWith({0b01000000})});
  add(page, Ink::kMagenta, {rowStartingWith({0x00}), rowStartingWith({0b01000000})});
  PagePainter painter(page, {.upright = true});
  ASSERT_EQ(painter.height(), 3U);
  EXPECT_EQ(next(painter), (Bytes{255, 255, 255, 0, 0, 0}));
  EXPECT_EQ(next(painter), (Bytes{225, 0, 125, 255, 255, 255}));
  EXPECT_EQ(next(painter), (Bytes{0, 160, 225, 255, 255, 255}));
}

TEST(PagePainter, TheBandsOfAnUprightPageComeFromTheLastToTheFirst) {
  Page page = pageWith(4, 1, 1);
  add(page, Ink::kBlack, {rowStartingWith({0x10}), rowStartingWith({0x20})});
  planeOf(page, Ink::kBlack).appendLost(1);
  add(page, Ink::kBlack,
      {rowStartingWith({0x30}), rowStartingWith({0x40}), rowStartingWith({0x50})});
  add(page, Ink::kBlack, {rowStartingWith({0x60})});
  PagePainter painter(page, {.upright = true});
  // 255 - 17 x 6, 5, 4, 3, 0, 2 and 1.
  EXPECT_EQ(all(painter), (Bytes{153, 170, 187, 204, 255, 221, 238}));
}

TEST(PagePainter, TurnedTwiceAPageIsAsItWas) {
  Page page = pageWith(4, 1, 5);
  add(page, Ink::kBlack,
      {rowStartingWith({0x12, 0x34, 0x50}), rowStartingWith({0x67, 0x89, 0xA0})});
  add(page, Ink::kBlack, {rowStartingWith({0xBC, 0xDE, 0xF0})});
  PagePainter turning(page, {.upright = true});
  Page turned = pageWith(4, 1, 5);
  for (std::uint32_t y = 0; y < turning.height(); ++y) {
    const Bytes row = next(turning);
    const auto value = [&row](std::size_t x) { return (255 - row.at(x)) / 17; };
    add(turned, Ink::kBlack,
        {rowStartingWith({static_cast<std::uint8_t>(value(0) << 4 | value(1)),
                          static_cast<std::uint8_t>(value(2) << 4 | value(3)),
                          static_cast<std::uint8_t>(value(4) << 4)})});
  }
  PagePainter plain(page, {});
  PagePainter twice(turned, {.upright = true});
  const Bytes expected = all(plain);
  EXPECT_EQ(Bytes(expected.begin(), expected.begin() + 5), (Bytes{238, 221, 204, 187, 170}));
  EXPECT_EQ(all(twice), expected);
}

TEST(PagePainter, ASeparationIsOnePlaneAsBlackInk) {
  Page page = pageWith(2, 4, 5);
  add(page, Ink::kMagenta, {rowStartingWith({0b00'01'10'11})});
  add(page, Ink::kYellow, {rowStartingWith({0b11'00'11'00})});
  add(page, Ink::kBlack, {rowStartingWith({0xFF, 0xFF}), rowStartingWith({0xFF, 0xFF})});
  PagePainter magenta(page, {.separation = Ink::kMagenta});
  EXPECT_EQ(magenta.channels(), 1U);
  ASSERT_EQ(magenta.height(), 2U);
  EXPECT_EQ(next(magenta), (Bytes{255, 170, 85, 0, 255}));
  EXPECT_EQ(next(magenta), Bytes(5, 255));
  PagePainter yellow(page, {.separation = Ink::kYellow});
  EXPECT_EQ(next(yellow), (Bytes{0, 255, 0, 255, 255}));
  PagePainter black(page, {.separation = Ink::kBlack});
  EXPECT_EQ(next(black), Bytes(5, 0));
}

TEST(PagePainter, ASeparationCanBeUprightAndReduced) {
  Page page = pageWith(4, 4, 3);
  add(page, Ink::kCyan, {rowStartingWith({0x00, 0x50}), rowStartingWith({0xF0, 0xA0})});
  PagePainter painter(page, {.reduction = 2, .upright = true, .separation = Ink::kCyan});
  ASSERT_EQ(painter.width(), 2U);
  ASSERT_EQ(painter.height(), 1U);
  // 85 (10 of 15), 170 (5 of 15) and two of 255: 191.25; 0 and 255: 127.5.
  EXPECT_EQ(next(painter), (Bytes{191, 128}));
}

TEST(PagePainter, ASeparationThatThePageLacksIsWhite) {
  const Page page = oddPage();
  PagePainter painter(page, {.separation = Ink::kCyan});
  EXPECT_EQ(all(painter), Bytes(15, 255));
}

}  // namespace
}  // namespace gdi::gdiview
