// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Everything that makescreens is told: qualities, papers, lattices, and how dots grow.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tools/makescreens/growth.h"
#include "tools/makescreens/lattice.h"
#include "tools/printmodel/PaperModel.h"

namespace gdi::makescreens {

using printmodel::PaperModel;

// The four planes of a colour page and the one of a mono page.
constexpr std::array<std::string_view, 5> kPlanes = {"cyan", "magenta", "yellow", "black", "mono"};

struct Quality {
  std::string name;
  int depth = 1;  // bits of output per pixel: 1, 2, 4 or 8
};

struct PaperClass {
  std::string name;
  PaperModel model;
  double gain = 0.0;  // lift of the middle tone that the printed tones aim at
};

struct Paper {
  std::string name;
  std::size_t paperClass = 0;
};

// How far printers differ from the papers' models: sharper ones have a smaller spot and need more
// exposure, blurred ones the reverse; in others toner follows exposure more gradually.
struct Variation {
  double spot = 0.0;       // pixels
  double threshold = 0.0;  // share of a solid's exposure
  double softness = 0.0;   // of the gradual printer; 0: there is none
};

struct ScreenParameters {
  Lattice lattice;
  int leastCells = 1;     // that the tile holds
  double softEdge = 0.0;  // 0 to 1
  GrowthRule growth;
  double gradualWeight = 1.0;  // of the gradual printer in the tones; the others count 1 each
  bool operator==(const ScreenParameters&) const = default;
};

struct Parameters {
  std::vector<Quality> qualities;
  std::vector<PaperClass> classes;
  std::vector<Paper> papers;
  std::array<GrowthStart, kPlanes.size()> starts;
  Variation variation;
  // One for each class, quality and plane.
  std::vector<ScreenParameters> screens;

  [[nodiscard]] const ScreenParameters& screen(std::size_t paperClass, std::size_t quality,
                                               std::size_t plane) const {
    return screens[(paperClass * qualities.size() + quality) * kPlanes.size() + plane];
  }
};

// The parameters that `text` states; nothing when it states them wrongly. `error` is then one line
// without a line feed, "NAME:LINE: what is wrong", with `name` for NAME.
std::optional<Parameters> parseParameters(std::string_view text, std::string_view name,
                                          std::string& error);

}  // namespace gdi::makescreens
