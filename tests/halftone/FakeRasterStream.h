// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A raster stream made of scripted pages, and headers for them.
#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <span>
#include <utility>
#include <vector>

#include "raster/raster_stream.h"

namespace gdi::test {

struct FakePage {
  cups_page_header_t header{};
  // Fills line `line`, which comes as zeros. None: the page is blank.
  std::function<void(std::uint32_t line, std::span<std::uint8_t> bytes)> fill;
};

// A Letter page of 8 bits a channel, `channels` of them chunky.
inline cups_page_header_t pageHeader(std::uint32_t width, std::uint32_t height,
                                     std::uint32_t channels) {
  cups_page_header_t header{};
  header.NumCopies = 1;
  header.PageSize[0] = 612;
  header.PageSize[1] = 792;
  header.cupsWidth = width;
  header.cupsHeight = height;
  header.cupsBitsPerColor = 8;
  header.cupsBitsPerPixel = 8 * channels;
  header.cupsBytesPerLine = width * channels;
  return header;
}

class FakeRasterStream : public RasterStream {
 public:
  explicit FakeRasterStream(std::vector<FakePage> pages) : pages_(std::move(pages)) {}

  bool readHeader(cups_page_header_t& header) override {
    if (next_ == pages_.size()) {
      return false;
    }
    header = pages_[next_++].header;
    line_ = 0;
    return true;
  }

  unsigned readPixels(std::span<std::uint8_t> line) override {
    std::ranges::fill(line, std::uint8_t{0});
    if (const auto& fill = pages_[next_ - 1].fill) {
      fill(line_, line);
    }
    ++line_;
    return static_cast<unsigned>(line.size());
  }

 private:
  std::vector<FakePage> pages_;
  std::size_t next_ = 0;
  std::uint32_t line_ = 0;
};

}  // namespace gdi::test
