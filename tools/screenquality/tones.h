// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// How well tones keep when the printer strays, and how evenly they follow one another.
#pragma once

#include <array>
#include <span>
#include <vector>

#include "tools/screenquality/PrintedScreen.h"

namespace gdi::screenquality {

// By how much exposure swings, as a share of it.
constexpr double kSwing = 0.1;

// How printers differ that a screen has to serve: nominal, sharper, softer.
struct StrayedPrinter {
  double spot;       // pixels to add
  double threshold;  // to add
};
constexpr std::array<StrayedPrinter, 3> kPrinters{{{0.0, 0.0}, {-0.08, 0.05}, {0.07, -0.05}}};

// Half the L* between an exposure a tenth too strong and one a tenth too weak.
double exposureSwing(const PrintedScreen& print);

// The L* distance of the printed areas from the nearest curve t + g 4 t (1 - t), whatever g: in
// this printer, in a sharper and in a softer one.
double curveError(const PrintedScreen& print);

// The same of one printer's lightnesses at the judged levels.
double curveDistance(std::span<const double> lightnesses, double solid);

// The L* deviation of the 256 tones from the smooth curve through them.
double toneSteps(const PrintedScreen& print);
double toneSteps(std::span<const double> lightnesses);

// Values smoothed by cubics fitted to windows of 25 around each (Savitzky and Golay), those near
// an end by the end's window. Requires: at least 25 values.
std::vector<double> smoothed(std::span<const double> values);

}  // namespace gdi::screenquality
