// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A letter in pixels of one size, its edges smoothed over one pixel.
#pragma once

#include <cstdint>
#include <vector>

#include "tools/samplepages/stroke_font.h"

namespace gdi::samplepages {

class Glyph {
 public:
  Glyph() = default;
  // `unitPixels`: pixels of a grid unit, 1 to 64.
  Glyph(const Letter& letter, int unitPixels);

  // From this glyph's origin to the next one's, pixels.
  [[nodiscard]] int advance() const { return advance_; }
  // Columns and rows, counted from one grid unit left of and above the origin.
  [[nodiscard]] int width() const { return width_; }
  [[nodiscard]] int height() const { return height_; }
  // How much of a pixel is inked, 0 to 255. x in 0 to width() - 1, y in 0 to height() - 1.
  [[nodiscard]] std::uint8_t coverage(int x, int y) const;

 private:
  void draw(const Stroke& stroke, int unitPixels);

  int advance_ = 0;
  int width_ = 0;
  int height_ = 0;
  std::vector<std::uint8_t> coverage_;
};

}  // namespace gdi::samplepages
