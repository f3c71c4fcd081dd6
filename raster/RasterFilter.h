// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The page and line loop: reads the raster stream into one line buffer and drives the five stage
// operations that the rest of the chain overrides.
//
// One thread. Cancellation is polled before the first page, after each page's start, before every
// line and after every page.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "filter/CUPSFilter.h"
#include "raster/ZeroedBuffer.h"
#include "raster/raster_stream.h"

namespace gdi {

// Bytes a pixel of a colour page, the most that a page may have: C, M, Y and K. A mono page has
// one.
inline constexpr std::uint32_t kColorChannels = 4;

class RasterFilter : public CUPSFilter {
 public:
  // The whole job. True when every operation of every page and the job's end succeeded.
  bool run() override;

  // The stage protocol. Each override calls its superclass first and then does its own work;
  // false ends the job after the current page's endPage. `page` is the page's place in the raster
  // stream, from 0; the line of sendRaster is `rasterBuffer`, its number `rasterLineNumber`.
  virtual bool startJob();
  virtual bool startPage(std::uint32_t page);
  virtual bool sendRaster();
  virtual bool endPage(std::uint32_t page);
  virtual bool endJob();

 protected:
  // Makes the zeroed line buffer for `cupsPageHeader`. False, told on standard error, when the
  // header's line does not fit in it or there is no memory.
  bool allocRasterBuffer();
  void deallocRasterBuffer();

  // Where pages come from; a test may bring its own.
  virtual std::unique_ptr<RasterStream> openRaster();

  std::unique_ptr<RasterStream> cupsRaster;  // null before the job and after it
  std::uint32_t channelCount = 0;            // bytes a pixel; set by startPage
  cups_page_header_t cupsPageHeader{};       // the last page read
  std::uint32_t rasterPixelCount = 0;        // pixels of the line buffer, even
  std::uint32_t rasterByteCount = 0;         // bytes of the line buffer
  ZeroedBuffer rasterBuffer;                 // the current line, from allocRasterBuffer on
  std::uint32_t rasterLineNumber = 0;        // line in the buffer, 0 for the first
  bool mirror = false;                       // reverse each line; set by the printer's stage
  std::uint8_t blankAccumulator = 0;         // OR of every byte sent since startPage
  // inkOf (raster/scanline.h) of the line that sendRaster was called for last, as it was read. On a
  // colour page element c is 0 when channel c is blank; a mono line is blank when all are 0. Zeros
  // from startPage to the first line.
  std::array<std::uint8_t, 4> lineInk{};
  std::uint32_t pageCount = 0;  // pages ended so far, failed ones included

 private:
  bool runPages();
  bool runPage(std::uint32_t page);
  bool sendLines();
  void mirrorRaster();
  [[nodiscard]] std::span<std::uint8_t> rasterLine() const {
    return {rasterBuffer.data(), rasterByteCount};
  }
};

// The progress text: `format` with its first %d replaced by `number`. Every other character stands
// as it is, so a wrong translation cannot do harm.
std::string progressText(std::string_view format, std::uint32_t number);

}  // namespace gdi
