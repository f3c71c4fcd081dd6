// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <algorithm>
#include <cstring>
#include <span>
#include <string>

#include <benchmark/benchmark.h>
#include <cups/raster.h>

#include "bench/page_samples.h"

namespace gdi::bench {
namespace {

constexpr unsigned kLines = 256;

using Bytes = std::vector<unsigned char>;

ssize_t append(void* context, unsigned char* buffer, std::size_t length) {
  Bytes& bytes = *static_cast<Bytes*>(context);
  bytes.insert(bytes.end(), buffer, buffer + length);
  return static_cast<ssize_t>(length);
}

ssize_t take(void* context, unsigned char* buffer, std::size_t length) {
  auto& rest = *static_cast<std::span<const unsigned char>*>(context);
  const std::size_t taken = std::min(length, rest.size());
  std::copy_n(rest.begin(), taken, buffer);
  rest = rest.subspan(taken);
  return static_cast<ssize_t>(taken);
}

// A raster of one page of kLines lines of CMYK.
Bytes rasterOf(Content content, bool compressed) {
  Bytes bytes;
  cups_raster_t* const raster = cupsRasterOpenIO(
      append, &bytes, compressed ? CUPS_RASTER_WRITE_COMPRESSED : CUPS_RASTER_WRITE);
  cups_page_header2_t header;
  std::memset(&header, 0, sizeof header);
  header.cupsWidth = kPixels;
  header.cupsHeight = kLines;
  header.cupsBitsPerColor = 8;
  header.cupsBitsPerPixel = 8 * kChannels;
  header.cupsBytesPerLine = kPixels * kChannels;
  header.cupsColorSpace = CUPS_CSPACE_CMYK;
  header.cupsNumColors = kChannels;
  cupsRasterWriteHeader2(raster, &header);
  for (unsigned row = 0; row < kLines; ++row) {
    std::vector<std::uint8_t> line = chunkyLine(content, kChannels, static_cast<int>(row));
    cupsRasterWritePixels(raster, line.data(), header.cupsBytesPerLine);
  }
  cupsRasterClose(raster);
  return bytes;
}

// Lines that were read.
unsigned readLines(const Bytes& bytes, std::span<std::uint8_t> line) {
  std::span<const unsigned char> rest(bytes);
  cups_raster_t* const raster = cupsRasterOpenIO(take, &rest, CUPS_RASTER_READ);
  cups_page_header2_t header;
  unsigned lines = 0;
  if (raster != nullptr && cupsRasterReadHeader2(raster, &header) != 0) {
    const auto length = static_cast<unsigned>(line.size());
    while (lines < kLines && cupsRasterReadPixels(raster, line.data(), length) == length) {
      ++lines;
      benchmark::ClobberMemory();
    }
  }
  cupsRasterClose(raster);
  return lines;
}

// libcups alone, from memory. Arguments: content, 0 for an uncompressed raster (RaS3) or 1 for a
// compressed one (RaS2).
void ReadRaster(benchmark::State& state) {
  const auto content = static_cast<Content>(state.range(0));
  const bool compressed = state.range(1) != 0;
  const Bytes bytes = rasterOf(content, compressed);
  std::vector<std::uint8_t> line(std::size_t{kPixels} * kChannels);
  for (auto _ : state) {
    if (readLines(bytes, line) != kLines) {
      state.SkipWithError("the raster breaks off");
      break;
    }
  }
  state.SetLabel(std::string(nameOf(content)) + (compressed ? ", compressed" : "") + ", " +
                 std::to_string(bytes.size()) + " bytes");
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * kLines *
                          static_cast<std::int64_t>(line.size()));
}
BENCHMARK(ReadRaster)->ArgsProduct({benchmark::CreateDenseRange(0, kContents - 1, 1), {0, 1}});

}  // namespace
}  // namespace gdi::bench
