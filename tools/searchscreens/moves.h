// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Small changes of a screen's numbers.
#pragma once

#include "tools/makescreens/parameters.h"
#include "tools/searchscreens/Random.h"

namespace gdi::searchscreens {

using makescreens::ScreenParameters;

enum class Numbers { kAll, kAllButLattice };

// The screen, of `depth` bits a pixel, with one to three numbers changed by chance. Each stays in
// the range that the parameter file allows it, and has two or three digits behind the point;
// whether they make a tile together is another matter (rules.h).
ScreenParameters changed(ScreenParameters screen, int depth, Numbers numbers, Random& random);

}  // namespace gdi::searchscreens
