// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// How far the states of a growing tile print from the tones that they could stand for, in all
// printers that a screen has to serve.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "tools/makescreens/tone.h"

namespace gdi::makescreens {

// How the tile darkens in one printer, and what that printer counts.
struct PrinterCurve {
  PrintedCurve curve;
  double weight = 1.0;  // at least 0, and above 0 of the first
};

class ToneErrors {
 public:
  // The first printer is to print the gain. Each of the others may lift its middle tones by more or
  // less: a print that is darker or lighter throughout keeps its tones apart as they should be. Its
  // lift is the one from -1 to 1 that fits it best, in L*, with levels that serve all printers
  // best. `solid` is a solid's reflectance. Requires: a printer; all curves of equally many units.
  ToneErrors(std::span<const PrinterCurve> printers, double gain, double solid);

  [[nodiscard]] std::size_t units() const { return printers_.front().lightnesses.size() - 1; }
  // The printers' weighted mean square distance, in L*, from that level's tone (0 to 255) after so
  // many units (0 to units()).
  [[nodiscard]] double at(int level, std::size_t units) const;
  // The L* that one unit more makes there in the first printer, below 0: the mean over a fortieth
  // of all units on both sides.
  [[nodiscard]] double slopeAt(std::size_t units) const;
  // The lift of the middle tone in the prints of that printer, counted from 0.
  [[nodiscard]] double liftOf(std::size_t printer) const { return printers_[printer].lift; }

 private:
  struct Printer {
    std::vector<double> lightnesses;  // after each count of units
    std::vector<double> targets;      // of each level
    double weight;                    // all sum to 1
    double lift;
  };
  double fitLifts();
  [[nodiscard]] std::vector<std::size_t> nearestCounts() const;

  std::vector<Printer> printers_;
  double solid_;
};

}  // namespace gdi::makescreens
