// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <array>
#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/page_samples.h"
#include "halftone/screens/Halftoner.h"
#include "platform/NSBundle.h"

namespace gdi::bench {
namespace {

constexpr std::array kQualities{"Fast", "Standard", "Fine"};

// The shipped set of the benchmark's channels and quality; null, told as its error, when it is
// gone.
std::unique_ptr<Halftoner> shippedSet(benchmark::State& state) {
  NSBundle::setMainBundle(GDI_BUNDLE);
  const std::string key = std::string(kQualities.at(static_cast<std::size_t>(state.range(2)))) +
                          "Plain" + (state.range(1) == 1 ? "Mono" : "Color");
  std::unique_ptr<Halftoner> set = Halftoner::initWithScreenSetKey(key);
  if (set == nullptr) {
    state.SkipWithError("no such screen set");
  }
  return set;
}

// The screens of its planes.
std::span<const HalftoneScreen* const> screensOf(const benchmark::State& state,
                                                 const Halftoner& set) {
  return set.screens().last(static_cast<std::size_t>(state.range(1)));
}

// The same screen but for one entry: level 0 of the first pixel is ink, so that it does not rise.
std::unique_ptr<HalftoneScreen> notRising(const HalftoneScreen& screen) {
  const ScreenHeader& header = screen.header();
  const std::string text = "1 " + std::to_string(header.width) + " " +
                           std::to_string(header.height) + " " + std::to_string(header.inputDepth) +
                           " " + std::to_string(header.outputDepth);
  std::vector<std::uint8_t> file(text.begin(), text.end());
  file.push_back(0);
  int bits = 0;
  unsigned packed = 0;
  for (const unsigned entry : screen.table()) {
    packed = packed << header.outputDepth | entry;
    bits += header.outputDepth;
    if (bits % 8 == 0) {
      file.push_back(static_cast<std::uint8_t>(packed));
    }
  }
  file[text.size() + 1] |= 0x80;
  return HalftoneScreen::loadFromData(file);
}

// The planes of one line by these screens, each with the samples of its channel.
using Screens = std::vector<const HalftoneScreen*>;

void screenLines(benchmark::State& state, const Screens& screens, int depth) {
  const auto channels = static_cast<int>(screens.size());
  const auto content = static_cast<Content>(state.range(0));
  const std::vector<std::uint8_t> line = chunkyLine(content, channels, 0);
  std::array<std::vector<std::uint8_t>, kChannels> planes;
  planes.fill(std::vector<std::uint8_t>(kPixels));
  int row = 0;
  for (auto _ : state) {
    for (std::size_t i = 0; i < screens.size(); ++i) {
      (void)screens[i]->processScanline(&line[i], kPixels, channels, row, planes.at(i).data(),
                                        depth);
    }
    ++row;
    benchmark::ClobberMemory();
  }
  state.SetLabel(std::string(nameOf(content)) + ", " + std::to_string(depth) + " bits");
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                          static_cast<std::int64_t>(line.size()));
}

// Arguments: content, channels (1 or 4), quality (0 to 2).
void ScreenByThresholds(benchmark::State& state) {
  const std::unique_ptr<Halftoner> set = shippedSet(state);
  if (set == nullptr) {
    return;
  }
  const auto screens = screensOf(state, *set);
  screenLines(state, Screens(screens.begin(), screens.end()), set->outputDepth());
}
BENCHMARK(ScreenByThresholds)
    ->ArgsProduct({benchmark::CreateDenseRange(0, kContents - 1, 1), {1, 4}, {0, 1, 2}});

void ScreenByTable(benchmark::State& state) {
  const std::unique_ptr<Halftoner> set = shippedSet(state);
  if (set == nullptr) {
    return;
  }
  std::vector<std::unique_ptr<HalftoneScreen>> owned;
  Screens screens;
  for (const HalftoneScreen* screen : screensOf(state, *set)) {
    owned.push_back(notRising(*screen));
    screens.push_back(owned.back().get());
  }
  screenLines(state, screens, set->outputDepth());
}
BENCHMARK(ScreenByTable)
    ->ArgsProduct({benchmark::CreateDenseRange(0, kContents - 1, 1), {1, 4}, {0, 1, 2}});

// Four screens from their files, without the list that names them. Argument: quality (0 to 2).
void LoadScreens(benchmark::State& state) {
  NSBundle::setMainBundle(GDI_BUNDLE);
  const std::string quality = kQualities.at(static_cast<std::size_t>(state.range(0)));
  std::vector<std::filesystem::path> paths;
  for (const char* plane : {"cyan", "magenta", "yellow", "black"}) {
    const auto path =
        NSBundle::mainBundle().pathForResource("plain-" + quality + "-" + plane, "", "Screens");
    if (!path) {
      state.SkipWithError("no such screen");
      return;
    }
    paths.push_back(*path);
  }
  for (auto _ : state) {
    for (const std::filesystem::path& path : paths) {
      benchmark::DoNotOptimize(HalftoneScreen::initWithFile(path));
    }
  }
  state.SetLabel(quality);
}
BENCHMARK(LoadScreens)->DenseRange(0, 2)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace gdi::bench
