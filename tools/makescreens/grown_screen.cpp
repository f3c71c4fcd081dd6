// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/makescreens/grown_screen.h"

#include <span>

#include "tools/makescreens/calm_levels.h"
#include "tools/makescreens/tone_errors.h"
#include "tools/printmodel/PrintModel.h"

namespace gdi::makescreens {
namespace {

using printmodel::PrintModel;

// How the tile darkens in that printer as it takes one unit of `order` after the other.
PrintedCurve curveOf(const PaperModel& printer, const Tile& tile, int steps,
                     std::span<const std::uint32_t> order) {
  const PrintModel model(printer, tile, steps);
  std::vector<std::uint8_t> values(tile.size(), 0);
  std::size_t grown = 0;
  return {order.size(), [&](std::size_t units) {
            for (; grown < units; ++grown) {
              ++values[order[grown]];
            }
            return model.printedArea(values);
          }};
}

// In the class's own printer, a sharper, a blurred and a gradual one.
std::vector<PrinterCurve> printerCurves(const PaperModel& paper, const Variation& variation,
                                        double gradualWeight, const Tile& tile, int steps,
                                        std::span<const std::uint32_t> order) {
  std::vector<PrinterCurve> curves;
  for (const int blurred : {0, -1, 1}) {
    PaperModel printer = paper;
    printer.spot += blurred * variation.spot;
    printer.threshold -= blurred * variation.threshold;
    curves.push_back({curveOf(printer, tile, steps, order), 1.0});
  }
  if (variation.softness > 0.0) {
    PaperModel printer = paper;
    printer.softness = variation.softness;
    curves.push_back({curveOf(printer, tile, steps, order), gradualWeight});
  }
  return curves;
}

}  // namespace

GrownScreen growScreen(const ScreenParameters& screen, int depth, const PaperClass& paper,
                       const Variation& variation, const GrowthStart& start) {
  const int steps = (1 << depth) - 1;
  GrownScreen result{tileWithCells(screen.lattice, screen.leastCells), depth, {}, {}};
  result.order =
      growthOrder(screen.lattice, result.tile, steps, screen.softEdge, screen.growth, start);

  const std::vector<PrinterCurve> printers =
      printerCurves(paper.model, variation, screen.gradualWeight, result.tile, steps, result.order);
  const ToneErrors errors(printers, paper.gain, paper.model.solid);
  result.levels = calmLevels(errors, unevennessOf(result.tile, result.order));
  return result;
}

}  // namespace gdi::makescreens
