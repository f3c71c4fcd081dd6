// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/makescreens/grown_screen.h"

#include "tools/printmodel/PrintModel.h"

namespace gdi::makescreens {
namespace {

using printmodel::PrintModel;

// The paper in the printers that its screens have to serve.
std::vector<PaperModel> printersFor(const PaperModel& paper, const Variation& variation) {
  std::vector<PaperModel> printers(3, paper);
  printers.front().spot -= variation.spot;
  printers.front().threshold += variation.threshold;
  printers.back().spot += variation.spot;
  printers.back().threshold -= variation.threshold;
  if (variation.softness > 0.0) {
    printers.push_back(paper);
    printers.back().softness = variation.softness;
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

  std::vector<PrintModel> models;
  for (const PaperModel& printer : printersFor(paper.model, variation)) {
    models.emplace_back(printer, result.tile, steps);
  }
  std::vector<std::uint8_t> values(result.tile.size(), 0);
  std::size_t grown = 0;
  const auto printedArea = [&](std::size_t units) {
    for (; grown < units; ++grown) {
      ++values[result.order[grown]];
    }
    double sum = 0.0;
    for (const PrintModel& model : models) {
      sum += model.printedArea(values);
    }
    return sum / static_cast<double>(models.size());
  };
  result.levels = unitsOfLevels(result.order.size(), paper.gain, printedArea);
  return result;
}

}  // namespace gdi::makescreens
