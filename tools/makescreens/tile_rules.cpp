// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/makescreens/tile_rules.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <vector>

#include "tools/makescreens/spot.h"
#include "tools/makescreens/tone.h"

namespace gdi::makescreens {
namespace {

constexpr int kMostPixels = 4096;
constexpr double kSmallestCell = 4.0;  // pixels

bool isOrder(std::vector<int> order) {
  std::sort(order.begin(), order.end());
  for (std::size_t place = 0; place < order.size(); ++place) {
    if (order[place] != static_cast<int>(place)) {
      return false;
    }
  }
  return true;
}

std::string orderProblem(std::string_view what, const Lattice& lattice, const SpotShape& shape) {
  if (shape.order.empty()) {
    return "";
  }
  const std::size_t kinds = pixelKinds(lattice, shape);
  if (shape.order.size() == kinds && isOrder(shape.order)) {
    return "";
  }
  return std::string("the order of ").append(what).append(" has to name each of 0 to ") +
         std::to_string(kinds - 1) + " once";
}

}  // namespace

// 255 levels need as many units above blank, and a file should stay small.
std::string tileProblem(const ScreenParameters& screen, int depth) {
  const Lattice& lattice = screen.lattice;
  if (lattice.determinant() == 0) {
    return "A D - B C is 0: these are no two directions";
  }
  if (lattice.cellArea() < kSmallestCell) {
    return "a cell has less than 4 pixels";
  }
  std::string tooLarge = "the tile has more than " + std::to_string(kMostPixels) + " pixels";
  const Tile smallest = smallestTile(lattice);
  const double doublings = static_cast<double>(screen.leastCells) / cellsIn(lattice, smallest);
  if (smallest.pixels() > kMostPixels || smallest.pixels() * doublings > kMostPixels) {
    return tooLarge;
  }
  const Tile tile = tileWithCells(lattice, screen.leastCells);
  if (tile.pixels() > kMostPixels) {
    return tooLarge;
  }
  const int units = tile.pixels() * ((1 << depth) - 1);
  if (units < kLevels - 1) {
    return "the tile has only " + std::to_string(units) +
           " units of output, fewer than the 255 levels";
  }
  const bool paired = screen.growth.dots.pairs != 0.0 || screen.growth.holes.pairs != 0.0;
  if (paired && !holdsPairs(lattice, tile)) {
    return "the tile holds no whole pairs of cells: PAIRS has to be 0";
  }
  const std::string problem = orderProblem("dots", lattice, screen.growth.dots);
  return problem.empty() ? orderProblem("holes", lattice, screen.growth.holes) : problem;
}

}  // namespace gdi::makescreens
