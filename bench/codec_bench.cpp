// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <array>
#include <memory>
#include <string>

#include <benchmark/benchmark.h>

#include "bench/page_samples.h"
#include "codec/pc4sc4.h"
#include "halftone/screens/Halftoner.h"
#include "platform/NSBundle.h"

namespace gdi::bench {
namespace {

constexpr std::uint32_t kRows = 256;

// A band of a black plane as the filter makes it; bits a pixel 1 or 4.
struct Band {
  std::uint32_t rowBytes = 0;
  std::vector<std::uint8_t> bytes;
};

Band screenedBand(Content content, int depth) {
  NSBundle::setMainBundle(GDI_BUNDLE);
  const auto halftoner =
      Halftoner::initWithScreenSetKey(depth == 1 ? "FastPlainMono" : "FinePlainMono");
  Band band{static_cast<std::uint32_t>((kPixels * depth + 32 + 127) / 128 * 16), {}};
  band.bytes.resize(std::size_t{kRows} * band.rowBytes);
  for (std::uint32_t row = 0; halftoner != nullptr && row < kRows; ++row) {
    const std::vector<std::uint8_t> line = chunkyLine(content, 1, static_cast<int>(row));
    std::uint8_t* const planeRow = band.bytes.data() + std::size_t{row} * band.rowBytes;
    (void)halftoner->halftoneChunkyScanlineToPlanar(line.data(), kPixels, static_cast<int>(row),
                                                    {&planeRow, 1}, 1);
  }
  return band;
}

std::vector<std::uint8_t> compress(const Band& band) {
  std::vector<std::uint8_t> output(worstCaseBandBytes(kRows, band.rowBytes));
  std::vector<std::uint8_t> seed(band.rowBytes);
  output.resize(qbx_Compress_PC4SC4(band.bytes.data(), kRows * band.rowBytes, output.data(),
                                    static_cast<std::uint32_t>(output.size()), band.rowBytes,
                                    seed.data(), false));
  return output;
}

void label(benchmark::State& state, const Band& band, std::size_t compressed) {
  state.SetLabel(std::string(nameOf(static_cast<Content>(state.range(0)))) + ", " +
                 std::to_string(state.range(1)) + " bit, " + std::to_string(compressed) + " of " +
                 std::to_string(band.bytes.size()) + " bytes");
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                          static_cast<std::int64_t>(band.bytes.size()));
}

// Arguments: content, bits a pixel.
void CompressBand(benchmark::State& state) {
  const Band band =
      screenedBand(static_cast<Content>(state.range(0)), static_cast<int>(state.range(1)));
  std::vector<std::uint8_t> output(worstCaseBandBytes(kRows, band.rowBytes));
  std::vector<std::uint8_t> seed(band.rowBytes);
  std::uint32_t length = 0;
  for (auto _ : state) {
    length = qbx_Compress_PC4SC4(band.bytes.data(), kRows * band.rowBytes, output.data(),
                                 static_cast<std::uint32_t>(output.size()), band.rowBytes,
                                 seed.data(), false);
    benchmark::DoNotOptimize(length);
  }
  label(state, band, length);
}
BENCHMARK(CompressBand)->ArgsProduct({benchmark::CreateDenseRange(0, kContents - 1, 1), {1, 4}});

void DecompressBand(benchmark::State& state) {
  const Band band =
      screenedBand(static_cast<Content>(state.range(0)), static_cast<int>(state.range(1)));
  const std::vector<std::uint8_t> stream = compress(band);
  std::vector<std::uint8_t> rows(band.bytes.size());
  std::vector<std::uint8_t> rowBuffer(band.rowBytes);
  for (auto _ : state) {
    benchmark::DoNotOptimize(qbx_DeCompress_PC4SC4(stream, rows, band.rowBytes, kRows, rowBuffer));
  }
  label(state, band, stream.size());
}
BENCHMARK(DecompressBand)->ArgsProduct({benchmark::CreateDenseRange(0, kContents - 1, 1), {1, 4}});

}  // namespace
}  // namespace gdi::bench
