// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/makescreens/screen_sets.h"

#include <array>

#include "tools/makescreens/grown_screen.h"
#include "tools/makescreens/screen_file.h"

namespace gdi::makescreens {
namespace {

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
  const GrownScreen grown =
      growScreen(parameters.screen(paperClass, quality, plane), parameters.qualities[quality].depth,
                 parameters.classes[paperClass], parameters.variation, parameters.starts.at(plane));
  const auto pixels = static_cast<std::size_t>(grown.tile.pixels());
  return screenFile(grown.tile, grown.depth, screenTable(pixels, grown.order, grown.levels));
}

}  // namespace gdi::makescreens
