// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The CUPS raster stream as the page loop sees it: a header, then that page's lines.
#pragma once

#include <cstdint>
#include <memory>
#include <span>

#include <cups/raster.h>

namespace gdi {

class RasterStream {
 public:
  RasterStream() = default;
  virtual ~RasterStream() = default;
  RasterStream(const RasterStream&) = delete;
  RasterStream& operator=(const RasterStream&) = delete;

  // Reads the next page's header. False at the end of the stream and at any error; `header` then
  // stays what it was, so that the last page's header outlives the stream.
  virtual bool readHeader(cups_page_header_t& header) = 0;

  // Reads the next line's bytes. Returns the bytes read, 0 at the end or at an error.
  virtual unsigned readPixels(std::span<std::uint8_t> line) = 0;
};

// The stream that libcups reads from `descriptor`. A stream that cannot be opened holds no page.
// Never null; the descriptor stays the caller's.
std::unique_ptr<RasterStream> openRasterStream(int descriptor);

}  // namespace gdi
