// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <algorithm>
#include <cstdio>

#include "codec/pc4sc4.h"
#include "filter/log/debug_log.h"
#include "printer/GDIFilter.h"

namespace gdi {

void GDIFilter::resetBands() {
  kBandIndex = 0;
  cBandIndex = -kCyanLag;
  mBandIndex = -kMagentaLag;
  yBandIndex = -kYellowLag;
}

// The plane's buffer; null when the page has no such plane. The only plane of a mono page is black.
RasterBandBuffer* GDIFilter::planeBuffer(Plane plane) const {
  switch (plane) {
    case Plane::kCyan:
      return rasterBand[0].get();
    case Plane::kMagenta:
      return rasterBand[1].get();
    case Plane::kYellow:
      return rasterBand[2].get();
    case Plane::kBlack:
      break;
  }
  return rasterBand[channelCount > 1 ? 3 : 0].get();
}

bool GDIFilter::planeHasBand(Plane plane, int bandIndex) const {
  const RasterBandBuffer* buffer = planeBuffer(plane);
  return buffer != nullptr && buffer->band(bandIndex) != nullptr;
}

// One step: black band s, cyan s-6, magenta s-12, yellow s-18, those that there are. A missing band
// only advances its index.
bool GDIFilter::sendBand() {
  const auto isLast = [this](Plane plane, int bandIndex) {
    const RasterBandBuffer* buffer = planeBuffer(plane);
    return buffer != nullptr && bandIndex == buffer->totalBands() - 1;
  };
  const bool mono = channelCount == 1;
  if (!sendPlaneBand(Plane::kBlack, kBandIndex, mono && isLast(Plane::kBlack, kBandIndex)) ||
      cancelled()) {
    return false;
  }
  if (channelCount != kColorChannels) {
    return true;
  }
  if (!sendPlaneBand(Plane::kCyan, cBandIndex, false) || cancelled() ||
      !sendPlaneBand(Plane::kMagenta, mBandIndex, false) || cancelled()) {
    return false;
  }
  return sendPlaneBand(Plane::kYellow, yBandIndex, isLast(Plane::kYellow, yBandIndex));
}

// Sends that band of the plane if there is one, and advances the index. False: a write failed.
bool GDIFilter::sendPlaneBand(Plane plane, int& bandIndex, bool lastBand) {
  const int index = bandIndex++;
  if (!planeHasBand(plane, index)) {
    return true;
  }
  RasterBandBuffer& buffer = *planeBuffer(plane);
  const std::uint32_t length = compressBand(buffer, index, lastBand);
  const auto record =
      bandRecord({.plane = plane,
                  .firstBand = index == 0,
                  .lastBand = lastBand,
                  .blankPage = blankAccumulator == 0,
                  .length = length,
                  .rowBits = static_cast<std::uint16_t>(ditherBitWidth),
                  .rows = static_cast<std::uint16_t>(buffer.bandHeightForIndex(index))});
  const bool sent = sendData(record) && sendData({compressionBuffer.data(), length});
  CPSDebugLog("GDIFilter sendRaster: wrote %c band %d", planeLetter(plane), index);
  return sent;
}

// The compressed length; 0, with an assertion in the log, when the band could not be compressed.
std::uint32_t GDIFilter::compressBand(RasterBandBuffer& buffer, int bandIndex, bool lastBand) {
  const auto rows = static_cast<std::uint32_t>(buffer.bandHeightForIndex(bandIndex));
  const std::uint8_t* band =
      buffer.bandIsBlank(bandIndex) ? blankBand.data() : buffer.band(bandIndex);
  const std::uint32_t length = compress(band, rows * ditherRowBytes, lastBand);
  if (length == 0 || length == kCompressionOverflow) {
    CPSDebugAssert_("GDIFilter sendRaster: qbx_Compress failed");
    return 0;
  }
  return length;
}

std::uint32_t GDIFilter::compress(const std::uint8_t* band, std::uint32_t byteCount,
                                  bool lastBand) {
  return qbx_Compress_PC4SC4(band, byteCount, compressionBuffer.data(), compressionSize,
                             ditherRowBytes, seedBuffer.data(), lastBand);
}

bool GDIFilter::sendRaster() {
  if (!PlanarFilter::sendRaster()) {
    return false;
  }
  // A page of k x 256 + 1 rows ends here with its last full band, and the rest is never sent:
  // docs/quirks.md, "A page of 257 rows".
  if (rasterLineNumber != 0 && rasterLineNumber % ditherBandHeight == 0 && !flip) {
    return sendBand();
  }
  if (rasterLineNumber + 1 != cupsPageHeader.cupsHeight) {
    return true;
  }
  return sendBandsLeft();
}

// Black-only and colour pages alone have a plane whose index the steps bring to the page's end.
bool GDIFilter::sendBandsLeft() {
  if (channelCount != 1 && channelCount != kColorChannels) {
    return true;
  }
  const int& lastPlaneIndex = channelCount == 1 ? kBandIndex : yBandIndex;
  bool result = true;
  while (result && lastPlaneIndex < static_cast<int>(ditherBandCount)) {
    result = sendBand();
  }
  return result;
}

// The blank back side of a job's last sheet, a page as any other but for its number.
bool GDIFilter::blankPage() {
  bool result = allocRasterBuffer();
  if (!result) {
    CPSDebugAssert_("GDIFilter blankPage: allocRasterBuffer failed");
    CPSDebugLog("GDIFilter blankPage: ending page");
  } else {
    result = sendBlankPage();
  }
  deallocRasterBuffer();
  CPSDebugLog("GDIFilter blankPage: complete");
  return result;
}

// Its number skips one: docs/quirks.md, "The filler page's number".
bool GDIFilter::sendBlankPage() {
  CPSDebugLog("GDIFilter blankPage: starting page");
  const std::uint32_t page = pageCount + 1;
  if (!startPage(page)) {
    CPSDebugAssert_("GDIFilter blankPage: startPage failed");
    CPSDebugLog("GDIFilter blankPage: ending page");
    return false;
  }
  const bool sent = sendBlankLines();
  CPSDebugLog("GDIFilter blankPage: ending page");
  return sent && endPage(page);  // docs/quirks.md, "A filler page that fails is not ended"
}

// The line buffer is all zeros since it was made.
bool GDIFilter::sendBlankLines() {
  bool result = true;
  for (rasterLineNumber = 0; result && rasterLineNumber < cupsPageHeader.cupsHeight;
       ++rasterLineNumber) {
    result = !cancelled() && sendRaster();
  }
  return result;
}

}  // namespace gdi
