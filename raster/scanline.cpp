// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "raster/scanline.h"

#include <algorithm>

namespace gdi {

void mirrorRaster8(std::span<std::uint8_t> line) {
  std::ranges::reverse(line);
}

void mirrorRaster32(std::span<std::uint8_t> line) {
  constexpr std::size_t kPixelBytes = 4;
  std::size_t left = 0;
  std::size_t right = line.size();
  while (left + kPixelBytes < right) {
    right -= kPixelBytes;
    std::ranges::swap_ranges(line.subspan(left, kPixelBytes), line.subspan(right, kPixelBytes));
    left += kPixelBytes;
  }
}

std::uint8_t inkOf(std::span<const std::uint8_t> line) {
  std::uint8_t ink = 0;
  for (const std::uint8_t byte : line) {
    ink = static_cast<std::uint8_t>(ink | byte);
  }
  return ink;
}

}  // namespace gdi
