// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <filesystem>
#include <numeric>
#include <span>
#include <string>

#include <benchmark/benchmark.h>
#include <unistd.h>

#include "bands/RasterBandBuffer.h"
#include "bench/page_samples.h"
#include "halftone/plane_geometry.h"

namespace gdi::bench {
namespace {

constexpr int kLines = 7016;  // of A4 at 600 dpi
constexpr int kBandLines = 256;

// Writes every line of the plane; false when there is none.
bool writeLines(RasterBandBuffer* plane, int rowBytes) {
  for (int line = 0; plane != nullptr && line < kLines; ++line) {
    std::fill_n(plane->rasterLine(line), rowBytes, static_cast<std::uint8_t>(line));
    plane->approveRasterLine(line);
  }
  return plane != nullptr;
}

std::uint64_t sumOfBands(const RasterBandBuffer& plane, int rowBytes) {
  std::uint64_t sum = 0;
  for (int band = 0; band < plane.totalBands(); ++band) {
    const std::span bytes(plane.band(band),
                          static_cast<std::size_t>(rowBytes) *
                              static_cast<std::size_t>(plane.bandHeightForIndex(band)));
    sum = std::accumulate(bytes.begin(), bytes.end(), sum);
  }
  return sum;
}

// A plane of A4 made, written by line, read by band and deleted, in the folder for temporary files.
// Argument: bits a pixel.
void WriteAndReadPlane(benchmark::State& state) {
  const auto rowBytes =
      static_cast<int>(ditherBitWidthFor(static_cast<std::uint32_t>(state.range(0)), kPixels) / 8);
  const std::string path =
      std::filesystem::temp_directory_path() / ("gdi_bench-plane-" + std::to_string(getpid()));
  for (auto _ : state) {
    auto plane = RasterBandBuffer::initWithPixelHeight(kLines, rowBytes, kBandLines, path.c_str());
    if (!writeLines(plane.get(), rowBytes)) {
      state.SkipWithError("no scratch file");
      break;
    }
    benchmark::DoNotOptimize(sumOfBands(*plane, rowBytes));
    plane.reset();
    std::filesystem::remove(path);
  }
  state.SetLabel(std::to_string(state.range(0)) + " bit");
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * kLines * rowBytes);
}
BENCHMARK(WriteAndReadPlane)->Arg(1)->Arg(4)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace gdi::bench
