// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Lightness and colour as the eye counts them: CIELAB of reflectances, the paper being white.
#pragma once

#include <array>

namespace gdi::eye {

// L* of a reflectance of 0 to 1.
double lightness(double reflectance);
// By how much L* grows with reflectance there.
double lightnessSlope(double reflectance);

using Rgb = std::array<double, 3>;  // reflectance of linear red, green and blue light
using Lab = std::array<double, 3>;  // L*, a*, b*

Lab labOf(const Rgb& rgb);
// The changes of L*, a*, b* (rows) with red, green, blue (columns) at a colour.
std::array<Rgb, 3> labSlopes(const Rgb& rgb);

// A solid's reflectance of linear red, green and blue light, for cyan, magenta, yellow, black.
extern const std::array<Rgb, 4> kInks;

}  // namespace gdi::eye
