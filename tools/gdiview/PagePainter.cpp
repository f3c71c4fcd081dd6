// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/PagePainter.h"

#include <algorithm>
#include <cstddef>

namespace gdi::gdiview {

namespace {

std::span<const reader::Ink> inksOf(const reader::Page& page) {
  const std::span<const reader::Ink> all(reader::kInks);
  return page.isColor() ? all : all.subspan(reader::indexOf(reader::Ink::kBlack));
}

std::uint32_t dividedUp(std::uint32_t value, std::uint32_t divisor) {
  return value / divisor + (value % divisor != 0 ? 1 : 0);
}

}  // namespace

PagePainter::PagePainter(const reader::Page& page, std::uint32_t reduction)
    : bitsPerPixel_(page.bitsPerPixel),
      reduction_(reduction),
      pixelWidth_(page.widthPixels()),
      pixelRowsLeft_(page.rows()),
      width_(dividedUp(pixelWidth_, reduction)),
      height_(dividedUp(pixelRowsLeft_, reduction)),
      channels_(page.isColor() ? 3 : 1),
      mixer_(inksOf(page), page.bitsPerPixel),
      values_(pixelWidth_),
      sums_(reduction == 1 ? 0 : std::size_t{width_} * channels_),
      samples_(std::size_t{width_} * channels_) {
  for (const reader::Ink ink : inksOf(page)) {
    cursors_.emplace_back(page.plane(ink));
  }
}

std::span<const std::uint8_t> PagePainter::nextRow() {
  if (reduction_ == 1) {
    readPixels();
    auto sample = samples_.begin();
    for (const std::uint16_t values : values_) {
      sample = std::copy_n(mixer_.mix(values).begin(), channels_, sample);
    }
    return samples_;
  }
  std::fill(sums_.begin(), sums_.end(), 0);
  const std::uint32_t rows = std::min(reduction_, pixelRowsLeft_);
  for (std::uint32_t row = 0; row < rows; ++row) {
    readPixels();
    addPixels();
  }
  pixelRowsLeft_ -= rows;
  divideSums(rows);
  return samples_;
}

// A plane that ends above the page's last row is blank from there on.
void PagePainter::readPixels() {
  std::fill(values_.begin(), values_.end(), std::uint16_t{0});
  const std::size_t pixelsPerByte = 8 / bitsPerPixel_;
  const unsigned mask = (1U << bitsPerPixel_) - 1;
  unsigned place = 0;
  for (reader::RowCursor& cursor : cursors_) {
    const std::span<const std::uint8_t> row = cursor.next();
    const std::size_t pixels = row.empty() ? 0 : values_.size();
    for (std::size_t x = 0; x < pixels; ++x) {
      const unsigned byte = row[x / pixelsPerByte];
      const std::size_t right = (pixelsPerByte - 1 - x % pixelsPerByte) * bitsPerPixel_;
      values_[x] = static_cast<std::uint16_t>(values_[x] | (byte >> right & mask) << place);
    }
    place += bitsPerPixel_;
  }
}

void PagePainter::addPixels() {
  std::size_t x = 0;
  for (std::size_t column = 0; column < width_; ++column) {
    const std::size_t end = std::min<std::size_t>(x + reduction_, pixelWidth_);
    for (; x < end; ++x) {
      const Color& color = mixer_.mix(values_[x]);
      for (std::size_t c = 0; c < channels_; ++c) {
        sums_[column * channels_ + c] += color[c];
      }
    }
  }
}

void PagePainter::divideSums(std::uint32_t rows) {
  for (std::size_t column = 0; column < width_; ++column) {
    const std::uint64_t columns =
        std::min<std::uint64_t>(reduction_, pixelWidth_ - column * reduction_);
    const std::uint64_t pixels = std::max<std::uint64_t>(columns * rows, 1);
    for (std::size_t c = 0; c < channels_; ++c) {
      const std::size_t i = column * channels_ + c;
      samples_[i] = static_cast<std::uint8_t>((sums_[i] + pixels / 2) / pixels);
    }
  }
}

}  // namespace gdi::gdiview
