// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The measure: how good a set of screens prints, in one number and its terms. Lower is better.
#pragma once

#include <array>

#include "tools/screenquality/Conditions.h"
#include "tools/screenquality/PrintedScreen.h"
#include "tools/screenquality/Screen.h"
#include "tools/screenquality/superposition.h"

namespace gdi::screenquality {

// All in units of L*a*b*.
struct Quality {
  double grain = 0.0;         // G: the unevenness of flat tints
  double coarse = 0.0;        // LF: of it, what is coarse
  double swing = 0.0;         // T: what a change of exposure does to tones
  double detail = 0.0;        // D: detail lost
  double curve = 0.0;         // H: tones off a plain curve
  double steps = 0.0;         // Q: tones unevenly spaced
  double registration = 0.0;  // RG: colours that wander with the planes' registration
  double noise = 0.0;         // N: the engine's noise seen; told beside the others, of no weight
  // J: the root of the sum of the weighted terms' squares.
  [[nodiscard]] double composite() const;
};

// Of a page in black alone.
Quality monoQuality(const Screen& black, const Conditions& conditions);
Quality monoQuality(const PrintedScreen& black, const Conditions& conditions);
// Of a colour page.
Quality colourQuality(const PlaneScreens& planes, const Conditions& conditions);

// The parts of that, for those who change one plane at a time: what each plane has by itself, and
// all of it with the planes on each other.
struct PlaneTerms {
  double swing = 0.0;
  double detail = 0.0;
  double curve = 0.0;
  double steps = 0.0;
};
PlaneTerms planeTerms(const PrintedScreen& print, const Conditions& conditions);
Quality colourQuality(const std::array<PlaneTerms, 4>& planes, const Superposition& superposed);

}  // namespace gdi::screenquality
