// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/DifferencePainter.h"

#include <algorithm>
#include <cstddef>

namespace gdi::gdiview {

namespace {

constexpr std::uint8_t kMarkA = 1;
constexpr std::uint8_t kMarkB = 2;

Color colorOf(std::uint8_t mark, std::uint8_t grey) {
  switch (mark) {
    case 0:
      return {grey, grey, grey};
    case kMarkA:
      return kMoreInA;
    case kMarkB:
      return kMoreInB;
    default:
      return kMoreInBoth;
  }
}

// How bright a colour looks, with the weights that television gave its three parts, and so pale
// that the colours of differences stand out.
std::uint8_t paleGreyOf(const Color& color) {
  const unsigned grey = (299U * color[0] + 587U * color[1] + 114U * color[2] + 500U) / 1000U;
  return static_cast<std::uint8_t>(255 - (255 - grey) / 4);
}

std::vector<std::uint8_t> paleGreys(unsigned bitsPerPixel) {
  const InkMixer mixer(reader::kInks, bitsPerPixel);
  std::vector<std::uint8_t> greys;
  greys.reserve(mixer.colors().size());
  for (const Color& color : mixer.colors()) {
    greys.push_back(paleGreyOf(color));
  }
  return greys;
}

std::uint32_t widthOf(const reader::Page& a, const reader::Page& b) {
  return std::max(a.widthPixels(), b.widthPixels());
}

std::uint32_t rowsOf(const reader::Page& a, const reader::Page& b) {
  return std::max(a.rows(), b.rows());
}

}  // namespace

DifferencePainter::DifferencePainter(const reader::Page& a, const reader::Page& b,
                                     std::uint32_t reduction)
    : Picture(cellsOf(widthOf(a, b), reduction), cellsOf(rowsOf(a, b), reduction), 3),
      reduction_(reduction),
      bitsPerPixel_(a.bitsPerPixel),
      pixelRows_(rowsOf(a, b)),
      greys_(paleGreys(a.bitsPerPixel)),
      a_(a, reader::kInks, widthOf(a, b)),
      b_(b, reader::kInks, widthOf(a, b)),
      row_(widthOf(a, b)),
      means_(widthOf(a, b), 1, reduction),
      marks_(width()),
      samples_(std::size_t{width()} * 3) {
}

std::span<const std::uint8_t> DifferencePainter::nextRow() {
  std::fill(marks_.begin(), marks_.end(), std::uint8_t{0});
  const std::uint32_t rows = std::min(reduction_, pixelRows_ - y_);
  for (std::uint32_t row = 0; row < rows; ++row) {
    addPixels();
  }
  const std::span<const std::uint8_t> greys = means_.take();
  auto sample = samples_.begin();
  for (std::size_t cell = 0; cell < marks_.size(); ++cell) {
    for (const std::uint8_t channel : colorOf(marks_[cell], greys[cell])) {
      *sample++ = channel;
    }
  }
  return samples_;
}

void DifferencePainter::addPixels() {
  const std::span<const std::uint16_t> a = a_.row(y_);
  const std::span<const std::uint16_t> b = b_.row(y_);
  ++y_;
  for (std::size_t x = 0; x < a.size(); ++x) {
    row_[x] = greys_[a[x]];
    if (a[x] != b[x]) {
      std::uint8_t& mark = marks_[x / reduction_];
      mark = static_cast<std::uint8_t>(mark | markOf(a[x], b[x]));
    }
  }
  means_.add(row_);
}

std::uint8_t DifferencePainter::markOf(std::uint16_t a, std::uint16_t b) const {
  const unsigned most = (1U << bitsPerPixel_) - 1;
  std::uint8_t mark = 0;
  for (std::size_t plane = 0; plane < reader::kInkCount; ++plane) {
    const unsigned ofA = a >> (plane * bitsPerPixel_) & most;
    const unsigned ofB = b >> (plane * bitsPerPixel_) & most;
    if (ofA != ofB) {
      mark |= ofA > ofB ? kMarkA : kMarkB;
    }
  }
  return mark;
}

}  // namespace gdi::gdiview
