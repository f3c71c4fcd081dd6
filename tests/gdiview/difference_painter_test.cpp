// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <vector>

#include <gtest/gtest.h>

#include "tests/gdiview/small_pages.h"
#include "tools/gdiview/DifferencePainter.h"

namespace gdi::gdiview {
namespace {

using jobtest::Bytes;
using jobtest::Rows;
using reader::Ink;
using reader::Page;
using Colors = std::vector<Color>;

constexpr Color kWhite{255, 255, 255};
constexpr Color kPaleBlack{192, 192, 192};  // 255 - 255 / 4

Page blackPage(std::uint32_t width, const Rows& rows) {
  Page page = pageWith(1, 1, width);
  add(page, Ink::kBlack, rows);
  return page;
}

Colors nextColors(Picture& picture) {
  const Bytes row = next(picture);
  Colors colors;
  for (std::size_t i = 0; i + 2 < row.size(); i += 3) {
    colors.push_back({row[i], row[i + 1], row[i + 2]});
  }
  return colors;
}

TEST(DifferencePainter, EqualPixelsArePaleAndOthersTellWhichPageHasMoreInk) {
  const Page a = blackPage(5, {rowStartingWith({0b10100000})});
  const Page b = blackPage(5, {rowStartingWith({0b11000000})});
  DifferencePainter painter(a, b, 1);
  EXPECT_EQ(painter.width(), 5U);
  EXPECT_EQ(painter.height(), 1U);
  EXPECT_EQ(painter.channels(), 3U);
  EXPECT_EQ(nextColors(painter), (Colors{kPaleBlack, kMoreInB, kMoreInA, kWhite, kWhite}));
  EXPECT_EQ(kMoreInA, (Color{220, 0, 0}));
  EXPECT_EQ(kMoreInB, (Color{0, 0, 220}));
}

TEST(DifferencePainter, ItShowsTheFirstPageAsGreyHoweverColouredItIs) {
  Page page = pageWith(1, 4, 3);
  add(page, Ink::kCyan, {rowStartingWith({0b11000000})});
  add(page, Ink::kYellow, {rowStartingWith({0b01000000})});
  DifferencePainter painter(page, page, 1);
  // (0, 160, 225) is as bright as grey 120, (0, 144, 0) as 85: 135 and 170 divided by 4.
  EXPECT_EQ(nextColors(painter), (Colors{{222, 222, 222}, {213, 213, 213}, kWhite}));
}

TEST(DifferencePainter, DifferentInksInBothPagesAreViolet) {
  Page a = pageWith(4, 4, 4);
  Page b = pageWith(4, 4, 4);
  add(a, Ink::kCyan, {rowStartingWith({0x1F, 0x50})});
  add(b, Ink::kCyan, {rowStartingWith({0x00, 0x60})});
  add(a, Ink::kMagenta, {rowStartingWith({0x02})});
  add(b, Ink::kMagenta, {rowStartingWith({0x10})});
  add(a, Ink::kBlack, {rowStartingWith({0x00, 0x0F})});
  add(b, Ink::kBlack, {rowStartingWith({0x00, 0x0E})});
  DifferencePainter painter(a, b, 1);
  EXPECT_EQ(nextColors(painter), (Colors{{150, 0, 150}, kMoreInA, kMoreInB, kMoreInA}));
}

TEST(DifferencePainter, AReducedCellHasADifferencesColourIfOnePixelDiffers) {
  const Page a = blackPage(
      7, {rowStartingWith({0b1000000'0}), rowStartingWith({0b0110010'0}), rowStartingWith({0x00})});
  const Page b = blackPage(
      7, {rowStartingWith({0b1000000'0}), rowStartingWith({0b0101010'0}), rowStartingWith({0x02})});
  DifferencePainter painter(a, b, 2);
  ASSERT_EQ(painter.width(), 4U);
  ASSERT_EQ(painter.height(), 2U);
  // Two of four pixels are pale black: (192 + 255) / 2 = 223.5; one of four: 239.25.
  EXPECT_EQ(nextColors(painter), (Colors{{224, 224, 224}, kMoreInBoth, {239, 239, 239}, kWhite}));
  EXPECT_EQ(nextColors(painter), (Colors{kWhite, kWhite, kWhite, kMoreInB}));
}

TEST(DifferencePainter, OneCellCanStandForAll) {
  const Page a = blackPage(96, jobtest::solidRows(3, 16, 0x00));
  Rows rows = jobtest::solidRows(3, 16, 0x00);
  rows[2][11] = 0x01;
  const Page b = blackPage(96, rows);
  DifferencePainter painter(a, b, 0xFFFFFFFF);
  ASSERT_EQ(painter.width(), 1U);
  ASSERT_EQ(painter.height(), 1U);
  EXPECT_EQ(nextColors(painter), Colors{kMoreInB});
  DifferencePainter equal(a, a, 0xFFFFFFFF);
  EXPECT_EQ(nextColors(equal), Colors{kWhite});
}

TEST(DifferencePainter, WhatOnePageLacksIsBlankInIt) {
  const Page small = blackPage(2, {rowStartingWith({0b10000000})});
  const Page large = blackPage(3, {rowStartingWith({0b10100000}), rowStartingWith({0b01000000})});
  DifferencePainter painter(small, large, 1);
  ASSERT_EQ(painter.width(), 3U);
  ASSERT_EQ(painter.height(), 2U);
  EXPECT_EQ(nextColors(painter), (Colors{kPaleBlack, kWhite, kMoreInB}));
  EXPECT_EQ(nextColors(painter), (Colors{kWhite, kMoreInB, kWhite}));
  DifferencePainter swapped(large, small, 1);
  EXPECT_EQ(nextColors(swapped), (Colors{kPaleBlack, kWhite, kMoreInA}));
  EXPECT_EQ(nextColors(swapped), (Colors{kWhite, kMoreInA, kWhite}));
}

TEST(DifferencePainter, AMonoPageIsComparedWithAColourPage) {
  const Page mono = blackPage(3, {rowStartingWith({0b11000000})});
  Page color = pageWith(1, 4, 3);
  add(color, Ink::kBlack, {rowStartingWith({0b10000000})});
  add(color, Ink::kYellow, {rowStartingWith({0b01100000})});
  DifferencePainter painter(mono, color, 1);
  EXPECT_EQ(nextColors(painter), (Colors{kPaleBlack, kMoreInBoth, kMoreInB}));
}

}  // namespace
}  // namespace gdi::gdiview
