// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// How large a plane is: bits a pixel from the quality word, row and band sizes from the page.
//
// All arithmetic is unsigned 32-bit, as the printer's own figures are.
#pragma once

#include <cstdint>
#include <string_view>

namespace gdi {

// Bits a plane pixel: 1 for "Fast", 2 for "Standard", 4 for "Fine", 1 for anything else.
std::uint32_t ditherBPPForQuality(std::string_view quality);

// Bits a plane row: the pixels and at least 32 bits of slack, brought up to a multiple of 128, so
// that a row is a whole multiple of 16 bytes.
std::uint32_t ditherBitWidthFor(std::uint32_t bitsPerPixel, std::uint32_t width);

// Bands a page as the page record states it: (height + bandHeight + 1) / bandHeight, which is one
// more than there are when height mod bandHeight is 0 or bandHeight - 1.
// docs/quirks.md, "One band too many".
std::uint32_t ditherBandCountFor(std::uint32_t height, std::uint32_t bandHeight);

}  // namespace gdi
