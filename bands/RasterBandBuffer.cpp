// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "bands/RasterBandBuffer.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <utility>

#include <sys/mman.h>

#include "filter/log/debug_log.h"

namespace gdi {
namespace {

const char* yesOrNo(bool flag) {
  return flag ? "YES" : "NO";
}

// Addresses are logged as their low 32 bits: docs/quirks.md, "Addresses cut to 32 bits".
unsigned logged(std::uintptr_t address) {
  return static_cast<unsigned>(address);
}

}  // namespace

std::unique_ptr<RasterBandBuffer> RasterBandBuffer::initWithPixelHeight(int pixelHeight,
                                                                        int rowBytes,
                                                                        int bandHeight,
                                                                        const char* path) {
  CPSDebugLog(
      "RasterBandBuffer initWithPixelHeight: height: %d, rowBytes: %d, bandHeight: %d, path: %s",
      pixelHeight, rowBytes, bandHeight, path);
  const std::int64_t fileSize = std::int64_t{pixelHeight} * rowBytes;
  int totalBands = 0;
  if (bandHeight >= 1) {
    totalBands = static_cast<int>((std::int64_t{pixelHeight} + bandHeight - 1) / bandHeight);
    // A size beyond 32 bits is shown as its low 32 bits; it is refused below.
    CPSDebugLog("RasterBandBuffer initWithPixelHeight: totalBands: %d, fileSize: %d", totalBands,
                static_cast<int>(fileSize));
  }
  if (pixelHeight < 0 || rowBytes < 0 || bandHeight < 1 ||
      fileSize > std::numeric_limits<std::int32_t>::max()) {
    CPSDebugLog("RasterBandBuffer initWithPixelHeight: numbers out of range");
    return nullptr;
  }
  auto mapFile = mmapFile::initWithFile(path, static_cast<std::uint32_t>(fileSize));
  if (mapFile == nullptr) {
    return nullptr;
  }
  if (fileSize > 0 && mapFile->memory() == MAP_FAILED) {
    CPSDebugLog("RasterBandBuffer initWithPixelHeight: scratch file not mapped");
    return nullptr;
  }
  return std::unique_ptr<RasterBandBuffer>(
      new RasterBandBuffer(pixelHeight, rowBytes, bandHeight, totalBands, std::move(mapFile)));
}

RasterBandBuffer::RasterBandBuffer(int pixelHeight, int rowBytes, int bandHeight, int totalBands,
                                   std::unique_ptr<mmapFile> mapFile)
    : mapFile_(std::move(mapFile)),
      pixelHeight_(pixelHeight),
      rowBytes_(rowBytes),
      bandHeight_(bandHeight),
      memory_(static_cast<std::uint8_t*>(mapFile_->memory())),
      totalBands_(totalBands),
      fileSize_(pixelHeight * rowBytes),
      inkedBands_(static_cast<std::size_t>(totalBands)) {
}

std::uint8_t* RasterBandBuffer::rasterLine(int line) {
  const std::int64_t row = flipped_ ? std::int64_t{pixelHeight_} - 1 - line : line;
  const std::int64_t offset = row * rowBytes_;
  if (offset < 0 || offset >= fileSize_) {
    endOnBadLine(line, offset);
  }
  inkedBands_[static_cast<std::size_t>(row / bandHeight_)] = true;
  return memory_ + offset;
}

// The last message shows each value one field late: docs/quirks.md, "Shifted fields of a bad line".
void RasterBandBuffer::endOnBadLine(int line, std::int64_t offset) const {
  const auto start = reinterpret_cast<std::uintptr_t>(memory_);
  const std::uintptr_t address = start + static_cast<std::uintptr_t>(offset);
  const std::uintptr_t last = start + static_cast<std::uintptr_t>(fileSize_) - 1;
  CPSDebugLog("RasterBandBuffer rasterLine: returning bad pointer for line: %d", line);
  CPSDebugLog("dest: 0x%8.8x, memory: 0x%8.8x, memory end: 0x%8.8x", logged(address), logged(start),
              logged(last));
  CPSDebugLog("flipped: 0x%8.8x, rowBytes: %s, pixelHeight: %d, lineNumber: %d", logged(address),
              yesOrNo(flipped_), rowBytes_, pixelHeight_);
  // exit runs no destructors, so the page's scratch files stay behind. The page loop cannot come
  // here: it asks for lines 0 to pixelHeight - 1 only, and its rows are never empty.
  std::exit(1);
}

void RasterBandBuffer::approveRasterLine(int line) {
  if (flipped_) {
    if (pixelHeight_ - rasterCount_ != line) {
      // The expected line is shown negated: docs/quirks.md, "Negated line in an assertion".
      CPSDebugAssert_(
          "RasterBandBuffer: Approving non-sequential raster line, expected: %d, actual: %d",
          rasterCount_ - pixelHeight_, line);
      return;
    }
    --rasterCount_;
    return;
  }
  if (rasterCount_ != line) {
    CPSDebugAssert_("RasterBandBuffer: Approving non-sequential raster line");
    return;
  }
  ++rasterCount_;
}

void RasterBandBuffer::approveBlankLine(int line) {
  if (!mapFile_->startedEmpty()) {
    std::memset(rasterLine(line), 0, static_cast<std::size_t>(rowBytes_));
  }
  approveRasterLine(line);
}

bool RasterBandBuffer::bandIsBlank(int index) const {
  return !inkedBands_[static_cast<std::size_t>(index)];
}

const std::uint8_t* RasterBandBuffer::band(int index) const {
  if (index < 0 || index >= totalBands_) {
    return nullptr;
  }
  const std::int64_t first = std::int64_t{index} * bandHeight_;
  const std::int64_t end = std::min<std::int64_t>(pixelHeight_, first + bandHeight_);
  const bool complete = flipped_ ? rasterCount_ <= first : rasterCount_ >= end;
  return complete ? memory_ + first * rowBytes_ : nullptr;
}

int RasterBandBuffer::bandHeightForIndex(int index) const {
  const std::int64_t first = std::int64_t{index} * bandHeight_;
  return static_cast<int>(std::min<std::int64_t>(first + bandHeight_, pixelHeight_) - first);
}

void RasterBandBuffer::setFlipped(bool flipped) {
  flipped_ = flipped;
  // On false the count stays: docs/quirks.md, "Taking the flip back".
  if (flipped_) {
    rasterCount_ = pixelHeight_;
  }
  CPSDebugLog("RasterBandBuffer setFlipped: %s, rasterCount: %d, pixelHeight: %d",
              yesOrNo(flipped_), rasterCount_, pixelHeight_);
}

}  // namespace gdi
