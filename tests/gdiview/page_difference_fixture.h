// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Pages of black rows, and how they differ.
#pragma once

#include <cstdint>

#include <gtest/gtest.h>

#include "tests/gdiview/small_pages.h"
#include "tools/gdiview/page_difference.h"

namespace gdi::gdiview {

// A page of one band of black.
inline reader::Page blackPage(unsigned bitsPerPixel, std::uint32_t width,
                              const jobtest::Rows& rows) {
  reader::Page page = pageWith(bitsPerPixel, 1, width);
  add(page, reader::Ink::kBlack, rows);
  return page;
}

inline PageDifference compared(const reader::Page& a, const reader::Page& b) {
  return differenceOf(a, b, [](std::uint64_t /*done*/, std::uint64_t /*all*/) {});
}

inline PlaneDifference blackDifference(const reader::Page& a, const reader::Page& b) {
  return compared(a, b).plane(reader::Ink::kBlack);
}

inline void expectSame(const PlaneDifference& plane) {
  EXPECT_EQ(plane.pixels, 0U);
  EXPECT_EQ(plane.paddingBits, 0U);
  for (const BandCount& bands :
       {plane.different, plane.recoded, plane.decodedInA, plane.decodedInB, plane.lostOtherwise}) {
    EXPECT_EQ(bands.count, 0U);
    EXPECT_FALSE(bands.first);
  }
}

}  // namespace gdi::gdiview
