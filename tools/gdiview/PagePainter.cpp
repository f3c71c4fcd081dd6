// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/PagePainter.h"

#include <algorithm>
#include <cstddef>

namespace gdi::gdiview {

namespace {

using Inks = std::span<const reader::Ink>;

constexpr Inks kBlackAlone = Inks(reader::kInks).subspan(reader::indexOf(reader::Ink::kBlack));

bool inColor(const reader::Page& page, const PaintOptions& options) {
  return page.isColor() && !options.separation;
}

// What the planes are painted with.
Inks inksOf(const reader::Page& page, const PaintOptions& options) {
  return inColor(page, options) ? Inks(reader::kInks) : kBlackAlone;
}

Inks planesOf(const reader::Page& page, const PaintOptions& options) {
  if (options.separation) {
    return Inks(reader::kInks).subspan(reader::indexOf(*options.separation), 1);
  }
  return inksOf(page, options);
}

}  // namespace

PagePainter::PagePainter(const reader::Page& page, const PaintOptions& options)
    : Picture(cellsOf(page.widthPixels(), options.reduction),
              cellsOf(page.rows(), options.reduction), inColor(page, options) ? 3 : 1),
      options_(options),
      pixelRows_(page.rows()),
      mixer_(inksOf(page, options), page.bitsPerPixel),
      pixels_(page, planesOf(page, options), page.widthPixels()),
      samples_(std::size_t{page.widthPixels()} * channels()),
      means_(page.widthPixels(), channels(), options.reduction) {
}

std::span<const std::uint8_t> PagePainter::nextRow() {
  if (options_.reduction == 1) {
    return paintPixels();
  }
  const std::uint32_t rows = std::min(options_.reduction, pixelRows_ - painted_);
  for (std::uint32_t row = 0; row < rows; ++row) {
    means_.add(paintPixels());
  }
  return means_.take();
}

std::span<const std::uint8_t> PagePainter::paintPixels() {
  const std::uint32_t y = options_.upright ? pixelRows_ - 1 - painted_ : painted_;
  ++painted_;
  const std::span<std::uint16_t> row = pixels_.row(y);
  if (options_.upright) {
    std::reverse(row.begin(), row.end());
  }
  const std::span<const Color> colors = mixer_.colors();
  std::uint8_t* sample = samples_.data();
  if (channels() == 1) {
    for (const std::uint16_t values : row) {
      *sample++ = colors[values][0];
    }
  } else {
    for (const std::uint16_t values : row) {
      for (const std::uint8_t channel : colors[values]) {
        *sample++ = channel;
      }
    }
  }
  return samples_;
}

}  // namespace gdi::gdiview
