// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/raster/RecordingFilter.h"

#include <algorithm>
#include <utility>

namespace gdi::test {

namespace {

class FakeStream : public RasterStream {
 public:
  explicit FakeStream(RecordingFilter& filter) : filter_(filter) { filter_.note("open"); }
  ~FakeStream() override { filter_.note("close"); }
  FakeStream(const FakeStream&) = delete;
  FakeStream& operator=(const FakeStream&) = delete;

  bool readHeader(cups_page_header_t& header) override {
    filter_.note("header");
    if (page_ == filter_.pages.size()) {
      return false;
    }
    header = filter_.pages[page_].header;
    ++page_;
    line_ = 0;
    return true;
  }

  unsigned readPixels(std::span<std::uint8_t> line) override {
    filter_.note("pixels");
    const std::vector<Line>& lines = filter_.pages[page_ - 1].lines;
    if (line_ == lines.size()) {
      return 0;
    }
    const Line& bytes = lines[line_];
    ++line_;
    std::ranges::copy(bytes, line.begin());
    return static_cast<unsigned>(bytes.size());
  }

 private:
  RecordingFilter& filter_;
  std::size_t page_ = 0;  // pages begun
  std::size_t line_ = 0;  // lines read of that page
};

}  // namespace

cups_page_header_t pageHeader(std::uint32_t width, std::uint32_t height, std::uint32_t channels) {
  cups_page_header_t header{};
  header.cupsWidth = width;
  header.cupsHeight = height;
  header.cupsBitsPerColor = 8;
  header.cupsBitsPerPixel = 8 * channels;
  header.cupsBytesPerLine = width * channels;
  return header;
}

Page pageOf(std::uint32_t width, std::uint32_t channels, std::vector<Line> lines) {
  return {pageHeader(width, static_cast<std::uint32_t>(lines.size()), channels), std::move(lines)};
}

bool RecordingFilter::startJob() {
  return RasterFilter::startJob() && note("startJob");
}

bool RecordingFilter::startPage(std::uint32_t page) {
  return RasterFilter::startPage(page) && note("startPage " + std::to_string(page));
}

bool RecordingFilter::sendRaster() {
  lines.emplace_back(rasterBuffer.data(), rasterBuffer.data() + rasterByteCount);
  return RasterFilter::sendRaster() && note("sendRaster " + std::to_string(rasterLineNumber));
}

bool RecordingFilter::endPage(std::uint32_t page) {
  accumulators.push_back(blankAccumulator);
  bufferAtEndPage = rasterBuffer.data() != nullptr;
  return RasterFilter::endPage(page) && note("endPage " + std::to_string(page));
}

bool RecordingFilter::endJob() {
  return RasterFilter::endJob() && note("endJob");
}

bool RecordingFilter::note(const std::string& call) {
  calls.push_back(call);
  if (during) {
    during(call);
  }
  return call != failing;
}

std::unique_ptr<RasterStream> RecordingFilter::openRaster() {
  return readsSource ? RasterFilter::openRaster() : std::make_unique<FakeStream>(*this);
}

}  // namespace gdi::test
