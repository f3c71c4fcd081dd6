// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A raster that is measured, and how large the planes are that the filter makes of its page.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

namespace gdi::bench {

struct PageRaster {
  std::filesystem::path path;
  std::uint32_t width = 0;     // pixels
  std::uint32_t height = 0;    // pixels
  std::uint32_t channels = 0;  // 1 or 4
};

// The raster of that name and mode ("color", "mono") in the folder. Nothing, and a line on standard
// error that says why, when it is not there or no raster of one page of that many pixels.
std::optional<PageRaster> findRaster(const std::filesystem::path& folder, std::string_view page,
                                     std::string_view mode, std::uint32_t width,
                                     std::uint32_t height);

// What all planes of the page take together at that quality, in units of 2^20 bytes.
double planeMebibytes(const PageRaster& raster, std::string_view quality);

}  // namespace gdi::bench
