// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// CUPS rasters for whole-program tests, written by libcups as an earlier filter would.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include <cups/raster.h>

namespace gdi::programtest {

// One page of 8-bit chunky pixels. `sample(x, y, channel)` is the ink, 0 none to 255 full.
struct RasterPage {
  std::uint32_t width = 16;   // pixels
  std::uint32_t height = 16;  // rows
  std::uint32_t channels = 1;
  std::function<std::uint8_t(std::uint32_t x, std::uint32_t y, std::uint32_t channel)> sample =
      [](std::uint32_t, std::uint32_t, std::uint32_t) { return std::uint8_t{0}; };
  std::uint32_t copies = 1;        // NumCopies
  std::uint32_t pointsWide = 595;  // PageSize
  std::uint32_t pointsHigh = 842;
};

// The header that libcups writes for that page.
cups_page_header2_t headerOf(const RasterPage& page);

// The whole raster stream, uncompressed as Ghostscript writes it.
std::vector<std::uint8_t> rasterOf(std::span<const RasterPage> pages);

// Samples that look like noise, the same at every run.
std::uint8_t noise(std::uint32_t x, std::uint32_t y, std::uint32_t channel);

}  // namespace gdi::programtest
