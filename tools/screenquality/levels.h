// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The levels that tones are judged at.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

namespace gdi::screenquality {

// Closer together at both ends, where tones are told apart best and screens are weakest.
inline constexpr std::array<std::size_t, 41> kJudgedLevels{
    2,   4,   6,   8,   11,  14,  17,  21,  25,  30,  35,  41,  48,  55,
    63,  72,  82,  93,  105, 117, 129, 141, 152, 162, 172, 182, 191, 199,
    207, 214, 220, 225, 230, 235, 239, 243, 246, 248, 250, 252, 254};

// Each level's share of the scale: half the way in L* between its neighbours; sums to 1.
std::vector<double> levelWeights(std::span<const double> lightnesses);

// The root of the weighted mean of squares. Requires: weights that sum to 1.
double rootMeanSquare(std::span<const double> values, std::span<const double> weights);

}  // namespace gdi::screenquality
