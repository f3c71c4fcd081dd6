// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// One colour plane of one page as rows in a scratch file: written line by line, read by bands.
//
// Row r holds bytes [r x rowBytes, (r + 1) x rowBytes) of the file, band i the rows from
// i x bandHeight on; the rows' bits are not interpreted. A flipped buffer holds line n at row
// pixelHeight - 1 - n. Messages go to the debug log. One thread.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "bands/mmapFile.h"

namespace gdi {

class RasterBandBuffer {
 public:
  // A buffer over a scratch file at `path`, which the caller deletes; not flipped, no line
  // approved, tag 0. pixelHeight and rowBytes at least 0 with a product of at most 400,000,000,
  // bandHeight (rows) at least 1. Null for other numbers or when the file cannot be made.
  static std::unique_ptr<RasterBandBuffer> initWithPixelHeight(int pixelHeight, int rowBytes,
                                                               int bandHeight, const char* path);

  // Where line `line` (0 to pixelHeight - 1) is to be written, rowBytes bytes; belongs to the
  // buffer. Any other line is logged and ends the process with exit status 1.
  [[nodiscard]] std::uint8_t* rasterLine(int line);

  // Declares line `line` written. Lines are approved in the order 0, 1, 2, ...; any other line is
  // reported as an assertion and ignored.
  void approveRasterLine(int line);

  // As approveRasterLine, for a line that was never asked for with rasterLine: its row is all
  // zeros. In a new file nothing is written, so that no memory is taken but what the file system
  // reserved.
  void approveBlankLine(int line);

  // The first row of band `index`; null when there is no such band or a line of it is not yet
  // approved. Belongs to the buffer.
  [[nodiscard]] const std::uint8_t* band(int index) const;

  // Whether band `index` (0 to totalBands() - 1; not checked) has only blank lines so far, so that
  // its rows need not be looked at, which would take memory for them.
  [[nodiscard]] bool bandIsBlank(int index) const;

  // Rows in band `index` (0 to totalBands() - 1; not checked).
  [[nodiscard]] int bandHeightForIndex(int index) const;
  [[nodiscard]] int totalBands() const { return totalBands_; }

  // Stores the page upside down from now on; called before the first line is written.
  void setFlipped(bool flipped);

  void setTag(int tag) { tag_ = tag; }
  [[nodiscard]] int tag() const { return tag_; }
  [[nodiscard]] const char* path() const { return mapFile_->path(); }

 private:
  RasterBandBuffer(int pixelHeight, int rowBytes, int bandHeight, int totalBands,
                   std::unique_ptr<mmapFile> mapFile);
  [[noreturn]] void endOnBadLine(int line, std::int64_t offset) const;

  std::unique_ptr<mmapFile> mapFile_;
  int pixelHeight_;
  int rowBytes_;
  int bandHeight_;
  std::uint8_t* memory_;
  int totalBands_;
  int tag_ = 0;
  int fileSize_;
  int rasterCount_ = 0;  // lines approved; flipped: pixelHeight less the lines approved
  bool flipped_ = false;
  std::vector<bool> inkedBands_;  // those of which a row was handed out to be written
};

}  // namespace gdi
