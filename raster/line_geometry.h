// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The line buffer's size, worked out from a page header that may say anything.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include <cups/raster.h>

namespace gdi {

struct LineGeometry {
  std::uint32_t pixelCount = 0;  // pixels of the line buffer: cupsWidth rounded up to even
  std::uint32_t byteCount = 0;   // bytes of the line buffer: one a channel and pixel
};

// Bytes a pixel: cupsBitsPerPixel / cupsBitsPerColor; 0 when the header has no bits a colour.
std::uint32_t channelsOf(const cups_page_header_t& header);

// The line buffer of that page; nothing, with the reason in `refusal`, when a line of the raster
// would not fit in it, or would be read as something else than it is: only chunky pixels of 8 bits
// a colour can be screened.
std::optional<LineGeometry> lineGeometry(const cups_page_header_t& header, std::string& refusal);

}  // namespace gdi
