// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/screenquality/test_screens.h"

namespace gdi::screenquality {
namespace {

// A screen of one step a pixel that is solid where `isSolid` says so.
Screen screenOf(const Tile& tile,
                const std::function<bool(std::size_t level, int x, int y)>& isSolid) {
  Screen screen{tile, 1, {}};
  for (std::size_t level = 0; level < kLevels; ++level) {
    for (int y = 0; y < tile.height; ++y) {
      for (int x = 0; x < tile.width; ++x) {
        screen.outputs.push_back(isSolid(level, x, y) ? 1 : 0);
      }
    }
  }
  return screen;
}

bool isWithin(int position, int period, std::size_t level) {
  return 255 * position < static_cast<int>(level) * period - 127;
}

}  // namespace

Screen evenScreen(const Tile& tile, std::uint8_t value) {
  return {tile, 1, std::vector<std::uint8_t>(kLevels * tile.size(), value)};
}

Screen patternScreen(const Tile& tile, const std::vector<std::uint8_t>& pattern) {
  Screen screen{tile, 1, {}};
  for (std::size_t level = 0; level < kLevels; ++level) {
    screen.outputs.insert(screen.outputs.end(), pattern.begin(), pattern.end());
  }
  return screen;
}

Screen continuousScreen() {
  Screen screen{{1, 1}, 255, {}};
  for (std::size_t level = 0; level < kLevels; ++level) {
    screen.outputs.push_back(static_cast<std::uint8_t>(level));
  }
  return screen;
}

Screen barScreen(const Tile& tile, const std::function<int(std::size_t)>& rowsOf) {
  return screenOf(tile, [&](std::size_t level, int, int y) { return y < rowsOf(level); });
}

Screen uprightLines(int period) {
  return screenOf({period, 1},
                  [period](std::size_t level, int x, int) { return isWithin(x, period, level); });
}

Screen levelLines(int period) {
  return screenOf({1, period},
                  [period](std::size_t level, int, int y) { return isWithin(y, period, level); });
}

}  // namespace gdi::screenquality
