// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/goals.h"

#include <array>
#include <iomanip>
#include <sstream>

namespace gdi::screenquality {
namespace {

struct Goal {
  std::string_view paperClass;
  std::string_view quality;
  double colour;
  double mono;
};

constexpr std::array<Goal, 9> kGoals{{
    {"plain", "Fast", 1.08, 1.14},
    {"plain", "Standard", 0.90, 1.06},
    {"plain", "Fine", 0.87, 1.05},
    {"rough", "Fast", 1.16, 1.44},
    {"rough", "Standard", 1.02, 1.41},
    {"rough", "Fine", 0.99, 1.41},
    {"smooth", "Fast", 1.07, 1.06},
    {"smooth", "Standard", 0.87, 0.96},
    {"smooth", "Fine", 0.83, 0.95},
}};

}  // namespace

std::optional<double> goalOf(std::string_view quality, std::string_view paperClass,
                             std::string_view mode) {
  for (const Goal& goal : kGoals) {
    if (goal.quality == quality && goal.paperClass == paperClass) {
      if (mode == "Color") {
        return goal.colour;
      }
      if (mode == "Mono") {
        return goal.mono;
      }
    }
  }
  return std::nullopt;
}

std::vector<std::string> missesOf(const Reached& reached) {
  std::vector<std::string> lines;
  const auto line = [&](const char* what, double bound) {
    std::ostringstream text;
    text << reached.title << ": J " << std::fixed << std::setprecision(3) << reached.j << " misses "
         << what << ' ' << bound;
    lines.push_back(text.str());
  };
  if (reached.goal && reached.j > *reached.goal * (1.0 + kGoalTolerance)) {
    line("its goal", *reached.goal);
  }
  const double share = reached.colour ? kColourShare : kMonoShare;
  if (reached.bestBaseline && reached.j > *reached.bestBaseline * share) {
    line(reached.colour ? "two thirds of the best baseline," : "the best baseline,",
         *reached.bestBaseline * share);
  }
  return lines;
}

}  // namespace gdi::screenquality
