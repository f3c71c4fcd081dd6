// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/searchscreens/moves.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/searchscreens/small_screens.h"
#include "tools/makescreens/screen_line.h"
#include "tools/makescreens/spot.h"
#include "tools/makescreens/tile_rules.h"

namespace gdi::searchscreens {
namespace {

using makescreens::Lattice;

constexpr std::size_t kMono = 4;

TEST(Moves, WhatHasATileIsReadByTheParameterFileAsItIs) {
  const makescreens::Parameters small = parsed(smallParameters());
  const std::string text = smallParameters();
  const std::string head = text.substr(0, text.rfind("screen "));
  Random random(3);
  ScreenParameters screen = small.screen(0, 0, kMono);
  int read = 0;
  for (int i = 0; i < 500; ++i) {
    const ScreenParameters next = changed(screen, 4, Numbers::kAll, random);
    ASSERT_GE(next.lattice.n, 1);
    if (!makescreens::tileProblem(next, 1).empty()) {
      continue;
    }
    screen = next;
    ++read;
    const std::string line = makescreens::screenLine(small, 0, 0, kMono, screen);
    std::string lines = line;
    for (const std::string& order : makescreens::orderLines(small, 0, 0, kMono, screen)) {
      lines.append("\n").append(order);
    }
    EXPECT_EQ(parsed(head + lines).screen(0, 0, kMono), screen) << lines;
    EXPECT_LE(line.size(), 156U) << line;
  }
  EXPECT_GT(read, 120);
}

TEST(Moves, ChangeEveryNumber) {
  const ScreenParameters start = parsed(smallParameters()).screen(0, 0, kMono);
  Random random(1);
  std::set<int> numbers;
  for (int i = 0; i < 400; ++i) {
    ScreenParameters screen = start;
    screen.growth.evenness = 5.0;
    const ScreenParameters next = changed(screen, 2, Numbers::kAll, random);
    const auto note = [&numbers](int number, bool differs) {
      if (differs) {
        numbers.insert(number);
      }
    };
    note(0, next.lattice.n != screen.lattice.n);
    note(1, next.lattice.a != screen.lattice.a);
    note(2, next.lattice.b != screen.lattice.b);
    note(3, next.lattice.c != screen.lattice.c);
    note(4, next.lattice.d != screen.lattice.d);
    note(5, next.lattice.phaseU != screen.lattice.phaseU);
    note(6, next.lattice.phaseV != screen.lattice.phaseV);
    note(7, next.leastCells != screen.leastCells);
    note(8, next.softEdge != screen.softEdge);
    note(9, next.growth.evenness != screen.growth.evenness);
    note(10, next.growth.reach != screen.growth.reach);
    note(11, next.growth.dots.ellipse != screen.growth.dots.ellipse);
    note(12, next.growth.dots.roundness != screen.growth.dots.roundness);
    note(13, next.growth.dots.pairs != screen.growth.dots.pairs);
    note(14, next.growth.holes.ellipse != screen.growth.holes.ellipse);
    note(15, next.growth.holes.roundness != screen.growth.holes.roundness);
    note(16, next.growth.holes.pairs != screen.growth.holes.pairs);
    note(17, next.growth.leastDot != screen.growth.leastDot);
    note(18, next.growth.leastHole != screen.growth.leastHole);
    note(19, next.gradualWeight != screen.gradualWeight);
    note(20, !next.growth.dots.order.empty());
    note(21, !next.growth.holes.order.empty());
  }
  EXPECT_EQ(numbers.size(), 22U);
}

TEST(Moves, LeaveTheLatticeWhenOnlyShapesMayChange) {
  ScreenParameters screen = parsed(smallParameters()).screen(0, 0, kMono);
  Random random(1);
  for (int i = 0; i < 500; ++i) {
    Lattice expected = screen.lattice;
    screen = changed(screen, 4, Numbers::kAllButLattice, random);
    expected.phaseU = screen.lattice.phaseU;
    expected.phaseV = screen.lattice.phaseV;
    EXPECT_EQ(screen.lattice, expected);
  }
}

// Empty, or each of 0 to their number less 1 once.
bool isOrderOf(std::vector<int> order, const Lattice& lattice,
               const makescreens::SpotShape& shape) {
  std::sort(order.begin(), order.end());
  for (std::size_t place = 0; place < order.size(); ++place) {
    if (order[place] != static_cast<int>(place)) {
      return false;
    }
  }
  return order.empty() || order.size() == makescreens::pixelKinds(lattice, shape);
}

TEST(Moves, KeepOrdersOfPixelsWhole) {
  ScreenParameters screen = parsed(smallParameters()).screen(0, 0, kMono);
  const Lattice lattice = screen.lattice;
  Random random(2);
  int ordered = 0;
  int pairsTurned = 0;
  for (int i = 0; i < 300; ++i) {
    const ScreenParameters next = changed(screen, 1, Numbers::kAllButLattice, random);
    // Other phases may make other pixels alike.
    if (next.lattice != lattice) {
      continue;
    }
    for (const makescreens::SpotShape& shape : {next.growth.dots, next.growth.holes}) {
      EXPECT_TRUE(isOrderOf(shape.order, lattice, shape));
      ordered += shape.order.empty() ? 0 : 1;
    }
    pairsTurned += (next.growth.dots.pairs == 0.0) != (screen.growth.dots.pairs == 0.0) ? 1 : 0;
    screen = next;
  }
  EXPECT_GT(ordered, 100);
  EXPECT_GT(pairsTurned, 3);
}

TEST(Moves, ForgetOrdersOfPixelsWithTheLattice) {
  ScreenParameters screen = parsed(smallParameters()).screen(0, 0, kMono);
  for (makescreens::SpotShape* shape : {&screen.growth.dots, &screen.growth.holes}) {
    shape->order.resize(makescreens::pixelKinds(screen.lattice, *shape));
    std::iota(shape->order.rbegin(), shape->order.rend(), 0);
  }
  Random random(2);
  int others = 0;
  for (int i = 0; i < 300; ++i) {
    const ScreenParameters next = changed(screen, 1, Numbers::kAll, random);
    Lattice shifted = screen.lattice;
    shifted.phaseU = next.lattice.phaseU;
    shifted.phaseV = next.lattice.phaseV;
    if (next.lattice != shifted) {
      EXPECT_NE(next.growth.dots.order, screen.growth.dots.order);
      EXPECT_NE(next.growth.holes.order, screen.growth.holes.order);
      ++others;
    }
  }
  EXPECT_GT(others, 50);
}

TEST(Moves, LeaveTheSoftEdgeOfOneBit) {
  ScreenParameters screen = parsed(smallParameters()).screen(0, 0, kMono);
  Random random(1);
  for (int i = 0; i < 500; ++i) {
    screen = changed(screen, 1, Numbers::kAll, random);
    EXPECT_EQ(screen.softEdge, 0.0);
  }
}

}  // namespace
}  // namespace gdi::searchscreens
