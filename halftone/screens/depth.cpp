// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "halftone/screens/depth.h"

namespace gdi {

bool isValidDepth(int depth) {
  return depth == 1 || depth == 2 || depth == 4 || depth == 8;
}

// A negative exponent is not refused: docs/quirks.md, "Negative exponents give the base".
std::int64_t integerPower(int base, int exponent) {
  if (exponent == 0) {
    return 1;
  }
  auto power = static_cast<std::uint64_t>(base);
  for (int i = 1; i < exponent; ++i) {
    power *= static_cast<std::uint64_t>(base);
  }
  return static_cast<std::int64_t>(power);
}

}  // namespace gdi
