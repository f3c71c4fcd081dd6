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
  constexpr double kLost = 1.06;
  const double counted = std::min(share, kLost);
  return 10.0 * std::max(0.0, counted - kAhead) + 20.0 * std::max(0.0, counted - 1.0);
}

}  // namespace gdi::searchscreens
