// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/page_resolution.h"

#include <gtest/gtest.h>

namespace gdi::reader {
namespace {

// An A4 page whose record tells these rows, and the one band too many that it may tell.
PageSummary a4Page(std::uint16_t rows, std::uint32_t rowBits, unsigned bitsPerPixel = 1) {
  PageSummary page;
  page.record.widthMicrometres = 209903;   // 595 points
  page.record.heightMicrometres = 297039;  // 842 points
  page.record.rowsModulo64K = rows;
  page.record.bandCount = static_cast<std::uint16_t>((rows + 257) / 256);
  page.rowBits = rowBits;
  page.bitsPerPixel = bitsPerPixel;
  return page;
}

// 4958 x 7017 pixels; rows are filled up, with 32 bits of slack, to a multiple of 128.
TEST(PageResolution, APageThatFillsItsPaperHas600) {
  EXPECT_EQ(pixelsPerInchOf(a4Page(7017, 4992)), 600U);
  EXPECT_EQ(pixelsPerInchOf(a4Page(7008, 4992)), 600U);
  EXPECT_EQ(pixelsPerInchOf(a4Page(7017, 19968, 4)), 600U);
}

// Half and double the pixels each way.
TEST(PageResolution, APageOfAnotherResolutionHasItsOwn) {
  EXPECT_EQ(pixelsPerInchOf(a4Page(3508, 2560)), 300U);
  EXPECT_EQ(pixelsPerInchOf(a4Page(14033, 9984)), 1200U);
  EXPECT_EQ(pixelsPerInchOf(a4Page(1754, 1280)), 150U);
  EXPECT_EQ(pixelsPerInchOf(a4Page(3508, 9984, 4)), 300U);
}

TEST(PageResolution, AHundredthMoreOrLessIsTheSame) {
  EXPECT_EQ(pixelsPerInchOf(a4Page(3475, 2560)), 300U);
  EXPECT_EQ(pixelsPerInchOf(a4Page(3540, 2560)), 300U);
  EXPECT_EQ(pixelsPerInchOf(a4Page(3400, 2560)), 600U);
}

// A picture of half a page is as wide as the paper all the same.
TEST(PageResolution, HalfThePaperIsNoOtherResolution) {
  EXPECT_EQ(pixelsPerInchOf(a4Page(3508, 4992)), 600U);
}

TEST(PageResolution, WhatBrokeOffHasTheResolutionThatItsRecordTells) {
  PageSummary page = a4Page(7017, 4992);
  page.brokenOff = true;
  page.planeSummaries[indexOf(Ink::kBlack)].rows = 3508;
  EXPECT_EQ(pixelsPerInchOf(page), 600U);
}

TEST(PageResolution, PaperOfNoSizeTellsNothing) {
  PageSummary page = a4Page(3508, 2560);
  page.record.widthMicrometres = 0;
  EXPECT_EQ(pixelsPerInchOf(page), 600U);
  page.record.heightMicrometres = 0;
  EXPECT_EQ(pixelsPerInchOf(page), 600U);
  EXPECT_EQ(pixelsPerInchOf(PageSummary()), 600U);
}

}  // namespace
}  // namespace gdi::reader
