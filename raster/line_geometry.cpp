// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "raster/line_geometry.h"

#include <limits>

namespace gdi {

std::uint32_t channelsOf(const cups_page_header_t& header) {
  return header.cupsBitsPerColor == 0 ? 0 : header.cupsBitsPerPixel / header.cupsBitsPerColor;
}

std::optional<LineGeometry> lineGeometry(const cups_page_header_t& header, std::string& refusal) {
  if (header.cupsBitsPerColor == 0) {
    refusal = "the page header has 0 bits per colour";
    return std::nullopt;
  }
  const std::uint32_t pixels = (header.cupsWidth + 1) & ~1U;
  const std::uint64_t bytes = std::uint64_t{channelsOf(header)} * pixels;
  if (bytes > std::numeric_limits<std::uint32_t>::max() || header.cupsBytesPerLine > bytes) {
    refusal = "a raster line of " + std::to_string(header.cupsBytesPerLine) +
              " bytes does not fit a page of " + std::to_string(header.cupsWidth) +
              " pixels with 8 bits per colour";
    return std::nullopt;
  }
  return LineGeometry{pixels, static_cast<std::uint32_t>(bytes)};
}

}  // namespace gdi
