// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The paper with which the model of print comes closest to what was measured.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "tools/fitpaper/measured_screen.h"
#include "tools/printmodel/PaperModel.h"

namespace gdi::fitpaper {

// How far a screen's patches lie from the model, in L*.
struct Deviation {
  double mean = 0.0;      // root of the mean square
  double largest = 0.0;   // without sign
  std::size_t level = 0;  // where it is largest
};

// The model takes `paper` with the solid that was measured.
Deviation deviationOf(const printmodel::PaperModel& paper, const MeasuredScreen& screen);

// Searches spot, threshold and spread, beginning with those of `start` and staying within what a
// class may state; the same input gives the same paper. Softness stays as it is; the solid is the
// mean of those measured. Requires: at least one screen.
printmodel::PaperModel fitPaper(const printmodel::PaperModel& start,
                                std::span<const MeasuredScreen> screens);

// The `class` line of that name in the parameters' text, with the spot, threshold, spread and solid
// of `paper`; its other fields stay as they stand. Empty when there is none.
std::string classLine(std::string_view parameters, std::string_view name,
                      const printmodel::PaperModel& paper);

}  // namespace gdi::fitpaper
