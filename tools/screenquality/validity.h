// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The rules that every bundled screen keeps, beyond being readable.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "tools/screenquality/bundled_sets.h"

namespace gdi::screenquality {

constexpr std::uintmax_t kSmallestFile = 12'000;  // bytes
constexpr std::uintmax_t kLargestFile = 150'000;
constexpr std::int64_t kLongestRepeat = 128;  // words of a flat tint: the reach of a copy code
constexpr std::size_t kFewestTones = 250;     // different means of the tile among the 256 levels

// The rules that the set breaks, each in a line without a line feed that names the set, the screen
// and where in it: of one rule and screen the first breach alone. Empty for a valid set.
std::vector<std::string> breachesOf(const ScreenSet& set);

}  // namespace gdi::screenquality
