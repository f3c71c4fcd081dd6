// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Where two pages differ, plane by plane: in their pixels, in their padding or in their coding
// alone, or in what does not decode.
//
// Every difference of the data of a band that both have is told by one of these. Rows are compared
// bit by bit where they stand on the page, whatever bands they come from. What one page lacks, be
// it a plane, a row or the end of a row's bytes, is blank in it. In the narrower page the pixels
// between both widths are what its rows hold there.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>

#include "reader/Page.h"

namespace gdi::gdiview {

struct PixelPlace {
  std::uint32_t x = 0;  // pixels from the left
  std::uint32_t y = 0;  // rows from the top
  friend bool operator==(const PixelPlace&, const PixelPlace&) = default;
};

// How many bands of a plane are so, and the first of them by its index in the plane, from 0 on top.
struct BandCount {
  std::uint32_t count = 0;
  std::optional<std::uint32_t> first;

  void add(std::uint32_t band) {
    ++count;
    first = first.value_or(band);
  }
};

struct PlaneDifference {
  std::uint64_t pixels = 0;              // that differ, in the width of the wider page
  std::optional<PixelPlace> firstPixel;  // the leftmost in the topmost row that has any
  std::uint64_t paddingBits = 0;         // that differ right of that width
  // With a row that differs in a pixel or in its padding; not counted where a page lacks the plane.
  BandCount different;
  BandCount recoded;  // with other bytes for the same bits
  // Decoded in one page, and lost in the other.
  BandCount decodedInA;
  BandCount decodedInB;
  BandCount lostOtherwise;  // lost in both, with other bytes
};

struct PageDifference {
  // False when the pages' pixels are not of equally many bits; nothing is compared then.
  bool comparable = true;
  std::array<PlaneDifference, reader::kInkCount> planes;  // indexed by indexOf(ink)

  [[nodiscard]] const PlaneDifference& plane(reader::Ink ink) const {
    return planes[reader::indexOf(ink)];
  }
  // No pixel differs; false when not comparable.
  [[nodiscard]] bool samePixels() const;
};

// Takes how many of the planes' rows have been compared so far, and how many there are in all, > 0.
using RowsCompared = std::function<void(std::uint64_t done, std::uint64_t all)>;

// Holds one decoded band of each page at a time, and decodes no band that is the same in both.
// compared: called behind each row, or behind each band of rows that need no look.
PageDifference differenceOf(const reader::Page& a, const reader::Page& b,
                            const RowsCompared& compared);

}  // namespace gdi::gdiview
