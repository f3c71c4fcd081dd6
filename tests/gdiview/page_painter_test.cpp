// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <gtest/gtest.h>

#include "tests/jobs/job_builder.h"
#include "tools/gdiview/PagePainter.h"

namespace gdi::gdiview {
namespace {

using jobtest::Bytes;
using jobtest::Rows;
using reader::Ink;
using reader::Page;

// A page whose rows are 128 bits: 96 pixels of 1 bit, 48 of 2 or 24 of 4.
Page pageWith(unsigned bitsPerPixel, std::uint8_t channels) {
  Page page;
  page.rowBits = 128;
  page.record.channels = channels;
  page.bitsPerPixel = bitsPerPixel;
  page.planes.fill(reader::StoredPlane(16, 0));
  return page;
}

void add(Page& page, Ink ink, const Rows& rows) {
  page.planes[reader::indexOf(ink)].append(static_cast<std::uint32_t>(rows.size()),
                                           jobtest::literalBand(rows, false));
}

Bytes rowStartingWith(std::initializer_list<std::uint8_t> bytes) {
  Bytes row(bytes);
  row.resize(16);
  return row;
}

Bytes next(PagePainter& painter) {
  const auto row = painter.nextRow();
  return {row.begin(), row.end()};
}

TEST(PagePainter, OneBitPixelsComeFromTheMostSignificantBitOn) {
  Page page = pageWith(1, 1);
  add(page, Ink::kBlack, {rowStartingWith({0xA0, 0x01})});
  PagePainter painter(page, 1);
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
  PagePainter twoBits(two, 1);
  Bytes row = next(twoBits);
  EXPECT_EQ(row.size(), 48U);
  EXPECT_EQ(Bytes(row.begin(), row.begin() + 5), (Bytes{255, 170, 85, 0, 255}));

  Page four = pageWith(4, 1);
  add(four, Ink::kBlack, {rowStartingWith({0x0F, 0x1E})});
  PagePainter fourBits(four, 1);
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
  PagePainter painter(page, 1);
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
  PagePainter painter(page, 1);
  ASSERT_EQ(painter.height(), 3U);
  EXPECT_EQ(next(painter)[1], 0);
  EXPECT_EQ(next(painter)[1], 0);
  EXPECT_EQ(next(painter)[1], 160);
}

TEST(PagePainter, AReducedSampleIsTheMeanOfItsPixels) {
  Page page = pageWith(1, 1);
  add(page, Ink::kBlack, {rowStartingWith({0xF0, 0x80}), rowStartingWith({0xC0})});
  PagePainter painter(page, 4);
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
  PagePainter painter(page, 4);
  ASSERT_EQ(painter.height(), 2U);
  EXPECT_EQ(next(painter), Bytes(24, 255));
  EXPECT_EQ(next(painter), Bytes(24, 0));

  PagePainter sevenths(page, 7);
  ASSERT_EQ(sevenths.width(), 14U);  // 13 x 7 pixels and 5 more
  ASSERT_EQ(sevenths.height(), 1U);
  EXPECT_EQ(next(sevenths), Bytes(14, 204));
}

TEST(PagePainter, AReductionLargerThanThePageIsOneSample) {
  Page page = pageWith(1, 1);
  add(page, Ink::kBlack, jobtest::solidRows(2, 16, 0xFF));
  PagePainter painter(page, 0xFFFFFFFF);
  ASSERT_EQ(painter.width(), 1U);
  ASSERT_EQ(painter.height(), 1U);
  EXPECT_EQ(next(painter), Bytes{0});
}

}  // namespace
}  // namespace gdi::gdiview
