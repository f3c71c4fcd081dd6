// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// When each pixel of a tile would darken if every dot of the screen grew alike.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "tools/makescreens/lattice.h"

namespace gdi::makescreens {

// Shares of a cell are counted in 1 / kWholeCell.
constexpr std::int64_t kWholeCell = std::int64_t{1} << 24;

// The shape of the spot function cos U + ellipse cos V + roundness cos U cos V + pairs
// cos((U+V)/2), angles in turns of a cell: high inside dots, low inside holes; and in what order a
// cell's pixels darken, where it is not that of the function.
struct SpotShape {
  double ellipse = 1.0;    // below 1 dots join to chains along V before the chains join
  double roundness = 0.0;  // above 0 dots join, and holes part, in darker tones
  double pairs = 0.0;      // how much every second dot, and hole, is larger than its neighbours
  // Empty, or a place for each of the pixelKinds, from the innermost to the outermost: the kind
  // takes the shares of the kind at that place. Requires: each of 0 to pixelKinds - 1 once.
  std::vector<int> order;
  bool operator==(const SpotShape&) const = default;
};

// How many kinds of pixels the smallest tile has: pixels of one kind have the same share, at one
// step. Where all cells are alike these are a cell's pixels, less those alike by symmetry; where
// every second dot is larger, those of two cells.
std::size_t pixelKinds(const Lattice& lattice, const SpotShape& shape);

// For each pixel of the tile, row by row, `steps` shares, never falling: how much of its cell is
// darkened when the pixel takes its first, second, ... unit of output.
//
// A pixel's units share the mean over the pixel, moved by `softEdge` (0 to 1) towards the shares
// of 8 x 8 points in it: 0 lets its units come together, 1 spreads them as the dot's edge sweeps
// over the pixel. Requires: steps >= 1.
std::vector<std::int64_t> spotShares(const Lattice& lattice, const Tile& tile, int steps,
                                     double softEdge, const SpotShape& shape);

}  // namespace gdi::makescreens
