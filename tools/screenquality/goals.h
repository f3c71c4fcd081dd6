// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What the bundle's sets have to reach: the one home of these figures.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace gdi::screenquality {

constexpr double kGoalTolerance = 0.02;     // by which J may exceed its goal, as a share of it
constexpr double kColourShare = 2.0 / 3.0;  // of the best baseline's J, that colour may have
constexpr double kMonoShare = 1.0;          // the same of mono

// The J that a set of that quality, paper class and mode ("Fast", "plain", "Color") is made for;
// nothing for other words.
std::optional<double> goalOf(std::string_view quality, std::string_view paperClass,
                             std::string_view mode);

// A set's J beside what it is held to.
struct Reached {
  std::string title;  // of the set, for the lines
  double j = 0.0;
  std::optional<double> goal;
  std::optional<double> bestBaseline;
  bool colour = false;
};

// A line without a line feed for each goal that is missed.
std::vector<std::string> missesOf(const Reached& reached);

}  // namespace gdi::screenquality
