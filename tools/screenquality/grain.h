// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What unevenness of flat tints of one ink the eye sees.
#pragma once

#include "tools/eye/sight.h"
#include "tools/screenquality/Conditions.h"
#include "tools/screenquality/PrintedScreen.h"

namespace gdi::screenquality {

using eye::Sight;

// All in L*, root mean squares over the judged levels.
struct Grain {
  double pattern = 0.0;  // of the screen's own dots
  double coarse = 0.0;   // of the pattern, what is below 30 cycles an inch
  double noise = 0.0;    // of the engine's unsteady exposure, in these dots
  // Pattern and noise together.
  [[nodiscard]] double whole() const;
};

// A printed area's reflectance changes by more than its toner: light spreads in the paper.
constexpr double kNoiseGain = 1.11;

// `sight` with all that is not coarse taken out.
Sight coarseSight(const Tile& field, Sight sight);

Grain grainOf(const PrintedScreen& print, const Conditions& conditions);

}  // namespace gdi::screenquality
