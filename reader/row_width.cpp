// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/row_width.h"

namespace gdi::reader {

namespace {

constexpr std::uint64_t kMicrometresPerInch = 25400;
constexpr std::uint32_t kToldBits = 65536;  // rows so much longer are told alike

std::uint32_t distance(std::uint32_t a, std::uint32_t b) {
  return a < b ? b - a : a - b;
}

// Bits of a row that is as wide as the paper, without its padding but for the last 32; nothing when
// the paper is of no width or wider than any row.
std::optional<std::uint32_t> rowBitsOnPaper(const PageRecord& record, unsigned bitsPerPixel) {
  const std::uint64_t pixels = pixelsOnPaper(record.widthMicrometres);
  const std::uint64_t bits = pixels * bitsPerPixel + kRowSlackBits;
  if (pixels == 0 || bits > kMaxRowBits) {
    return std::nullopt;
  }
  return static_cast<std::uint32_t>(bits);
}

}  // namespace

std::uint64_t pixelsOnPaper(std::uint32_t micrometres, std::uint32_t pixelsPerInch) {
  return (std::uint64_t{micrometres} * pixelsPerInch + kMicrometresPerInch / 2) /
         kMicrometresPerInch;
}

std::uint32_t likelyRowBits(const PageRecord& record, unsigned bitsPerPixel) {
  std::uint32_t likely = record.rowBits == 0 ? kToldBits : record.rowBits;
  const std::optional<std::uint32_t> onPaper = rowBitsOnPaper(record, bitsPerPixel);
  if (!onPaper) {
    return likely;
  }
  for (auto longer = nextLongerRow(likely); longer; longer = nextLongerRow(*longer)) {
    if (distance(*longer, *onPaper) < distance(likely, *onPaper)) {
      likely = *longer;
    }
  }
  return likely;
}

bool paperVouchesFor(std::uint32_t rowBits, const PageRecord& record, unsigned bitsPerPixel) {
  const std::optional<std::uint32_t> onPaper = rowBitsOnPaper(record, bitsPerPixel);
  return onPaper &&
         distance(rowBits, *onPaper) <= kPixelsPerPoint * bitsPerPixel + kRowBitsMultiple;
}

std::optional<std::uint32_t> nextLongerRow(std::uint32_t rowBits) {
  if (rowBits + kToldBits > kMaxRowBits) {
    return std::nullopt;
  }
  return rowBits + kToldBits;
}

}  // namespace gdi::reader
