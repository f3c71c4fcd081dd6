// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The geometry of a clustered-dot screen: a rational lattice of cells and the tile that repeats it.
#pragma once

#include <cstdint>
#include <vector>

#include "tools/printmodel/Tile.h"

namespace gdi::makescreens {

using printmodel::Tile;

// At the point (x, y), in pixels, the coordinates counted in cells are
// U = (a x + b y) / n + phaseU / 1000 and V = (c x + d y) / n + phaseV / 1000.
// Dots are centred where both are whole, holes where both are whole and a half.
// Requires: n >= 1, ad - bc not 0.
struct Lattice {
  int n = 1;
  int a = 1, b = 0, c = 0, d = 1;
  int phaseU = 0, phaseV = 0;  // thousandths of a cell

  [[nodiscard]] int determinant() const { return a * d - b * c; }
  // The area of one cell, in pixels.
  [[nodiscard]] double cellArea() const;
  bool operator==(const Lattice&) const = default;
};

// The smallest tile that repeats the lattice.
Tile smallestTile(const Lattice& lattice);

// How many whole cells a repeating tile holds.
int cellsIn(const Lattice& lattice, const Tile& tile);

// The smallest tile, its shorter side doubled (the width, when they are alike) until it holds
// `leastCells` cells.
Tile tileWithCells(const Lattice& lattice, int leastCells);

// Whether the tile repeats a pattern that tells every second cell along U, and along V, from its
// neighbours.
bool holdsPairs(const Lattice& lattice, const Tile& tile);

// Coordinates of a point, each a count of 1 / scale cells. Points lie on a grid of 16 to the pixel.
struct CellPoint {
  std::int64_t u = 0;
  std::int64_t v = 0;
};
std::int64_t cellScale(const Lattice& lattice);
CellPoint cellPoint(const Lattice& lattice, int sixteenthX, int sixteenthY);

// For each pixel of the tile, row by row, the number of the cell that its centre lies in: cells
// around dots, or around holes. Cells are numbered from 0 and wrap round the tile's borders.
enum class CellsAround { kDots, kHoles };
std::vector<std::uint32_t> cellNumbers(const Lattice& lattice, const Tile& tile,
                                       CellsAround around);

}  // namespace gdi::makescreens
