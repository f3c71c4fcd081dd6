// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/Page.h"

#include <algorithm>

namespace gdi::reader {

namespace {

constexpr std::uint64_t kMicrometresPerInch = 25400;
// A row's padding is at least this wide.
constexpr std::uint32_t kLeastPaddingBits = 32;
constexpr std::uint32_t kRowMultipleBits = 128;
// The paper's size is told in whole points, so the raster may be wider than it by this much.
constexpr std::uint32_t kPixelsPerPoint = 9;

}  // namespace

std::uint32_t Page::rows() const {
  std::uint32_t rows = 0;
  for (const StoredPlane& plane : planes) {
    rows = std::max(rows, plane.rows());
  }
  return rows;
}

std::uint32_t Page::widthPixels() const {
  const std::uint64_t onPaper =
      (std::uint64_t{record.widthMicrometres} * kPixelsPerInch + kMicrometresPerInch / 2) /
      kMicrometresPerInch;
  const std::uint32_t bits = record.rowBits;
  const std::uint32_t most =
      bits < kLeastPaddingBits ? 0 : (bits - kLeastPaddingBits) / bitsPerPixel;
  const std::uint32_t nextShorterRow = kRowMultipleBits + kLeastPaddingBits;
  const std::uint32_t least =
      bits < nextShorterRow ? 1 : (bits - nextShorterRow) / bitsPerPixel + 1;
  if (onPaper == 0 || onPaper + kPixelsPerPoint < least) {
    return most;
  }
  return static_cast<std::uint32_t>(
      std::min<std::uint64_t>(std::max<std::uint64_t>(onPaper, least), most));
}

// To whole bytes and 32 bits more, then to the next multiple of 128 bits.
std::uint64_t paddedRowBits(std::uint64_t pixels, unsigned bitsPerPixel) {
  const std::uint64_t withSlack = (pixels * bitsPerPixel + kLeastPaddingBits + 7) / 8 * 8;
  return (withSlack + kRowMultipleBits - 1) / kRowMultipleBits * kRowMultipleBits;
}

}  // namespace gdi::reader
