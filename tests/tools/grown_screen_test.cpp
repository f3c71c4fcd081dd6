// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/makescreens/grown_screen.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

#include <gtest/gtest.h>

#include "tools/makescreens/calm_levels.h"
#include "tools/printmodel/PrintModel.h"

namespace gdi::makescreens {
namespace {

constexpr Variation kVaried{0.08, 0.04, 0.12};
const PaperClass kPlain{"plain", {0.58, 0.42, 0.055, 1.1, 0.035}, 0.16};

GrownScreen grown(double gradualWeight, const Variation& variation) {
  ScreenParameters screen;
  screen.lattice = {20, 4, -2, -2, -4, 10, 13};
  screen.leastCells = 20;
  screen.gradualWeight = gradualWeight;
  return growScreen(screen, 1, kPlain, variation, {});
}

// How far the gradual printer's tones are from the nearest lifted ones, over all levels.
double strayInGradualPrinter(const GrownScreen& screen) {
  PaperModel gradual = kPlain.model;
  gradual.softness = kVaried.softness;
  const printmodel::PrintModel printer(gradual, screen.tile, 1);
  std::vector<std::uint8_t> values(screen.tile.size(), 0);
  std::size_t unit = 0;
  std::vector<double> areas;
  for (const std::size_t units : screen.levels) {
    for (; unit < units; ++unit) {
      ++values[screen.order[unit]];
    }
    areas.push_back(printer.printedArea(values));
  }
  double least = 1.0;
  for (int hundredths = -50; hundredths <= 50; ++hundredths) {
    double squares = 0.0;
    for (int level = 0; level < kLevels; ++level) {
      const double stray =
          areas[static_cast<std::size_t>(level)] - targetArea(level, hundredths / 100.0);
      squares += stray * stray;
    }
    least = std::min(least, std::sqrt(squares / kLevels));
  }
  return least;
}

TEST(GrownScreen, TheMoreTheGradualPrinterCountsTheBetterItsTonesKeep) {
  const double never = strayInGradualPrinter(grown(0.0, kVaried));
  const double alike = strayInGradualPrinter(grown(1.0, kVaried));
  const double alone = strayInGradualPrinter(grown(100.0, kVaried));
  EXPECT_LT(alike, 0.9 * never);
  EXPECT_LT(alone, 0.7 * alike);
}

TEST(GrownScreen, AGradualPrinterThatCountsNothingIsNone) {
  EXPECT_EQ(grown(0.0, kVaried).levels, grown(1.0, {0.08, 0.04, 0.0}).levels);
}

TEST(GrownScreen, ItsLevelsAreTheCalmOnes) {
  const GrownScreen screen = grown(0.0, {});
  const printmodel::PrintModel printer(kPlain.model, screen.tile, 1);
  std::vector<std::uint8_t> values(screen.tile.size(), 0);
  std::size_t unit = 0;
  const PrintedCurve curve(screen.order.size(), [&](std::size_t units) {
    for (; unit < units; ++unit) {
      ++values[screen.order[unit]];
    }
    return printer.printedArea(values);
  });
  const std::vector<double> unevenness = unevennessOf(screen.tile, screen.order);
  const std::vector<double> none(unevenness.size(), 0.0);
  // A sharper and a blurred printer that vary by nothing are the class's own.
  const std::vector<PrinterCurve> alike{{curve, 1.0}, {curve, 1.0}, {curve, 1.0}};
  const ToneErrors errors(alike, kPlain.gain, kPlain.model.solid);
  EXPECT_EQ(screen.levels, calmLevels(errors, unevenness));
  EXPECT_NE(screen.levels, calmLevels(errors, none));
}

}  // namespace
}  // namespace gdi::makescreens
