// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/searchscreens/Score.h"

#include <algorithm>
#include <cstddef>

namespace gdi::searchscreens {

double Score::of(const Page& page, double j, double most) {
  double score = j;
  for (std::size_t i = 0; i < rivals_.size() && score <= most; ++i) {
    const Rival& rival = rivals_[i];
    const bool nominal = rival.other.conditions == *nominal_;
    score += raisedBy((nominal ? j : page.jUnder(rival.other.conditions)) / rival.j);
    if (score > most) {
      const auto first = rivals_.begin();
      std::rotate(first, first + static_cast<std::ptrdiff_t>(i),
                  first + static_cast<std::ptrdiff_t>(i) + 1);
    }
  }
  return score;
}

double raisedBy(double share) {
  constexpr double kAhead = 0.99;
  constexpr double kLost = 1.02;
  constexpr double kSlope = 10.0;
  return kSlope * (std::clamp(share, kAhead, kLost) - kAhead);
}

}  // namespace gdi::searchscreens
