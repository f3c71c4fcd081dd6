// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What is pictured in black: small parts of pages in input levels.
#pragma once

#include <cstdint>
#include <vector>

#include "tools/screenpictures/plane.h"

namespace gdi::screenpictures {

struct Subject {
  Tile area;                         // what is pictured, and the margin around it
  std::vector<std::uint8_t> levels;  // 0 blank to 255 full, row by row
};

// Two rows of eight steps each from blank to full, and below them a ramp; a third of the height
// each. Requires: a width that is a multiple of 8, a height that is a multiple of 3.
Subject greyWedge(const Tile& pictured);

// A whole landscape.
Subject photograph(const Tile& pictured);

// The part of a page of text, printed in black at 11 point, that begins at column `left` and row
// `top`. Requires: a part of an A4 page, 4800 x 6816 pixels, not on its border.
Subject text(const Tile& pictured, int left, int top);

}  // namespace gdi::screenpictures
