// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The record that describes pixels in memory to the colour calls.
#pragma once

#include <cstdint>

namespace gdi {

// Colour spaces of a bitmap, with how its samples are packed.
inline constexpr std::uint32_t cmGray8Space = 0x280A;   // a byte a pixel
inline constexpr std::uint32_t cmCMYK32Space = 0x0802;  // four bytes a pixel: C, M, Y, K

// Every sample is an amount of ink, 0 none to 255 full; grey, too, as the spooler's rasters have
// it.
struct CMBitmap {
  std::uint8_t* image = nullptr;  // not owned
  std::uint32_t width = 0;        // pixels
  std::uint32_t height = 0;       // rows
  std::uint32_t rowBytes = 0;     // from one row to the next
  std::uint32_t pixelSize = 0;    // bits
  std::uint32_t space = 0;
  std::uint32_t user1 = 0;  // the caller's
  std::int32_t user2 = 0;   // the caller's
};

}  // namespace gdi
