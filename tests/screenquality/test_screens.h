// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Screens whose prints are known beforehand.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

#include "tools/printmodel/PaperModel.h"
#include "tools/screenquality/Screen.h"

namespace gdi::screenquality {

// Every level prints this value in every pixel.
Screen evenScreen(const Tile& tile, std::uint8_t value);

// Every level prints that pattern, row by row.
Screen patternScreen(const Tile& tile, const std::vector<std::uint8_t>& pattern);

// A single pixel of 255 steps: level v is v steps.
Screen continuousScreen();

// Level v prints the first rowsOf(v) rows of the tile solid, the others blank.
Screen barScreen(const Tile& tile, const std::function<int(std::size_t)>& rowsOf);

// Level v prints about v / 255 of the tile's columns, or rows, from the first on.
Screen uprightLines(int period);
Screen levelLines(int period);

// A printer whose toner ends where a bar ends and whose paper keeps light in its pixel: a bar's
// printed area is its share of the tile, but for a tenth of a row.
inline constexpr printmodel::PaperModel kPlainPrinter{0.58, 0.5, 0.05, 0.05, 0.035};

// What a tint of that printed area sends back.
inline double reflectanceOfArea(double area) {
  return 1.0 - area * (1.0 - kPlainPrinter.solid);
}

}  // namespace gdi::screenquality
