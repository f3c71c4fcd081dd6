// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A picture of where two pages differ: the first page in pale grey, and colours where they differ.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "reader/Page.h"
#include "tools/gdiview/CellMeans.h"
#include "tools/gdiview/InkMixer.h"
#include "tools/gdiview/Picture.h"
#include "tools/gdiview/PixelRows.h"

namespace gdi::gdiview {

// Where a pixel has more of an ink in the first page, in the second, or of different inks in both.
inline constexpr Color kMoreInA{220, 0, 0};
inline constexpr Color kMoreInB{0, 0, 220};
inline constexpr Color kMoreInBoth{150, 0, 150};

class DifferencePainter : public Picture {
 public:
  // As wide and as long as the larger page each way, both from the top left; what a page lacks is
  // blank in it, as in page_difference.h. One sample stands for `reduction` x `reduction` pixels:
  // their mean if they are equal, and coloured if a single one differs. Both pages must outlive the
  // painter. requires: a.bitsPerPixel == b.bitsPerPixel, reduction > 0
  DifferencePainter(const reader::Page& a, const reader::Page& b, std::uint32_t reduction);

  std::span<const std::uint8_t> nextRow() override;

 private:
  // Adds the next row of pixels to the cells and marks those that differ.
  void addPixels();
  // Which page has more of an ink: 1 = the first, 2 = the second, 3 = each of some.
  [[nodiscard]] std::uint8_t markOf(std::uint16_t a, std::uint16_t b) const;

  std::uint32_t reduction_;
  unsigned bitsPerPixel_;
  std::uint32_t pixelRows_;
  std::uint32_t y_ = 0;              // the next row of pixels
  std::vector<std::uint8_t> greys_;  // pale, of a pixel's values
  PixelRows a_;
  PixelRows b_;
  std::vector<std::uint8_t> row_;  // greys of one row of pixels
  CellMeans means_;
  std::vector<std::uint8_t> marks_;  // of the cells, as markOf tells, or 0
  std::vector<std::uint8_t> samples_;
};

}  // namespace gdi::gdiview
