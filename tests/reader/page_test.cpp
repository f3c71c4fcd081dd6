// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/Page.h"

#include <gtest/gtest.h>

#include "tests/jobs/job_builder.h"

namespace gdi::reader {
namespace {

Page pageOf(std::uint32_t rowBits, unsigned bitsPerPixel, std::uint32_t widthMicrometres) {
  Page page;
  page.rowBits = rowBits;
  page.record.widthMicrometres = widthMicrometres;
  page.bitsPerPixel = bitsPerPixel;
  return page;
}

TEST(Page, ItsWidthIsThatOfThePaper) {
  EXPECT_EQ(pageOf(4992, 1, 209902).widthPixels(), 4958U);   // A4
  EXPECT_EQ(pageOf(10240, 2, 215900).widthPixels(), 5100U);  // Letter
  EXPECT_EQ(pageOf(68096, 4, 719667).widthPixels(), 17000U);
}

TEST(Page, ItsWidthIsNoLessThanItsRowsPaddingAllows) {
  // A row of 4960 pixels would be 4992 bits long, so one of 5120 bits holds 4961 at least.
  EXPECT_EQ(pageOf(5120, 1, 209902).widthPixels(), 4961U);
  EXPECT_EQ(pageOf(19968, 4, 209902).widthPixels(), 4958U);  // 4953 at least
}

TEST(Page, ItsWidthIsNoMoreThanItsRowHasRoomFor) {
  EXPECT_EQ(pageOf(128, 1, 209902).widthPixels(), 96U);
  EXPECT_EQ(pageOf(128, 2, 0xFFFFFFFF).widthPixels(), 48U);
}

TEST(Page, ItsWidthIsAllTheRowWhenThePaperIsMuchNarrower) {
  EXPECT_EQ(pageOf(5120, 1, 209592).widthPixels(), 5088U);  // 4951 pixels
  EXPECT_EQ(pageOf(5120, 1, 209635).widthPixels(), 4961U);  // 4952 pixels
  EXPECT_EQ(pageOf(5120, 1, 0).widthPixels(), 5088U);
  EXPECT_EQ(pageOf(128, 4, 0).widthPixels(), 24U);
}

TEST(Page, ARowTooShortForItsPaddingHasNoPixels) {
  EXPECT_EQ(pageOf(0, 1, 209902).widthPixels(), 0U);
  EXPECT_EQ(pageOf(16, 1, 0).widthPixels(), 0U);
}

TEST(StoredPlane, ItsRowsAreThoseOfAllBandsAndThenNone) {
  StoredPlane plane(16, 3);
  plane.append(2, jobtest::literalBand(jobtest::solidRows(2, 16, 0xAA), false));
  plane.append(1, jobtest::literalBand(jobtest::solidRows(1, 16, 0x55), false));
  EXPECT_EQ(plane.rows(), 3U);
  PlaneRows rows(plane);
  std::uint32_t y = 0;
  for (const std::uint8_t byte : std::initializer_list<std::uint8_t>{0xAA, 0xAA, 0x55}) {
    const auto row = rows.row(y++);
    EXPECT_EQ(jobtest::Bytes(row.begin(), row.end()), jobtest::Bytes(16, byte));
  }
  EXPECT_TRUE(rows.row(3).empty());
  EXPECT_TRUE(rows.row(0xFFFFFFFF).empty());
}

TEST(StoredPlane, ALostBandIsBlank) {
  StoredPlane plane(16, 3);
  plane.appendLost(3);
  EXPECT_EQ(plane.rowsOfBand(0), jobtest::Bytes(48));
}

TEST(StoredPlane, LostBandsCountUpToTheRowsThatThePageIsToldToHave) {
  StoredPlane plane(16, 300);
  plane.appendLost(256);
  plane.appendLost(44);
  EXPECT_EQ(plane.rows(), 300U);
  plane.appendLost(1);
  EXPECT_EQ(plane.rows(), 300U);
}

TEST(StoredPlane, ALostBandBeyondTheToldRowsKeepsItsPlaceWhenABandFollows) {
  const jobtest::Bytes band = jobtest::literalBand(jobtest::solidRows(256, 16, 0xAA), false);
  StoredPlane plane(16, 256);  // 65,792 rows are told so
  plane.append(256, band);
  plane.appendLost(256);
  EXPECT_EQ(plane.rows(), 256U);
  plane.append(256, band);
  ASSERT_EQ(plane.bands().size(), 3U);
  EXPECT_EQ(plane.bands()[2].firstRow, 512U);
  EXPECT_EQ(plane.rowsOfBand(1), jobtest::Bytes(4096));
}

TEST(StoredPlane, LostRowsBeyondTheToldOnesAreNoMoreThanThoseThatArrived) {
  const jobtest::Bytes row = jobtest::literalBand(jobtest::solidRows(1, 16, 0xAA), false);
  StoredPlane plane(16, 0);
  for (int i = 0; i < 1000; ++i) {
    plane.appendLost(256);
    plane.append(1, row);
  }
  EXPECT_LE(plane.rows(), 2000U);
  EXPECT_GE(plane.rows(), 1000U);
}

TEST(StoredPlane, ALostBandWhoseRowsAreUnknownHasItsIndexAllTheSame) {
  const jobtest::Bytes band = jobtest::literalBand(jobtest::solidRows(1, 16, 0xAA), false);
  StoredPlane plane(16, 3);
  plane.append(1, band);
  plane.appendLost(0);
  plane.append(1, band);
  plane.appendLost(0);
  ASSERT_EQ(plane.bands().size(), 4U);
  EXPECT_TRUE(plane.bands()[1].isLost());
  EXPECT_FALSE(plane.bands()[2].isLost());
  EXPECT_EQ(plane.rows(), 2U);
  PlaneRows rows(plane);
  const auto second = rows.row(1);
  EXPECT_EQ(jobtest::Bytes(second.begin(), second.end()), jobtest::Bytes(16, 0xAA));
  EXPECT_TRUE(rows.row(2).empty());
}

// Nothing of them is decoded here: any bytes will do.
TEST(StoredPlane, ABandBeyondTheMostRowsIsLost) {
  StoredPlane plane(16, 0);
  for (int i = 0; i < 65535; ++i) {
    ASSERT_TRUE(plane.append(256, {1}));
  }
  ASSERT_TRUE(plane.append(255, {1}));
  EXPECT_FALSE(plane.append(2, {1}));
  EXPECT_EQ(plane.rows(), 16'777'215U);
  EXPECT_TRUE(plane.append(1, {1}));
  EXPECT_EQ(plane.rows(), 16'777'216U);
  EXPECT_FALSE(plane.append(256, {1}));
  ASSERT_EQ(plane.bands().size(), 65539U);
  EXPECT_TRUE(plane.bands()[65536].isLost());
  EXPECT_FALSE(plane.bands()[65537].isLost());
  EXPECT_TRUE(PlaneRows(plane).row(16'777'216).empty());
}

// Half of the rows are lost: the page has no room for the last band with those ahead of it.
TEST(StoredPlane, LostRowsThatAreHeldBackCountAmongTheMostRows) {
  StoredPlane plane(16, 0);
  for (int i = 0; i < 32768; ++i) {
    plane.appendLost(256);
    ASSERT_TRUE(plane.append(256, {1}));
  }
  EXPECT_EQ(plane.rows(), 16'777'216U);
  plane.appendLost(256);
  EXPECT_FALSE(plane.append(1, {1}));
  EXPECT_EQ(plane.rows(), 16'777'216U);
}

TEST(StoredPlane, MoreRowsThanABandHasWordsAreNotEvenTried) {
  EXPECT_FALSE(decodeBand(jobtest::Bytes(510), 256, 8176).complete);
  EXPECT_TRUE(decodeBand(jobtest::Bytes(512), 256, 16).complete);
}

}  // namespace
}  // namespace gdi::reader
