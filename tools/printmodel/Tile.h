// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// One repeat of a pattern, in pixels.
#pragma once

#include <cstddef>

namespace gdi::printmodel {

struct Tile {
  int width = 1;
  int height = 1;
  [[nodiscard]] int pixels() const { return width * height; }
  [[nodiscard]] std::size_t size() const {
    return static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  }
  bool operator==(const Tile&) const = default;
};

// Where a row or column beyond the tile's border, of `length` pixels, comes round to.
constexpr std::size_t wrapped(int position, int length) {
  return static_cast<std::size_t>((position % length + length) % length);
}

}  // namespace gdi::printmodel
