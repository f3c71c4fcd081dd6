// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "printer/GDIFilter.h"

#include <algorithm>
#include <cstdio>
#include <limits>

#include <unistd.h>

#include "codec/pc4sc4.h"
#include "filter/log/debug_log.h"
#include "halftone/plane_geometry.h"
#include "platform/NSBundle.h"
#include "printer/format/solvane_date.h"
#include "printer/page_option_codes.h"
#include "printer/page_side.h"

namespace gdi {

namespace {

constexpr int kUserArgument = 2;
constexpr int kTitleArgument = 3;

}  // namespace

bool GDIFilter::init() {
  const bool result = PlanarFilter::init();
  if (result) {
    resetBands();
  }
  CPSDebugLog("GDIFilter init exiting with result: %d", result ? 1 : 0);
  return result;
}

bool GDIFilter::startJob() {
  (void)PlanarFilter::startJob();  // its answer does not count here
  CPSDebugLog("GDIFilter startJob:");
  sentJobHeaders = false;
  const std::string prologue =
      NSBundle::mainBundle().objectForInfoDictionaryKey("CUPSFileHeader").value_or("");
  const bool result = sendData(prologueBytes(prologue));
  CPSDebugLog("GDIFilter startJob: exiting - result: %d", result ? 1 : 0);
  return result;
}

bool GDIFilter::startPage(std::uint32_t page) {
  CPSDebugLog("GDIFilter startPage: page %d", static_cast<int>(page));
  orientPage(page);
  resetBands();
  setPlaneGeometry();
  bool result = allocBandBuffers();
  if (result) {
    // The job record's colour flag is read before this page's channel count is set:
    // docs/quirks.md, "The job record never says colour".
    result = sentJobHeaders || sendJobHeaders();
    result = startPlanes(page) && result && sendPageRecord(page);
  }
  CPSDebugLog("GDIFilter startPage: exiting - result: %d", result ? 1 : 0);
  return result;
}

// `flip` and `mirror` are kept from page to page: docs/quirks.md, "Rotated toggles".
void GDIFilter::orientPage(std::uint32_t page) {
  const auto toggle = [this] {
    CPSDebugLog("GDIFilter startPage: rotate 180 enabled");
    flip = !flip;
    mirror = !mirror;
  };
  const bool rotated = boolForOption("Rotated");
  if (duplex) {
    const bool flipDuplex = boolForPPDAttr("SolvaneFlipDuplex");
    CPSDebugLog("GDIFilter startPage: SolvaneFlipDuplex: %s", flipDuplex ? "YES" : "NO");
    if (flipDuplex && longEdge) {
      const DuplexJob job{systemVersion(), collate, copies};
      flip = mirror = duplexPageNumber(page, job, sidesImaged) % 2 == 1;
    }
    if (rotated && longEdge) {
      toggle();
    }
    if (rotated && shortEdge) {
      flip = mirror = true;
    }
  } else if (page == 0 && rotated) {
    toggle();
  }
  if (flip) {
    CPSDebugLog("GDIFilter startPage: page will be flipped");
  }
  if (mirror) {
    CPSDebugLog("GDIFilter startPage: page will be mirrored");
  }
}

void GDIFilter::setPlaneGeometry() {
  ditherBandCount = ditherBandCountFor(cupsPageHeader.cupsHeight, ditherBandHeight);
  ditherBPP = ditherBPPForQuality(optionValueOr(optionsDict, "Gradiation", "Fast"));
  ditherBitWidth = ditherBitWidthFor(ditherBPP, cupsPageHeader.cupsWidth);
  ditherRowBytes = ditherBitWidth / 8;
}

// The compressor's output has room for a whole plane, as the printer's own figure is, and for the
// worst band, which is more on a page shorter than a band.
bool GDIFilter::allocBandBuffers() {
  const std::uint32_t bandRows = std::min(ditherBandHeight, cupsPageHeader.cupsHeight);
  const std::uint64_t size = std::max(std::uint64_t{ditherRowBytes} * cupsPageHeader.cupsHeight,
                                      worstCaseBandBytes(bandRows, ditherRowBytes));
  if (!rowFitsPrinter()) {
    (void)std::fprintf(stderr,
                       "ERROR: rows of %u pixels at %u bits a pixel are wider than the printer "
                       "takes (%u bytes); choose a lower quality or smaller paper\n",
                       cupsPageHeader.cupsWidth, ditherBPP, kSeedBufferBytes);
    return false;
  }
  if (size > std::numeric_limits<std::uint32_t>::max()) {
    (void)std::fprintf(stderr,
                       "ERROR: a page of %u x %u pixels is too large; choose a lower quality or "
                       "smaller paper\n",
                       cupsPageHeader.cupsWidth, cupsPageHeader.cupsHeight);
    return false;
  }
  compressionSize = static_cast<std::uint32_t>(size);
  if (!compressionBuffer.allocate(compressionSize) || !seedBuffer.allocate(kSeedBufferBytes) ||
      !blankBand.allocate(std::size_t{bandRows} * ditherRowBytes)) {
    (void)std::fprintf(stderr, "ERROR: no memory for bands of a page of %u x %u pixels\n",
                       cupsPageHeader.cupsWidth, cupsPageHeader.cupsHeight);
    return false;
  }
  return true;
}

// A width whose bits do not fit 32 bits leaves a row that is too short for its pixels.
bool GDIFilter::rowFitsPrinter() const {
  const bool rowTooShort = std::uint64_t{ditherBPP} * cupsPageHeader.cupsWidth > ditherBitWidth;
  return !rowTooShort && ditherRowBytes <= kSeedBufferBytes;
}

bool GDIFilter::startPlanes(std::uint32_t page) {
  const bool result = PlanarFilter::startPage(page);
  if (!result && channelCount != 1 && channelCount != kColorChannels) {
    (void)std::fprintf(stderr,
                       "ERROR: a page of %u channels cannot be printed: the raster must be black "
                       "(1) or CMYK (4)\n",
                       channelCount);
  }
  return result;
}

// Sent once a job, whether or not the writes succeed: docs/quirks.md, "Job records count as sent".
bool GDIFilter::sendJobHeaders() {
  sentJobHeaders = true;
  const auto job = jobRecord({.copies = static_cast<std::uint16_t>(cupsPageHeader.NumCopies),
                              .date = solvaneDate(NSCalendarDate::calendarDate()),
                              .color = channelCount > 1,
                              .bitsPerPixel = static_cast<std::uint8_t>(ditherBPP),
                              .jobName = jobNameOfTitle(argv[kTitleArgument])});
  if (!sendData(job)) {
    return false;
  }
  const std::string host = hostName(gethostname);
  CPSDebugLog("hostname = %s", host.c_str());
  return sendData(hostRecord(host, argv[kUserArgument]));
}

bool GDIFilter::sendPageRecord(std::uint32_t page) {
  PageRecordFields record{.rowBits = static_cast<std::uint16_t>(ditherBitWidth),
                          .rows = static_cast<std::uint16_t>(cupsPageHeader.cupsHeight),
                          .channels = static_cast<std::uint8_t>(channelCount),
                          .pageNumber = static_cast<std::uint16_t>(page),
                          .bandCount = static_cast<std::uint16_t>(ditherBandCount),
                          .width = micrometresOfPoints(cupsPageHeader.PageSize[0]),
                          .height = micrometresOfPoints(cupsPageHeader.PageSize[1])};
  setPageOptions(record);
  return sendData(pageRecord(record));
}

void GDIFilter::setPageOptions(PageRecordFields& record) const {
  const auto option = [this](std::string_view name) {
    return optionValueOr(optionsDict, name, "");
  };
  record.mediaSize = mediaSizeCode(option("media"));
  record.inputTray = inputTrayCode(option("InputTray"));
  record.paperType = paperTypeCode(option("PaperType"), DefaultPaperType);
}

bool GDIFilter::endPage(std::uint32_t page) {
  const bool result = PlanarFilter::endPage(page);
  compressionBuffer.release();
  compressionSize = 0;
  seedBuffer.release();
  blankBand.release();
  return result;
}

bool GDIFilter::endJob() {
  const bool oddSides = sidesImaged / copies % 2 == 1;
  const bool filled = !(duplex && pageCount >= 2 && oddSides) || blankPage();
  CPSDebugLog("GDIFilter endJob:");
  if (!filled) {
    return false;
  }
  if (!PlanarFilter::endJob()) {
    CPSDebugAssert_("GDIFilter endJob: super failed");
    return false;
  }
  CPSDebugLog("GDIFilter endJob: sending JIDG");
  return sendData(kEndOfJobTag) && flushData();
}

}  // namespace gdi
