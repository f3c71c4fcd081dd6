// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// How much of a fine pattern the eye sees, by its frequency and direction.
#pragma once

#include <vector>

#include "tools/printmodel/Tile.h"

namespace gdi::eye {

using printmodel::Tile;

constexpr double kDotsPerInch = 600.0;

// Cycles an inch below which a pattern counts as coarse.
constexpr double kCoarse = 30.0;

// Pixels that a degree of the eye's field spans at that distance.
double pixelsPerDegree(double inches);

// The share that is left of a lightness pattern of (x, y) cycles a degree: everything below 3,
// least in slanting directions.
double lightnessSeen(double x, double y);

// The share that is left of a pattern of hue alone.
double chromaSeen(double x, double y);

// A share for each frequency of a field's half spectrum: height rows of width / 2 + 1, frequencies
// of 0 to width / 2 periods across; down the field row r has r periods, or r - height beyond half.
using Sight = std::vector<double>;
Sight lightnessSight(const Tile& field, double inches);
Sight chromaSight(const Tile& field, double inches);

// The rms that sight leaves of noise of rms 1 that stays alike over `correlation` pixels: its power
// at f cycles a pixel goes with exp(-(2 pi f correlation)^2).
struct NoiseSeen {
  double lightness = 0.0;
  double chroma = 0.0;
};
NoiseSeen noiseSeen(double correlation, double inches);

}  // namespace gdi::eye
