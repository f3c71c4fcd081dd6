// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A screen from the order in which its pixels darken.
#pragma once

#include <cstdint>
#include <span>

#include "tools/makescreens/tone.h"
#include "tools/screenquality/Screen.h"

namespace gdi::screenquality {

// Each level has darkened the first units of the order, one step of the pixel a unit, as many as
// `levels` says. Requires: counts that never fall and are no more than there are units.
Screen orderedScreen(const Tile& tile, int steps, std::span<const std::uint32_t> order,
                     const makescreens::LevelUnits& levels);

}  // namespace gdi::screenquality
