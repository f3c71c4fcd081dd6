// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/page_resolution.h"

#include <algorithm>
#include <array>

#include "reader/page_rules.h"
#include "reader/row_width.h"

namespace gdi::reader {

namespace {

constexpr double kMicrometresPerInch = 25400;
constexpr double kTolerance = 0.01;  // of a length
constexpr std::array<std::uint32_t, 6> kOthers{300, 1200, 150, 200, 400, 2400};

double pixelsAt(std::uint32_t pixelsPerInch, std::uint32_t micrometres) {
  return micrometres / kMicrometresPerInch * pixelsPerInch;
}

// A length on paper of so many pixels is between these two, roughly.
bool isBetween(double pixels, double least, double most) {
  return pixels >= least * (1 - kTolerance) && pixels <= most * (1 + kTolerance);
}

// Whether rows of that length are padded from about so many pixels.
bool haveRoomFor(double pixels, const PageSummary& page) {
  const double most = page.rowBits - double{kRowSlackBits};
  return isBetween(pixels * page.bitsPerPixel, most - kRowBitsMultiple, most);
}

}  // namespace

std::uint32_t pixelsPerInchOf(const PageSummary& page) {
  const auto [rows, consistent] = rowsToldBy(page.record);
  const double usual = pixelsAt(kPixelsPerInch, page.record.heightMicrometres);
  if (!consistent || isBetween(rows, usual - kPixelsPerPoint, usual + kPixelsPerPoint)) {
    return kPixelsPerInch;
  }
  const auto fits = [&page, told = rows](std::uint32_t resolution) {
    const double length = pixelsAt(resolution, page.record.heightMicrometres);
    return isBetween(told, length, length) &&
           haveRoomFor(pixelsAt(resolution, page.record.widthMicrometres), page);
  };
  const auto* const found = std::ranges::find_if(kOthers, fits);
  return found == kOthers.end() ? kPixelsPerInch : *found;
}

}  // namespace gdi::reader
