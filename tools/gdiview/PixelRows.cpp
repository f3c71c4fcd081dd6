// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/PixelRows.h"

#include <algorithm>

namespace gdi::gdiview {

PixelRows::PixelRows(const reader::Page& page, std::span<const reader::Ink> inks,
                     std::uint32_t width)
    : bitsPerPixel_(page.bitsPerPixel), width_(width) {
  const std::size_t pixelsPerByte = 8 / bitsPerPixel_;
  values_.resize((width_ + pixelsPerByte - 1) / pixelsPerByte * pixelsPerByte);
  const unsigned mask = (1U << bitsPerPixel_) - 1;
  for (unsigned byte = 0; byte < pixelsOf_.size(); ++byte) {
    for (std::size_t i = 0; i < pixelsPerByte; ++i) {
      pixelsOf_[byte][i] = static_cast<std::uint16_t>(byte >> (8 - (i + 1) * bitsPerPixel_) & mask);
    }
  }
  for (const reader::Ink ink : inks) {
    planes_.emplace_back(page.plane(ink));
  }
}

std::span<std::uint16_t> PixelRows::row(std::uint32_t y) {
  std::fill(values_.begin(), values_.end(), std::uint16_t{0});
  unsigned place = 0;
  for (reader::PlaneRows& plane : planes_) {
    const std::span<const std::uint8_t> row = plane.row(y);
    switch (bitsPerPixel_) {
      case 1:
        add<8>(row, place);
        break;
      case 2:
        add<4>(row, place);
        break;
      default:
        add<2>(row, place);
        break;
    }
    place += bitsPerPixel_;
  }
  return std::span(values_).first(width_);
}

template <std::size_t kPixelsPerByte>
void PixelRows::add(std::span<const std::uint8_t> row, unsigned place) {
  const std::size_t bytes = std::min(row.size(), values_.size() / kPixelsPerByte);
  std::uint16_t* pixel = values_.data();
  for (const std::uint8_t byte : row.first(bytes)) {
    if (byte != 0) {
      const std::array<std::uint16_t, 8> pixels = pixelsOf_[byte];
      for (std::size_t i = 0; i < kPixelsPerByte; ++i) {
        pixel[i] = static_cast<std::uint16_t>(pixel[i] | pixels[i] << place);
      }
    }
    pixel += kPixelsPerByte;
  }
}

}  // namespace gdi::gdiview
