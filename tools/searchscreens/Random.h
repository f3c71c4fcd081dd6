// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Numbers by chance, the same for a seed on every system.
#pragma once

#include <cstdint>
#include <random>

namespace gdi::searchscreens {

class Random {
 public:
  explicit Random(std::uint32_t seed) : engine_(seed) {}

  // 0 <= number < 1.
  double share() { return static_cast<double>(engine_()) / 4294967296.0; }
  // Requires: least <= most.
  int whole(int least, int most) {
    return least + static_cast<int>(share() * (static_cast<double>(most) - least + 1.0));
  }
  // About normal: mean 0, deviation 1, never beyond 6.
  double normal() {
    double sum = -6.0;
    for (int i = 0; i < 12; ++i) {
      sum += share();
    }
    return sum;
  }

 private:
  std::mt19937 engine_;
};

}  // namespace gdi::searchscreens
