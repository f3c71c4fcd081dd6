// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/Page.h"

#include <algorithm>

namespace gdi::reader {

namespace {

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
  const std::uint64_t onPaper = pixelsOnPaper(record);
  const std::uint32_t most = rowBits < kRowSlackBits ? 0 : (rowBits - kRowSlackBits) / bitsPerPixel;
  const std::uint32_t nextShorterRow = kRowBitsMultiple + kRowSlackBits;
  const std::uint32_t least =
      rowBits < nextShorterRow ? 1 : (rowBits - nextShorterRow) / bitsPerPixel + 1;
  if (onPaper == 0 || onPaper + kPixelsPerPoint < least) {
    return most;
  }
  return static_cast<std::uint32_t>(
      std::min<std::uint64_t>(std::max<std::uint64_t>(onPaper, least), most));
}

}  // namespace gdi::reader
