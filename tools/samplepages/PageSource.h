// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A page of 8-bit ink as the filter receives one, made scanline by scanline and the same each time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "tools/samplepages/Ink.h"

namespace gdi::samplepages {

// The longest side of a page, pixels.
inline constexpr int kMaxSide = 32767;

struct PageShape {
  int width = 0;     // pixels, 1 to kMaxSide
  int height = 0;    // pixels, 1 to kMaxSide
  int channels = 4;  // 4: cyan, magenta, yellow, black; 1: black
  [[nodiscard]] bool valid() const;
};

class PageSource {
 public:
  // requires: shape.valid()
  explicit PageSource(const PageShape& shape) : shape_(shape) {}
  PageSource(const PageSource&) = delete;
  PageSource& operator=(const PageSource&) = delete;
  PageSource(PageSource&&) = delete;
  PageSource& operator=(PageSource&&) = delete;
  virtual ~PageSource() = default;

  [[nodiscard]] const PageShape& shape() const { return shape_; }
  // Bytes of a scanline: width x channels.
  [[nodiscard]] std::size_t rowBytes() const;

  // Writes scanline `y` (0 to height - 1, in any order), channels interleaved, 0 blank to 255 full.
  // `row` is of rowBytes(). False, and nothing written, for any other arguments.
  [[nodiscard]] bool scanline(int y, std::span<std::uint8_t> row) const;

 protected:
  // Paints row `y` over blank paper.
  virtual void paint(int y, std::span<Ink> row) const = 0;

 private:
  PageShape shape_;
};

}  // namespace gdi::samplepages
