// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/program/test_bundle.h"

#include <array>
#include <fstream>
#include <vector>

namespace gdi::programtest {

namespace {

struct Tile {
  std::uint32_t width;
  std::uint32_t height;
};

constexpr std::array<Tile, 4> kTiles{{{3, 2}, {4, 4}, {5, 3}, {2, 7}}};
constexpr std::array<const char*, 3> kQualities{"Fast", "Standard", "Fine"};

std::string screenName(std::uint32_t plane, std::uint32_t depth) {
  return "plane" + std::to_string(plane) + "depth" + std::to_string(depth);
}

void writeScreen(const std::filesystem::path& path, std::uint32_t plane, std::uint32_t depth) {
  const Tile& tile = kTiles.at(plane);
  std::ofstream file(path, std::ios::binary);
  file << "1 " << tile.width << ' ' << tile.height << " 8 " << depth << '\0';
  std::uint32_t packed = 0;
  std::uint32_t bits = 0;
  for (std::uint32_t y = 0; y < tile.height; ++y) {
    for (std::uint32_t x = 0; x < tile.width; ++x) {
      for (std::uint32_t level = 0; level < 256; ++level) {
        packed =
            packed << depth | screenedValue(plane, depth, x, y, static_cast<std::uint8_t>(level));
        bits += depth;
        if (bits == 8) {
          file.put(static_cast<char>(packed));
          packed = bits = 0;
        }
      }
    }
  }
}

}  // namespace

std::uint32_t screenedValue(std::uint32_t plane, std::uint32_t depth, std::uint32_t x,
                            std::uint32_t y, std::uint8_t sample) {
  const Tile& tile = kTiles.at(plane);
  const std::uint32_t column = x % tile.width;
  const std::uint32_t row = y % tile.height;
  const std::uint32_t threshold = (97 * row + 61 * column + 31 * plane) % 255;
  const std::uint32_t full = (1U << depth) - 1;
  return (sample * full + threshold) / 255;
}

void writeTestBundle(const std::filesystem::path& folder, const std::string& extraInfo) {
  std::filesystem::create_directories(folder / "Screens");
  std::ofstream(folder / "Info.plist")
      << "{ CUPSFileHeader = \"PROLOGUE\\r\\n\"; SystemVersion = \"10.4.0\"; " << extraInfo << " }";
  std::ofstream sets(folder / "ScreenSets.plist");
  sets << "{ ScreenSets = {\n";
  for (std::size_t quality = 0; quality < kQualities.size(); ++quality) {
    const std::uint32_t depth = 1U << quality;
    for (const char* mode : {"Color", "Mono"}) {
      sets << kQualities.at(quality) << "Plain" << mode << " = { Depth = " << depth
           << "; Screens = (";
      for (std::uint32_t plane = 0; plane < 4; ++plane) {
        sets << (plane == 0 ? "" : ", ") << screenName(plane, depth);
      }
      sets << "); };\n";
    }
    for (std::uint32_t plane = 0; plane < 4; ++plane) {
      writeScreen(folder / "Screens" / screenName(plane, depth), plane, depth);
    }
  }
  sets << "}; }\n";
}

}  // namespace gdi::programtest
