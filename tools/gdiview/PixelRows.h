// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A page's rows as pixel values: those of a pixel's inks stand side by side, as InkMixer takes
// them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "reader/Page.h"

namespace gdi::gdiview {

class PixelRows {
 public:
  // inks: at most 4, the first one's values in the lowest bits; a plane that the page lacks is
  // blank. width: pixels a row, which need not be the page's. `page` must outlive this.
  PixelRows(const reader::Page& page, std::span<const reader::Ink> inks, std::uint32_t width);

  // The pixels of row y, 0 on top, from left to right: `width` values, the caller's to change and
  // valid until the next call. Blank where there is no row, and right of a row's last byte.
  // Rows may be asked for in any order; each plane keeps the band that was decoded last.
  std::span<std::uint16_t> row(std::uint32_t y);

 private:
  template <std::size_t kPixelsPerByte>
  void add(std::span<const std::uint8_t> row, unsigned place);

  unsigned bitsPerPixel_;
  std::uint32_t width_;
  std::vector<reader::PlaneRows> planes_;
  std::vector<std::uint16_t> values_;  // as many as the bytes of a row of `width` pixels hold
  std::array<std::array<std::uint16_t, 8>, 256> pixelsOf_{};  // of a byte, from left to right
};

}  // namespace gdi::gdiview
