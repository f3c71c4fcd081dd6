// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A raster filter on pages made by the test, which notes every call in order.
//
// The calls: "open", "header", "pixels" and "close" of the stream; "startJob", "startPage 0",
// "sendRaster 0", "endPage 0" and "endJob" of the stages.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "raster/RasterFilter.h"

namespace gdi::test {

using Line = std::vector<std::uint8_t>;
using Calls = std::vector<std::string>;

struct Page {
  cups_page_header_t header{};
  std::vector<Line> lines;  // fewer than the header's height make a stream that ends too early
};

// A header of 8 bits per colour whose lines have no padding.
cups_page_header_t pageHeader(std::uint32_t width, std::uint32_t height, std::uint32_t channels);

// A page of those lines.
Page pageOf(std::uint32_t width, std::uint32_t channels, std::vector<Line> lines);

class RecordingFilter : public RasterFilter {
 public:
  // Which of the five operations answers false, by its call ("sendRaster 1"); none when empty.
  std::string failing;
  // Done at each call, before it answers.
  std::function<void(const std::string&)> during;

  std::vector<Page> pages;   // what the stream holds
  bool readsSource = false;  // reads `sourceFD` instead, and notes the stages' calls only
  Calls calls;               // everything that happened
  std::vector<Line> lines;   // what sendRaster found in the line buffer
  Line accumulators;         // the blank accumulator at each endPage
  bool bufferAtEndPage = false;

  using RasterFilter::allocRasterBuffer;
  using RasterFilter::blankAccumulator;
  using RasterFilter::channelCount;
  using RasterFilter::cupsPageHeader;
  using RasterFilter::cupsRaster;
  using RasterFilter::deallocRasterBuffer;
  using RasterFilter::lineInk;
  using RasterFilter::mirror;
  using RasterFilter::pageCount;
  using RasterFilter::rasterBuffer;
  using RasterFilter::rasterByteCount;
  using RasterFilter::rasterLineNumber;
  using RasterFilter::rasterPixelCount;
  using RasterFilter::sourceFD;

  bool startJob() override;
  bool startPage(std::uint32_t page) override;
  bool sendRaster() override;
  bool endPage(std::uint32_t page) override;
  bool endJob() override;

  // Notes a call of a stage or of the stream; whether it is to succeed.
  bool note(const std::string& call);

 protected:
  std::unique_ptr<RasterStream> openRaster() override;
};

}  // namespace gdi::test
