// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A page as rows of picture samples, made from top to bottom without holding the picture.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "reader/Page.h"
#include "tools/gdiview/InkMixer.h"

namespace gdi::gdiview {

class PagePainter {
 public:
  // One sample stands for `reduction` x `reduction` pixels and is their mean; the last ones of a
  // row and the last row stand for what is left. `page` must outlive the painter.
  // requires: reduction > 0
  PagePainter(const reader::Page& page, std::uint32_t reduction);

  [[nodiscard]] std::uint32_t width() const { return width_; }        // samples
  [[nodiscard]] std::uint32_t height() const { return height_; }      // sample rows
  [[nodiscard]] std::uint32_t channels() const { return channels_; }  // 1 = grey, 3 = RGB

  // The next row, width() x channels() bytes, valid until the next call.
  // requires: fewer than height() calls before
  std::span<const std::uint8_t> nextRow();

 private:
  void readPixels();
  void addPixels();
  void divideSums(std::uint32_t rows);

  unsigned bitsPerPixel_;
  std::uint32_t reduction_;
  std::uint32_t pixelWidth_;
  std::uint32_t pixelRowsLeft_;
  std::uint32_t width_;
  std::uint32_t height_;
  std::uint32_t channels_;
  InkMixer mixer_;
  std::vector<reader::RowCursor> cursors_;  // of the page's planes, in the mixer's order
  std::vector<std::uint16_t> values_;       // of one row of pixels, as the mixer takes them
  std::vector<std::uint64_t> sums_;
  std::vector<std::uint8_t> samples_;
};

}  // namespace gdi::gdiview
