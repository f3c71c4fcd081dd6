// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/searchscreens/moves.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <span>

#include "tools/makescreens/lattice.h"
#include "tools/makescreens/spot.h"
#include "tools/makescreens/tile_rules.h"

namespace gdi::searchscreens {
namespace {

using makescreens::Lattice;
using makescreens::SpotShape;

constexpr int kLargestPeriod = 64;
constexpr int kMostCells = 200;
constexpr int kDeepest = 8;        // bits a pixel
constexpr int kMostOrdered = 400;  // pixels of a tile: more kinds take too long to tell apart

// In range, with that many steps to 1.
double inRange(double value, double least, double most, double steps = 100.0) {
  // 0 is added so that no -0 is left.
  return std::clamp(std::round(value * steps) / steps, least, most) + 0.0;
}

// Another lattice has other pixels.
void forgetOrders(ScreenParameters& screen) {
  screen.growth.dots.order.clear();
  screen.growth.holes.order.clear();
}

void stepCoefficient(ScreenParameters& screen, Random& random) {
  Lattice& lattice = screen.lattice;
  const std::array<int*, 4> coefficients{&lattice.a, &lattice.b, &lattice.c, &lattice.d};
  int& coefficient = *coefficients.at(static_cast<std::size_t>(random.whole(0, 3)));
  coefficient += random.whole(0, 1) == 0 ? -1 : 1;
  coefficient = std::clamp(coefficient, -kLargestPeriod, kLargestPeriod);
  forgetOrders(screen);
}

void stepPeriod(ScreenParameters& screen, Random& random) {
  screen.lattice.n = std::clamp(screen.lattice.n + random.whole(-2, 2), 1, kLargestPeriod);
  forgetOrders(screen);
}

// One of the usual sizes.
void newLattice(ScreenParameters& screen, Random& random) {
  Lattice& lattice = screen.lattice;
  lattice.n = random.whole(8, 34);
  for (int* coefficient : {&lattice.a, &lattice.b, &lattice.c, &lattice.d}) {
    *coefficient = random.whole(-6, 6);
  }
  forgetOrders(screen);
}

void newPhaseU(ScreenParameters& screen, Random& random) {
  screen.lattice.phaseU = random.whole(0, 999);
}

void newPhaseV(ScreenParameters& screen, Random& random) {
  screen.lattice.phaseV = random.whole(0, 999);
}

void scaleCells(ScreenParameters& screen, Random& random) {
  const double cells = screen.leastCells * std::exp(0.4 * random.normal());
  screen.leastCells = static_cast<int>(inRange(cells, 1.0, kMostCells, 1.0));
}

void moveSoftEdge(ScreenParameters& screen, Random& random) {
  screen.softEdge = inRange(screen.softEdge + 0.15 * random.normal(), 0.0, 1.0, 1000.0);
}

void scaleEvenness(ScreenParameters& screen, Random& random) {
  double& evenness = screen.growth.evenness;
  evenness = inRange(evenness * std::exp(0.4 * random.normal()), 0.1, 60.0);
}

void scaleReach(ScreenParameters& screen, Random& random) {
  double& reach = screen.growth.reach;
  reach = inRange(reach * std::exp(0.25 * random.normal()), 0.3, 4.0);
}

// Of dots or of holes.
SpotShape& someShape(ScreenParameters& screen, Random& random) {
  return random.whole(0, 1) == 0 ? screen.growth.dots : screen.growth.holes;
}

void moveEllipse(ScreenParameters& screen, Random& random) {
  double& ellipse = someShape(screen, random).ellipse;
  ellipse = inRange(ellipse + 0.2 * random.normal(), 0.0, 1.0);
}

void moveRoundness(ScreenParameters& screen, Random& random) {
  double& roundness = someShape(screen, random).roundness;
  roundness = inRange(roundness + 0.2 * random.normal(), -1.0, 1.0);
}

void movePairs(ScreenParameters& screen, Random& random) {
  SpotShape& shape = someShape(screen, random);
  const bool paired = shape.pairs != 0.0;
  double& pairs = shape.pairs;
  pairs = random.whole(0, 2) == 0 ? 0.0 : inRange(pairs + 0.15 * random.normal(), -1.0, 1.0);
  // Two cells have other pixels than one.
  if (paired != (pairs != 0.0)) {
    shape.order.clear();
  }
}

// Two kinds of pixels that come soon after each other, among those that dots (or holes) take while
// they grow to half the area and a little more.
void swapPixels(ScreenParameters& screen, Random& random) {
  if (!makescreens::tileProblem(screen, kDeepest).empty() ||
      makescreens::smallestTile(screen.lattice).pixels() > kMostOrdered) {
    return;
  }
  const bool dots = random.whole(0, 1) == 0;
  SpotShape& shape = dots ? screen.growth.dots : screen.growth.holes;
  if (shape.order.empty()) {
    shape.order.resize(makescreens::pixelKinds(screen.lattice, shape));
    std::iota(shape.order.begin(), shape.order.end(), 0);
  }
  const int last = static_cast<int>(shape.order.size()) - 1;
  const int first = random.whole(0, last * 3 / 5);
  const int second = std::min(first + random.whole(1, 3), last);
  const auto at = [&](int place) { return shape.order.begin() + (dots ? place : last - place); };
  std::iter_swap(at(first), at(second));
  if (std::ranges::is_sorted(shape.order)) {
    shape.order.clear();
  }
}

void likenHoles(ScreenParameters& screen, Random& /*random*/) {
  screen.growth.holes = screen.growth.dots;
}

void newLeastDot(ScreenParameters& screen, Random& random) {
  screen.growth.leastDot = random.whole(1, 4);
}

void newLeastHole(ScreenParameters& screen, Random& random) {
  screen.growth.leastHole = random.whole(1, 5);
}

void scaleGradualWeight(ScreenParameters& screen, Random& random) {
  const double weight = screen.gradualWeight * std::exp(0.4 * random.normal());
  screen.gradualWeight = inRange(weight, 0.1, 20.0);
}

using Move = void (*)(ScreenParameters&, Random&);

// Those of the lattice first, that of the soft edge last. Some stand twice, to come more often.
constexpr std::size_t kLatticeMoves = 3;
constexpr std::array<Move, 24> kMoves{
    stepCoefficient,    stepPeriod, newLattice,  newPhaseU,   newPhaseV,     scaleCells,
    scaleEvenness,      scaleReach, moveEllipse, moveEllipse, moveRoundness, moveRoundness,
    movePairs,          movePairs,  likenHoles,  newLeastDot, newLeastHole,  scaleEvenness,
    scaleGradualWeight, swapPixels, swapPixels,  swapPixels,  swapPixels,    moveSoftEdge};

}  // namespace

ScreenParameters changed(ScreenParameters screen, int depth, Numbers numbers, Random& random) {
  std::span<const Move> moves = kMoves;
  if (numbers == Numbers::kAllButLattice) {
    moves = moves.subspan(kLatticeMoves);
  }
  if (depth == 1) {
    moves = moves.first(moves.size() - 1);
  }
  for (int count = random.whole(1, 3); count > 0; --count) {
    const int chosen = random.whole(0, static_cast<int>(moves.size()) - 1);
    moves[static_cast<std::size_t>(chosen)](screen, random);
  }
  return screen;
}

}  // namespace gdi::searchscreens
