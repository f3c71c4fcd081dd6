// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/makescreens/grown_screen.h"

#include "tools/makescreens/calm_levels.h"
#include "tools/printmodel/PrintModel.h"

namespace gdi::makescreens {
namespace {

using printmodel::PrintModel;

// One of the printers that a screen has to serve.
struct Printer {
  PrintModel model;
  double weight;
};

std::vector<Printer> printersFor(const PaperModel& paper, const Variation& variation,
                                 double gradualWeight, const printmodel::Tile& tile, int steps) {
  std::vector<Printer> printers;
  for (const int blurred : {-1, 0, 1}) {
    PaperModel printer = paper;
    printer.spot += blurred * variation.spot;
    printer.threshold -= blurred * variation.threshold;
    printers.push_back({PrintModel(printer, tile, steps), 1.0});
  }
  if (variation.softness > 0.0) {
    PaperModel printer = paper;
    printer.softness = variation.softness;
    printers.push_back({PrintModel(printer, tile, steps), gradualWeight});
  }
  return printers;
}

}  // namespace

GrownScreen growScreen(const ScreenParameters& screen, int depth, const PaperClass& paper,
                       const Variation& variation, const GrowthStart& start) {
  const int steps = (1 << depth) - 1;
  GrownScreen result{tileWithCells(screen.lattice, screen.leastCells), depth, {}, {}};
  result.order =
      growthOrder(screen.lattice, result.tile, steps, screen.softEdge, screen.growth, start);

  const std::vector<Printer> printers =
      printersFor(paper.model, variation, screen.gradualWeight, result.tile, steps);
  std::vector<std::uint8_t> values(result.tile.size(), 0);
  std::size_t grown = 0;
  const auto printedArea = [&](std::size_t units) {
    for (; grown < units; ++grown) {
      ++values[result.order[grown]];
    }
    double sum = 0.0;
    double weights = 0.0;
    for (const Printer& printer : printers) {
      sum += printer.weight * printer.model.printedArea(values);
      weights += printer.weight;
    }
    return sum / weights;
  };
  const PrintedCurve curve(result.order.size(), printedArea);
  result.levels =
      calmLevels(curve, paper.gain, paper.model.solid, unevennessOf(result.tile, result.order));
  return result;
}

}  // namespace gdi::makescreens
