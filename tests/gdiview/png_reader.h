// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A PNG file read back with libpng's plain reader.
#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

namespace gdi::gdiview {

struct PngPicture {
  std::uint32_t width = 0;
  std::uint32_t height = 0;
  int channels = 0;
  std::uint32_t samplesPerMetre = 0;
  std::vector<std::uint8_t> samples;
};

// An empty picture when there is no such file.
PngPicture readPng(const std::filesystem::path& path);

}  // namespace gdi::gdiview
