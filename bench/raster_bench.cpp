// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <benchmark/benchmark.h>

#include "bench/page_samples.h"
#include "raster/scanline.h"

namespace gdi::bench {
namespace {

void countBytes(benchmark::State& state, std::size_t bytes) {
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                          static_cast<std::int64_t>(bytes));
}

void MirrorGrey(benchmark::State& state) {
  std::vector<std::uint8_t> line = chunkyLine(Content::kPhoto, 1, 0);
  for (auto _ : state) {
    mirrorRaster8(line);
    benchmark::DoNotOptimize(line.data());
  }
  countBytes(state, line.size());
}
BENCHMARK(MirrorGrey);

void MirrorColor(benchmark::State& state) {
  std::vector<std::uint8_t> line = chunkyLine(Content::kPhoto, kChannels, 0);
  for (auto _ : state) {
    mirrorRaster32(line);
    benchmark::DoNotOptimize(line.data());
  }
  countBytes(state, line.size());
}
BENCHMARK(MirrorColor);

void BlankAccumulator(benchmark::State& state) {
  const std::vector<std::uint8_t> line = chunkyLine(Content::kBlank, kChannels, 0);
  for (auto _ : state) {
    benchmark::DoNotOptimize(inkOf(line));
  }
  countBytes(state, line.size());
}
BENCHMARK(BlankAccumulator);

}  // namespace
}  // namespace gdi::bench
