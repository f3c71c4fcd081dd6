// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What a screen's tile has to hold, beyond each of its numbers being in range, and what its orders
// of pixels have to name.
#pragma once

#include <string>

#include "tools/makescreens/parameters.h"

namespace gdi::makescreens {

// What is wrong with the tile of a screen of `depth` bits a pixel, in a line without a line feed;
// empty when nothing is. Requires: a lattice with n >= 1.
std::string tileProblem(const ScreenParameters& screen, int depth);

}  // namespace gdi::makescreens
