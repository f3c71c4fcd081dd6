// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/ordered_screen.h"

namespace gdi::screenquality {

Screen orderedScreen(const Tile& tile, int steps, std::span<const std::uint32_t> order,
                     const makescreens::LevelUnits& levels) {
  Screen screen{tile, steps, {}};
  std::vector<std::uint8_t> values(tile.size(), 0);
  std::size_t unit = 0;
  for (const std::size_t units : levels) {
    for (; unit < units; ++unit) {
      ++values[order[unit]];
    }
    screen.outputs.insert(screen.outputs.end(), values.begin(), values.end());
  }
  return screen;
}

}  // namespace gdi::screenquality
