// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/makescreens/screen_file.h"

#include <algorithm>

namespace gdi::makescreens {
namespace {

// With the zero byte.
std::string headerOf(const Tile& tile, int depth) {
  std::string header = "1 " + std::to_string(tile.width) + ' ' + std::to_string(tile.height) +
                       " 8 " + std::to_string(depth);
  header.push_back('\0');
  return header;
}

}  // namespace

std::vector<std::uint8_t> screenTable(std::size_t pixels, std::span<const std::uint32_t> order,
                                      const LevelUnits& levelUnits) {
  std::vector<std::uint8_t> table(pixels * kLevels);
  std::vector<std::uint8_t> values(pixels, 0);
  std::size_t unit = 0;
  for (std::size_t level = 0; level < kLevels; ++level) {
    for (; unit < std::min(levelUnits.at(level), order.size()); ++unit) {
      ++values[order[unit]];
    }
    for (std::size_t pixel = 0; pixel < pixels; ++pixel) {
      table[pixel * kLevels + level] = values[pixel];
    }
  }
  return table;
}

std::string packed(std::span<const std::uint8_t> entries, int depth) {
  std::string bytes;
  unsigned pending = 0;
  int bits = 0;
  for (const std::uint8_t entry : entries) {
    pending = (pending << static_cast<unsigned>(depth)) | entry;
    bits += depth;
    if (bits < 8) {
      continue;
    }
    bytes.push_back(static_cast<char>(pending));
    pending = 0;
    bits = 0;
  }
  if (bits > 0) {
    bytes.push_back(static_cast<char>(pending << static_cast<unsigned>(8 - bits)));
  }
  return bytes;
}

std::string screenFile(const Tile& tile, int depth, std::span<const std::uint8_t> table) {
  return headerOf(tile, depth) + packed(table, depth);
}

std::size_t screenFileSize(const Tile& tile, int depth) {
  const std::size_t bits = tile.size() * kLevels * static_cast<std::size_t>(depth);
  return headerOf(tile, depth).size() + (bits + 7) / 8;
}

}  // namespace gdi::makescreens
