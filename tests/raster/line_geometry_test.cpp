// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "raster/line_geometry.h"

#include <gtest/gtest.h>

namespace gdi {
namespace {

cups_page_header_t header(unsigned width, unsigned bitsPerColor, unsigned bitsPerPixel,
                          unsigned bytesPerLine) {
  cups_page_header_t made{};
  made.cupsWidth = width;
  made.cupsBitsPerColor = bitsPerColor;
  made.cupsBitsPerPixel = bitsPerPixel;
  made.cupsBytesPerLine = bytesPerLine;
  return made;
}

void expectLine(const cups_page_header_t& page, std::uint32_t pixels, std::uint32_t bytes) {
  std::string refusal;
  const std::optional<LineGeometry> line = lineGeometry(page, refusal);
  ASSERT_TRUE(line) << refusal;
  EXPECT_EQ(line->pixelCount, pixels);
  EXPECT_EQ(line->byteCount, bytes);
}

std::string refusalOf(const cups_page_header_t& page) {
  std::string refusal;
  EXPECT_FALSE(lineGeometry(page, refusal));
  return refusal;
}

TEST(LineGeometry, AnOddWidthIsRoundedUpToEven) {
  expectLine(header(5, 8, 8, 5), 6, 6);
  expectLine(header(1, 8, 8, 1), 2, 2);
  expectLine(header(5, 8, 32, 20), 6, 24);
}

TEST(LineGeometry, AnEvenWidthStays) {
  expectLine(header(4, 8, 8, 4), 4, 4);
  expectLine(header(4, 8, 32, 16), 4, 16);
  expectLine(header(4, 8, 24, 12), 4, 12);
}

TEST(LineGeometry, NoWidthIsAnEmptyLine) {
  expectLine(header(0, 8, 8, 0), 0, 0);
}

TEST(LineGeometry, ChannelsAreWholeColoursOfAPixel) {
  EXPECT_EQ(channelsOf(header(1, 8, 8, 1)), 1U);
  EXPECT_EQ(channelsOf(header(1, 8, 32, 4)), 4U);
  EXPECT_EQ(channelsOf(header(1, 8, 31, 4)), 3U);
  EXPECT_EQ(channelsOf(header(1, 8, 4, 1)), 0U);
  EXPECT_EQ(channelsOf(header(1, 0, 8, 1)), 0U);
}

TEST(LineGeometry, ALineThatFillsThePaddingByteStillFits) {
  expectLine(header(5, 8, 8, 6), 6, 6);
}

TEST(LineGeometry, ALineOneByteTooLongIsRefused) {
  EXPECT_EQ(refusalOf(header(5, 8, 8, 7)),
            "a raster line of 7 bytes does not fit a page of 5 pixels with 8 bits per colour");
}

TEST(LineGeometry, SixteenBitsPerColourAreRefused) {
  EXPECT_NE(refusalOf(header(4, 16, 16, 8)), "");
  EXPECT_NE(refusalOf(header(4, 16, 64, 32)), "");
}

TEST(LineGeometry, NoBitsPerColourAreRefused) {
  EXPECT_EQ(refusalOf(header(4, 0, 8, 4)), "the page header has 0 bits per colour, not 8");
}

TEST(LineGeometry, FewerThanEightBitsPerColourAreRefused) {
  EXPECT_EQ(refusalOf(header(64, 1, 1, 8)), "the page header has 1 bits per colour, not 8");
  EXPECT_EQ(refusalOf(header(64, 4, 16, 128)), "the page header has 4 bits per colour, not 8");
}

TEST(LineGeometry, ColoursThatStandApartAreRefused) {
  for (const cups_order_t order : {CUPS_ORDER_BANDED, CUPS_ORDER_PLANAR}) {
    cups_page_header_t page = header(64, 8, 8, 64);
    page.cupsColorOrder = order;
    page.cupsColorSpace = CUPS_CSPACE_CMYK;
    EXPECT_EQ(refusalOf(page), "its colours are not chunky, pixel by pixel");
  }
}

TEST(LineGeometry, OneColourIsTheSameInEveryOrder) {
  for (const cups_order_t order : {CUPS_ORDER_BANDED, CUPS_ORDER_PLANAR}) {
    cups_page_header_t page = header(64, 8, 8, 64);
    page.cupsColorOrder = order;
    page.cupsColorSpace = CUPS_CSPACE_K;
    expectLine(page, 64, 64);
  }
}

TEST(LineGeometry, APixelSmallerThanItsColourIsRefused) {
  EXPECT_NE(refusalOf(header(4, 8, 4, 2)), "");
}

TEST(LineGeometry, ALineOf4GiBAndMoreIsRefused) {
  EXPECT_EQ(refusalOf(header(0x40000000, 8, 32, 16)), "a page of 1073741824 pixels is too wide");
  EXPECT_EQ(refusalOf(header(0xFFFFFFFF, 8, 8, 1)), "a page of 4294967295 pixels is too wide");
  expectLine(header(0x3FFFFFFE, 8, 32, 16), 0x3FFFFFFE, 0xFFFFFFF8);
}

}  // namespace
}  // namespace gdi
