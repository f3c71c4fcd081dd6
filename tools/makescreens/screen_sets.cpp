// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/makescreens/screen_sets.h"

#include <array>
#include <cstdint>
#include <vector>

#include "tools/makescreens/screen_file.h"
#include "tools/makescreens/tone.h"
#include "tools/printmodel/PrintModel.h"

namespace gdi::makescreens {
namespace {

using printmodel::PrintModel;

constexpr std::size_t kMono = 4;
using FourPlanes = std::array<std::size_t, 4>;

std::string setEntry(const Parameters& parameters, const Paper& paper, std::size_t quality,
                     std::string_view mode, const FourPlanes& planes) {
  const Quality& words = parameters.qualities[quality];
  std::string text = "\t\t<key>" + words.name + paper.name + std::string(mode) + "</key>\n";
  text += "\t\t<dict>\n\t\t\t<key>Depth</key>\n\t\t\t<integer>" + std::to_string(words.depth) +
          "</integer>\n\t\t\t<key>Screens</key>\n\t\t\t<array>\n";
  for (const std::size_t plane : planes) {
    text += "\t\t\t\t<string>" + screenName(parameters, paper.paperClass, quality, plane) +
            "</string>\n";
  }
  return text + "\t\t\t</array>\n\t\t</dict>\n";
}

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

std::string screenName(const Parameters& parameters, std::size_t paperClass, std::size_t quality,
                       std::size_t plane) {
  return parameters.classes[paperClass].name + '-' + parameters.qualities[quality].name + '-' +
         std::string(kPlanes.at(plane));
}

std::string screenSetsList(const Parameters& parameters) {
  std::string text =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<plist version=\"1.0\">\n<dict>\n\t<key>ScreenSets</key>\n\t<dict>\n";
  for (std::size_t quality = 0; quality < parameters.qualities.size(); ++quality) {
    for (const Paper& paper : parameters.papers) {
      text += setEntry(parameters, paper, quality, "Color", {0, 1, 2, 3});
      // A mono page uses the fourth screen alone; the others only have to be there.
      text += setEntry(parameters, paper, quality, "Mono", {kMono, kMono, kMono, kMono});
    }
  }
  return text + "\t</dict>\n</dict>\n</plist>\n";
}

std::string makeScreen(const Parameters& parameters, std::size_t paperClass, std::size_t quality,
                       std::size_t plane) {
  const ScreenParameters& screen = parameters.screen(paperClass, quality, plane);
  const Quality& words = parameters.qualities[quality];
  const PaperClass& paper = parameters.classes[paperClass];
  const int steps = (1 << words.depth) - 1;
  const Tile tile = tileWithCells(screen.lattice, screen.leastCells);
  const auto pixels = static_cast<std::size_t>(tile.pixels());
  const std::vector<std::uint32_t> order = growthOrder(screen.lattice, tile, steps, screen.softEdge,
                                                       screen.growth, parameters.starts.at(plane));

  std::vector<PrintModel> models;
  for (const PaperModel& printer : printersFor(paper.model, parameters.variation)) {
    models.emplace_back(printer, tile, steps);
  }
  std::vector<std::uint8_t> values(pixels, 0);
  std::size_t grown = 0;
  const auto printedArea = [&](std::size_t units) {
    for (; grown < units; ++grown) {
      ++values[order[grown]];
    }
    double sum = 0.0;
    for (const PrintModel& model : models) {
      sum += model.printedArea(values);
    }
    return sum / static_cast<double>(models.size());
  };
  const LevelUnits levels = unitsOfLevels(order.size(), paper.gain, printedArea);
  return screenFile(tile, words.depth, screenTable(pixels, order, levels));
}

}  // namespace gdi::makescreens
