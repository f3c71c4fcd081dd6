// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/Page.h"

#include <algorithm>

#include "reader/page_resolution.h"

namespace gdi::reader {

std::uint32_t Page::rows() const {
  std::uint32_t rows = 0;
  for (const StoredPlane& plane : planes) {
    rows = std::max(rows, plane.rows());
  }
  return rows;
}

bool PageSummary::isColor() const {
  const bool planesKnown = record.channels == 1 || record.channels == kInkCount;
  return planesKnown ? record.channels == kInkCount : std::ranges::any_of(kInks, [this](Ink ink) {
    return ink != Ink::kBlack && summaryOf(ink).bands > 0;
  });
}

std::span<const Ink> PageSummary::inks() const {
  const std::span<const Ink> all(kInks);
  return isColor() ? all : all.subspan(indexOf(Ink::kBlack));
}

std::uint64_t PageSummary::bytesOfRows() const {
  std::uint64_t rows = 0;
  for (const PlaneSummary& plane : planeSummaries) {
    rows += plane.rows;
  }
  return rows * (rowBits / 8);
}

std::uint32_t PageSummary::widthPixels() const {
  const std::uint64_t onPaper = pixelsOnPaper(record.widthMicrometres, pixelsPerInchOf(*this));
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
