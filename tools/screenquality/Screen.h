// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A screen as the measure sees it: the pixels of its tile at each input level.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "tools/printmodel/Tile.h"

namespace gdi::screenquality {

using printmodel::Tile;

constexpr std::size_t kLevels = 256;

struct Screen {
  Tile tile;
  int steps = 1;                      // the value of a solid pixel
  std::vector<std::uint8_t> outputs;  // level by level, within a level row by row

  [[nodiscard]] std::span<const std::uint8_t> level(std::size_t level) const {
    return std::span(outputs).subspan(level * tile.size(), tile.size());
  }
};

// Cyan, magenta, yellow, black.
using PlaneScreens = std::array<const Screen*, 4>;

}  // namespace gdi::screenquality
