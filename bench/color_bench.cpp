// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <string>

#include <benchmark/benchmark.h>
#include <unistd.h>

#include "bench/page_samples.h"
#include "platform/ColorSync/CMWorld.h"
#include "platform/NSBundle.h"

namespace gdi::bench {
namespace {

struct Profiles {
  const char* source;
  const char* destination;
};

// Of Ghostscript; they are what every machine that builds this has.
constexpr Profiles kCMYK{"ps_cmyk.icc", "default_cmyk.icc"};
constexpr Profiles kGrey{"sgray.icc", "default_gray.icc"};

CMWorldRef makeWorld(int channels) {
  const Profiles& profiles = channels == 1 ? kGrey : kCMYK;
  CMProfileRef source = nullptr;
  CMProfileRef destination = nullptr;
  CMWorldRef world = nullptr;
  (void)CMOpenProfile(source, CMPathLocation(profiles.source));
  (void)CMOpenProfile(destination, CMPathLocation(profiles.destination));
  (void)NCWNewColorWorld(world, source, destination);
  CMCloseProfile(source);
  CMCloseProfile(destination);
  return world;
}

constexpr std::array kPreserveBlack{"", "ink", "plane"};

// What every page with matching pays before its first line. Arguments: channels, what of black is
// preserved.
void MakeColorWorld(benchmark::State& state) {
  const std::string word = kPreserveBlack.at(static_cast<std::size_t>(state.range(1)));
  const std::filesystem::path bundle =
      std::filesystem::temp_directory_path() / ("gdi_bench-" + std::to_string(getpid()));
  std::filesystem::create_directories(bundle);
  std::ofstream(bundle / "Info.plist") << "{ ColorPreserveBlack = \"" << word << "\"; }";
  NSBundle::setMainBundle(bundle);
  for (auto _ : state) {
    CWDisposeColorWorld(makeWorld(static_cast<int>(state.range(0))));
  }
  NSBundle::setMainBundle(GDI_BUNDLE);
  std::filesystem::remove_all(bundle);
  state.SetLabel(word);
}
BENCHMARK(MakeColorWorld)
    ->Args({1, 0})
    ->ArgsProduct({{kChannels}, {0, 1, 2}})
    ->Unit(benchmark::kMillisecond);

// Arguments: content, channels. The lines are as many of a page, in turn: matching remembers
// colours. Each is copied first, since matching is in place.
void MatchLines(benchmark::State& state) {
  constexpr int kLines = 200;
  const auto content = static_cast<Content>(state.range(0));
  const auto channels = static_cast<int>(state.range(1));
  CMWorldRef world = makeWorld(channels);
  if (world == nullptr) {
    state.SkipWithError("no profiles");
    return;
  }
  std::vector<std::vector<std::uint8_t>> lines;
  lines.reserve(kLines);
  for (int row = 0; row < kLines; ++row) {
    lines.push_back(chunkyLine(content, channels, row));
  }
  std::vector<std::uint8_t> matched = lines.front();
  CMBitmap bitmap;
  bitmap.image = matched.data();
  bitmap.width = kPixels;
  bitmap.height = 1;
  bitmap.rowBytes = static_cast<std::uint32_t>(matched.size());
  bitmap.pixelSize = static_cast<std::uint32_t>(8 * channels);
  bitmap.space = channels == 1 ? cmGray8Space : cmCMYK32Space;
  std::size_t next = 0;
  for (auto _ : state) {
    std::ranges::copy(lines[next], matched.begin());
    next = (next + 1) % lines.size();
    (void)CWMatchBitmap(world, bitmap);
    benchmark::DoNotOptimize(matched.data());
  }
  CWDisposeColorWorld(world);
  state.SetLabel(nameOf(content));
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                          static_cast<std::int64_t>(matched.size()));
}
BENCHMARK(MatchLines)->ArgsProduct({benchmark::CreateDenseRange(0, kContents - 1, 1), {1, 4}});

}  // namespace
}  // namespace gdi::bench
