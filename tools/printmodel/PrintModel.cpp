// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/printmodel/PrintModel.h"

#include <numeric>
#include <vector>

namespace gdi::printmodel {

PrintModel::PrintModel(const PaperModel& paper, const Tile& tile, int steps)
    : tile_(tile), solid_(paper.solid), engine_(paper, steps), light_(paper.spread) {
}

double PrintModel::printedArea(std::span<const std::uint8_t> values) const {
  const std::vector<double> coverage = engine_.coverage(tile_, engine_.exposure(tile_, values));
  const std::vector<double> light = light_.reflectance(tile_, transmissionOf(coverage, solid_));
  const double reflected =
      std::accumulate(light.begin(), light.end(), 0.0) / static_cast<double>(light.size());
  return (1.0 - reflected) / (1.0 - solid_);
}

}  // namespace gdi::printmodel
