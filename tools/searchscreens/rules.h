// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What the screens of a page have to keep to be bundled.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "tools/makescreens/parameters.h"

namespace gdi::searchscreens {

using makescreens::ScreenParameters;

constexpr std::int64_t kMostRepeatWords = 32;  // after which a flat tint repeats for the codec

// The rule that the screen at `place` breaks, alone or beside the page's others, in a line without
// a line feed; empty when it keeps all: a tile that the parameter file may state, a file of usual
// size, a flat tint that the codec can copy, no wave in common with another plane.
std::string breachOf(std::span<const ScreenParameters> page, std::size_t place, int depth);

}  // namespace gdi::searchscreens
