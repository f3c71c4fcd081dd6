// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "raster/line_geometry.h"

#include <limits>

#include "raster/header_field.h"

namespace gdi {

namespace {

constexpr unsigned kBitsPerColor = 8;

// Whether the colours of a pixel do not stand side by side. A page of one colour is the same in
// every order.
bool holdsPlanesApart(const cups_page_header_t& header) {
  const unsigned order = valueOf(header.cupsColorOrder);
  const unsigned space = valueOf(header.cupsColorSpace);
  const bool oneColor = space == CUPS_CSPACE_K || space == CUPS_CSPACE_W || space == CUPS_CSPACE_SW;
  return !oneColor && (order == CUPS_ORDER_BANDED || order == CUPS_ORDER_PLANAR);
}

}  // namespace

std::uint32_t channelsOf(const cups_page_header_t& header) {
  return header.cupsBitsPerColor == 0 ? 0 : header.cupsBitsPerPixel / header.cupsBitsPerColor;
}

std::optional<LineGeometry> lineGeometry(const cups_page_header_t& header, std::string& refusal) {
  if (header.cupsBitsPerColor != kBitsPerColor) {
    refusal = "the page header has " + std::to_string(header.cupsBitsPerColor) +
              " bits per colour, not 8";
    return std::nullopt;
  }
  if (holdsPlanesApart(header)) {
    refusal = "its colours are not chunky, pixel by pixel";
    return std::nullopt;
  }
  const std::uint64_t pixels = (std::uint64_t{header.cupsWidth} + 1) & ~std::uint64_t{1};
  const std::uint64_t bytes = channelsOf(header) * pixels;
  if (bytes > std::numeric_limits<std::uint32_t>::max()) {
    refusal = "a page of " + std::to_string(header.cupsWidth) + " pixels is too wide";
    return std::nullopt;
  }
  if (header.cupsBytesPerLine > bytes) {
    refusal = "a raster line of " + std::to_string(header.cupsBytesPerLine) +
              " bytes does not fit a page of " + std::to_string(header.cupsWidth) +
              " pixels with 8 bits per colour";
    return std::nullopt;
  }
  return LineGeometry{static_cast<std::uint32_t>(pixels), static_cast<std::uint32_t>(bytes)};
}

}  // namespace gdi
