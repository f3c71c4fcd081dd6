// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Which bit depths screens know, and how many levels a depth has.
#pragma once

#include <cstdint>

namespace gdi {

// True exactly for 1, 2, 4 and 8.
[[nodiscard]] bool isValidDepth(int depth);

// `base` to the power of `exponent`; `base` itself for a negative exponent. Products outside 64
// bits keep their low 64 bits.
[[nodiscard]] std::int64_t integerPower(int base, int exponent);

}  // namespace gdi
