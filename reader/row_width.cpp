// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/row_width.h"

namespace gdi::reader {

namespace {

constexpr std::uint64_t kMicrometresPerInch = 25400;
constexpr std::uint32_t kToldBits = 65536;  // rows so much longer are told alike

std::uint64_t distance(std::uint64_t a, std::uint64_t b) {
  return a < b ? b - a : a - b;
}

}  // namespace

std::uint64_t pixelsOnPaper(std::uint32_t micrometres) {
  return (std::uint64_t{micrometres} * kPixelsPerInch + kMicrometresPerInch / 2) /
         kMicrometresPerInch;
}

std::uint32_t likelyRowBits(const PageRecord& record, unsigned bitsPerPixel) {
  std::uint32_t likely = record.rowBits == 0 ? kToldBits : record.rowBits;
  const std::uint64_t onPaper =
      pixelsOnPaper(record.widthMicrometres) * bitsPerPixel + kRowSlackBits;
  if (onPaper == kRowSlackBits || onPaper > kMaxRowBits) {
    return likely;
  }
  for (auto longer = nextLongerRow(likely); longer; longer = nextLongerRow(*longer)) {
    if (distance(*longer, onPaper) < distance(likely, onPaper)) {
      likely = *longer;
    }
  }
  return likely;
}

std::optional<std::uint32_t> nextLongerRow(std::uint32_t rowBits) {
  if (rowBits + kToldBits > kMaxRowBits) {
    return std::nullopt;
  }
  return rowBits + kToldBits;
}

}  // namespace gdi::reader
