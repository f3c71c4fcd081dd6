// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <string>

#include <benchmark/benchmark.h>

#include "bench/screened_band.h"
#include "codec/pc4sc4.h"

namespace gdi::bench {
namespace {

ScreenedBand bandOf(const benchmark::State& state) {
  return screenedBand(static_cast<Content>(state.range(0)), static_cast<int>(state.range(1)));
}

// Compresses bands of so many rows, one after the other from the top.
class Compressor {
 public:
  Compressor(const ScreenedBand& band, std::uint32_t rows)
      : band_(band),
        rows_(rows),
        output_(worstCaseBandBytes(rows, band.rowBytes)),
        seed_(band.rowBytes) {}

  // Bytes that all of them take together.
  std::uint32_t compress() {
    std::uint32_t length = 0;
    for (std::uint32_t row = 0; row < kBandRows; row += rows_) {
      length += qbx_Compress_PC4SC4(band_.bytes.data() + std::size_t{row} * band_.rowBytes,
                                    rows_ * band_.rowBytes, output_.data(),
                                    static_cast<std::uint32_t>(output_.size()), band_.rowBytes,
                                    seed_.data(), false);
      benchmark::ClobberMemory();
    }
    return length;
  }

  // Of the last.
  [[nodiscard]] const std::vector<std::uint8_t>& output() const { return output_; }

 private:
  const ScreenedBand& band_;
  std::uint32_t rows_;
  std::vector<std::uint8_t> output_;
  std::vector<std::uint8_t> seed_;
};

void label(benchmark::State& state, const ScreenedBand& band, std::size_t compressed) {
  state.SetLabel(std::string(nameOf(static_cast<Content>(state.range(0)))) + ", " +
                 std::to_string(state.range(1)) + " bit, " + std::to_string(compressed) + " of " +
                 std::to_string(band.bytes.size()) + " bytes");
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                          static_cast<std::int64_t>(band.bytes.size()));
}

void compressBands(benchmark::State& state, std::uint32_t rows) {
  const ScreenedBand band = bandOf(state);
  Compressor compressor(band, rows);
  std::uint32_t length = 0;
  for (auto _ : state) {
    length = compressor.compress();
    benchmark::DoNotOptimize(length);
  }
  label(state, band, length);
}

void everyContentAndDepth(benchmark::internal::Benchmark* benchmark) {
  benchmark->ArgsProduct({benchmark::CreateDenseRange(0, kContents - 1, 1), {1, 2, 4}});
}

// Arguments: content, bits a pixel.
void CompressBand(benchmark::State& state) {
  compressBands(state, kBandRows);
}
BENCHMARK(CompressBand)->Apply(everyContentAndDepth);

// The band's rows two by two, each pair a band of its own: the first row is coded against a blank
// one, the second against the first, so that coding rows is most of what is measured.
void CompressRowPairs(benchmark::State& state) {
  compressBands(state, 2);
}
BENCHMARK(CompressRowPairs)->Apply(everyContentAndDepth);

void DecompressBand(benchmark::State& state) {
  const ScreenedBand band = bandOf(state);
  Compressor compressor(band, kBandRows);
  const std::uint32_t length = compressor.compress();
  const std::span stream = std::span(compressor.output()).first(length);
  std::vector<std::uint8_t> rows(band.bytes.size());
  std::vector<std::uint8_t> rowBuffer(band.rowBytes);
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        qbx_DeCompress_PC4SC4(stream, rows, band.rowBytes, kBandRows, rowBuffer));
  }
  label(state, band, length);
}
BENCHMARK(DecompressBand)->Apply(everyContentAndDepth);

}  // namespace
}  // namespace gdi::bench
