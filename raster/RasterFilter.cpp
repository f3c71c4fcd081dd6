// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "raster/RasterFilter.h"

#include <cstdio>

#include "filter/log/debug_log.h"
#include "platform/NSBundle.h"
#include "raster/line_geometry.h"
#include "raster/page_header_dump.h"
#include "raster/scanline.h"

namespace gdi {

bool RasterFilter::run() {
  (void)std::fputs("INFO: \n", stderr);
  (void)CUPSFilter::run();  // reads the settings, cannot fail
  cupsRaster = openRaster();
  bool succeeded = startJob() && !cancelled();
  if (succeeded) {
    succeeded = runPages();
  }
  if (!endJob()) {
    succeeded = false;
  }
  cupsRaster.reset();
  CPSDebugLog("RasterFilter run: exiting - result: %d", succeeded ? 1 : 0);
  return succeeded;
}

bool RasterFilter::runPages() {
  for (std::uint32_t page = 0; cupsRaster->readHeader(cupsPageHeader); ++page) {
    if (!runPage(page)) {
      return false;
    }
  }
  return true;
}

bool RasterFilter::runPage(std::uint32_t page) {
  (void)cancelled();  // only logs the signals seen so far
  dumpPageHeaders(cupsPageHeader);
  bool succeeded = allocRasterBuffer();
  if (succeeded) {
    CPSDebugLog("RasterFilter run: rasterByteCount: %d, rasterPixelCount: %d",
                static_cast<int>(rasterByteCount), static_cast<int>(rasterPixelCount));
    succeeded = startPage(page) && !cancelled();
  }
  if (succeeded) {
    succeeded = sendLines();
    CPSDebugLog("RasterFilter run: Processed %u lines", rasterLineNumber);
  }
  const bool ended = endPage(page);
  const bool goOn = succeeded && ended && !cancelled();
  deallocRasterBuffer();
  return goOn;
}

bool RasterFilter::sendLines() {
  bool succeeded = true;
  for (rasterLineNumber = 0; succeeded && rasterLineNumber < cupsPageHeader.cupsHeight;
       ++rasterLineNumber) {
    const bool stop = cancelled();  // and yet it is read: docs/quirks.md, "A cancelled line"
    const unsigned read =
        cupsRaster->readPixels({rasterBuffer.data(), cupsPageHeader.cupsBytesPerLine});
    if (stop || read == 0) {
      CPSDebugAssert_("RasterFilter run: cupsRasterReadPixels failed");
      succeeded = false;
      continue;
    }
    if (mirror) {
      mirrorRaster();
    }
    succeeded = sendRaster();
    if (!succeeded) {
      CPSDebugAssert_("sendRaster failed");
    }
  }
  return succeeded;
}

void RasterFilter::mirrorRaster() {
  if (channelCount == kColorChannels) {
    mirrorRaster32(rasterLine());
  } else if (channelCount == 1) {
    mirrorRaster8(rasterLine());
  }
}

std::unique_ptr<RasterStream> RasterFilter::openRaster() {
  return openRasterStream(sourceFD);
}

bool RasterFilter::allocRasterBuffer() {
  std::string refusal;
  const std::optional<LineGeometry> geometry = lineGeometry(cupsPageHeader, refusal);
  const LineGeometry line = geometry.value_or(LineGeometry{});
  rasterPixelCount = line.pixelCount;
  rasterByteCount = line.byteCount;
  rasterLineNumber = 0;
  if (geometry && rasterBuffer.allocate(rasterByteCount)) {
    return true;
  }
  if (geometry) {
    refusal = "no memory for a raster line of " + std::to_string(rasterByteCount) + " bytes";
  }
  (void)std::fprintf(stderr, "ERROR: page %u cannot be printed: %s\n", pageCount + 1,
                     refusal.c_str());
  return false;
}

void RasterFilter::deallocRasterBuffer() {
  rasterBuffer.release();
}

bool RasterFilter::startJob() {
  return true;
}

bool RasterFilter::startPage(std::uint32_t page) {
  channelCount = channelsOf(cupsPageHeader);
  const std::string format =
      NSBundle::mainBundle().localizedStringForKey("PageProgress", "Processing page %d");
  (void)std::fprintf(stderr, "INFO: %s\n", progressText(format, page + 1).c_str());
  blankAccumulator = 0;
  lineInk = {};
  return true;
}

bool RasterFilter::sendRaster() {
  lineInk = inkOf(rasterLine());
  for (const std::uint8_t ink : lineInk) {
    blankAccumulator = static_cast<std::uint8_t>(blankAccumulator | ink);
  }
  return true;
}

bool RasterFilter::endPage(std::uint32_t /*page*/) {
  ++pageCount;
  CPSDebugLog("RasterFilter endPage: blankAccumulator = 0x%2.2x", blankAccumulator);
  return true;
}

bool RasterFilter::endJob() {
  return true;
}

std::string progressText(std::string_view format, std::uint32_t number) {
  std::string text(format);
  if (const std::size_t place = text.find("%d"); place != std::string::npos) {
    text.replace(place, 2, std::to_string(static_cast<std::int32_t>(number)));
  }
  return text;
}

}  // namespace gdi
