// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/makescreens/lattice.h"

#include <cstdlib>
#include <map>
#include <numeric>
#include <utility>

namespace gdi::makescreens {
namespace {

constexpr int kPointsPerPixel = 16;
constexpr int kPhaseScale = 1000;

std::int64_t floorDivide(std::int64_t value, std::int64_t divisor) {
  const std::int64_t quotient = value / divisor;
  return value % divisor < 0 ? quotient - 1 : quotient;
}

std::int64_t floorModulo(std::int64_t value, std::int64_t divisor) {
  return value - floorDivide(value, divisor) * divisor;
}

}  // namespace

double Lattice::cellArea() const {
  return static_cast<double>(n) * n / std::abs(determinant());
}

Tile smallestTile(const Lattice& lattice) {
  return {lattice.n / std::gcd(lattice.n, std::gcd(lattice.a, lattice.c)),
          lattice.n / std::gcd(lattice.n, std::gcd(lattice.b, lattice.d))};
}

int cellsIn(const Lattice& lattice, const Tile& tile) {
  const std::int64_t area = std::int64_t{tile.width} * tile.height;
  const std::int64_t square = std::int64_t{lattice.n} * lattice.n;
  // NOLINTNEXTLINE(clang-analyzer-core.DivideZero): a lattice's n is at least 1
  return static_cast<int>(area * std::abs(lattice.determinant()) / square);
}

Tile tileWithCells(const Lattice& lattice, int leastCells) {
  Tile tile = smallestTile(lattice);
  while (cellsIn(lattice, tile) < leastCells) {
    (tile.width <= tile.height ? tile.width : tile.height) *= 2;
  }
  return tile;
}

bool holdsPairs(const Lattice& lattice, const Tile& tile) {
  const auto isEven = [&lattice](int cellsTimesN) { return cellsTimesN / lattice.n % 2 == 0; };
  return isEven((lattice.a + lattice.c) * tile.width) &&
         isEven((lattice.b + lattice.d) * tile.height);
}

std::int64_t cellScale(const Lattice& lattice) {
  return std::int64_t{kPointsPerPixel} * kPhaseScale * lattice.n;
}

CellPoint cellPoint(const Lattice& lattice, int sixteenthX, int sixteenthY) {
  const std::int64_t x = sixteenthX;
  const std::int64_t y = sixteenthY;
  const std::int64_t phaseUnit = cellScale(lattice) / kPhaseScale;
  return {(lattice.a * x + lattice.b * y) * kPhaseScale + lattice.phaseU * phaseUnit,
          (lattice.c * x + lattice.d * y) * kPhaseScale + lattice.phaseV * phaseUnit};
}

std::vector<std::uint32_t> cellNumbers(const Lattice& lattice, const Tile& tile,
                                       CellsAround around) {
  const std::int64_t scale = cellScale(lattice);
  const std::int64_t shift = around == CellsAround::kDots ? scale / 2 : 0;
  const std::int64_t det = lattice.determinant();
  const std::int64_t sign = det < 0 ? -1 : 1;
  // A cell is known by where its centre lies in the tile, counted in 1 / |det| pixels.
  std::map<std::pair<std::int64_t, std::int64_t>, std::uint32_t> numbers;
  std::vector<std::uint32_t> result;
  for (int y = 0; y < tile.height; ++y) {
    for (int x = 0; x < tile.width; ++x) {
      const CellPoint centre = cellPoint(lattice, kPointsPerPixel * x + kPointsPerPixel / 2,
                                         kPointsPerPixel * y + kPointsPerPixel / 2);
      const std::int64_t u = floorDivide(centre.u + shift, scale);
      const std::int64_t v = floorDivide(centre.v + shift, scale);
      const std::pair place{
          floorModulo(sign * lattice.n * (lattice.d * u - lattice.b * v), tile.width * sign * det),
          floorModulo(sign * lattice.n * (lattice.a * v - lattice.c * u),
                      tile.height * sign * det)};
      const auto next = static_cast<std::uint32_t>(numbers.size());
      result.push_back(numbers.try_emplace(place, next).first->second);
    }
  }
  return result;
}

}  // namespace gdi::makescreens
