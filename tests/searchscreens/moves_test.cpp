// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/searchscreens/moves.h"

#include <set>

#include <gtest/gtest.h>

#include "tests/searchscreens/small_screens.h"
#include "tools/makescreens/screen_line.h"
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
  for (int i = 0; i < 2000; ++i) {
    const ScreenParameters next = changed(screen, 4, Numbers::kAll, random);
    ASSERT_GE(next.lattice.n, 1);
    if (!makescreens::tileProblem(next, 1).empty()) {
      continue;
    }
    screen = next;
    ++read;
    const std::string line = makescreens::screenLine(small, 0, 0, kMono, screen);
    EXPECT_EQ(parsed(head + line).screen(0, 0, kMono), screen) << line;
    EXPECT_LE(line.size(), 156U) << line;
  }
  EXPECT_GT(read, 500);
}

TEST(Moves, ChangeEveryNumber) {
  const ScreenParameters start = parsed(smallParameters()).screen(0, 0, kMono);
  Random random(1);
  std::set<int> numbers;
  for (int i = 0; i < 1000; ++i) {
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
  }
  EXPECT_EQ(numbers.size(), 20U);
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
