// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/makescreens/waves.h"

#include <algorithm>
#include <array>

namespace gdi::makescreens {
namespace {

// A wave (x, y) / n in cycles a pixel.
struct Wave {
  int x, y, n;
};

std::array<Wave, 4> wavesOf(const Lattice& lattice) {
  const auto& [n, a, b, c, d, phaseU, phaseV] = lattice;
  return {{{a, b, n}, {c, d, n}, {a + c, b + d, n}, {a - c, b - d, n}}};
}

bool alike(const Wave& first, const Wave& second) {
  const int x1 = first.x * second.n;
  const int y1 = first.y * second.n;
  const int x2 = second.x * first.n;
  const int y2 = second.y * first.n;
  return (x1 == x2 && y1 == y2) || (x1 == -x2 && y1 == -y2);
}

}  // namespace

bool shareAWave(const Lattice& first, const Lattice& second) {
  const std::array<Wave, 4> waves = wavesOf(first);
  return std::ranges::any_of(wavesOf(second), [&](const Wave& other) {
    return std::ranges::any_of(waves, [&](const Wave& one) { return alike(one, other); });
  });
}

}  // namespace gdi::makescreens
