// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <array>
#include <memory>
#include <string>

#include <benchmark/benchmark.h>

#include "bench/page_samples.h"
#include "halftone/screens/Halftoner.h"
#include "platform/NSBundle.h"

namespace gdi::bench {
namespace {

constexpr std::array kQualities{"Fast", "Standard", "Fine"};

// Arguments: quality (0 to 2), channels.
void ScreenLines(benchmark::State& state) {
  NSBundle::setMainBundle(GDI_BUNDLE);
  const auto channels = static_cast<int>(state.range(1));
  const std::string key = std::string(kQualities.at(static_cast<std::size_t>(state.range(0)))) +
                          "Plain" + (channels == 1 ? "Mono" : "Color");
  const std::unique_ptr<Halftoner> halftoner = Halftoner::initWithScreenSetKey(key);
  if (halftoner == nullptr) {
    state.SkipWithError("no such screen set");
    return;
  }
  const std::vector<std::uint8_t> line = chunkyLine(Content::kPhoto, channels, 0);
  std::array<std::vector<std::uint8_t>, kChannels> planes;
  std::array<std::uint8_t*, kChannels> rows{};
  for (std::size_t i = 0; i < planes.size(); ++i) {
    planes.at(i).resize(kPixels);
    rows.at(i) = planes.at(i).data();
  }
  int row = 0;
  for (auto _ : state) {
    (void)halftoner->halftoneChunkyScanlineToPlanar(line.data(), kPixels, row++, rows, channels);
    benchmark::ClobberMemory();
  }
  state.SetLabel(key);
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                          static_cast<std::int64_t>(line.size()));
}
BENCHMARK(ScreenLines)->ArgsProduct({{0, 1, 2}, {1, 4}});

}  // namespace
}  // namespace gdi::bench
