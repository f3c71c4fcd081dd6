// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The search for screens that print better: small changes by chance, of which those that lower the
// score are kept, and at first some that raise it a little.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "tools/searchscreens/Task.h"

namespace gdi::searchscreens {

// How long to search and by what chance. With `tries` the result is the same in every run.
struct Limits {
  double seconds = 120.0;
  std::optional<long> tries;  // instead of seconds
  std::uint32_t seed = 1;
  bool shapesOnly = false;  // the lattices stay
  bool robust = false;      // the score is of other printers and distances too
};

struct Found {
  std::vector<ScreenParameters> screens;  // plane by plane; the task's own when none is better
  double before = 0.0;                    // the score of the task's screens
  double after = 0.0;                     // of these, no more than that
  double j = 0.0;                         // J of these
  long tries = 0;
};

// Told of each better page and now and then between: seconds so far, tries so far, the least
// score that was found.
using Progress = std::function<void(double seconds, long tries, double score)>;

// Changes one screen at a time and keeps the rules (rules.h). Requires: a task whose screens keep
// them.
Found search(const Task& task, const Limits& limits, const Progress& progress);

}  // namespace gdi::searchscreens
