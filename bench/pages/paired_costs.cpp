// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/pages/paired_costs.h"

#include <algorithm>
#include <vector>

#include "bench/pages/ProcessCost.h"

namespace gdi::bench {

namespace {

// Sorts the values, of which there is one at least; the middle one.
double median(std::vector<double>& values) {
  std::ranges::sort(values);
  return values[values.size() / 2];
}

}  // namespace

std::optional<PairedCosts> measurePairs(const Programs& programs, const std::string& quality,
                                        const PageRaster& raster, int runs) {
  const std::vector<std::string> words{
      "bench", "1", "bench", raster.path.stem(), "1", "Gradiation=" + quality};
  std::vector<double> floors;
  std::vector<double> filters;
  std::vector<double> ratios;
  PairedCosts costs;
  for (int run = -1; run < runs; ++run) {
    const auto least = costOfProcess(programs.floor, {programs.floor}, raster.path);
    const auto cost = least ? costOfProcess(programs.filter, words, raster.path) : std::nullopt;
    if (!cost) {
      return std::nullopt;
    }
    if (run < 0) {
      continue;
    }
    floors.push_back(least->seconds);
    filters.push_back(cost->seconds);
    ratios.push_back(cost->seconds / least->seconds);
    costs.mebibytes = std::max(costs.mebibytes, cost->mebibytes);
  }
  costs.floor = median(floors);
  costs.filter = median(filters);
  costs.ratio = median(ratios);
  costs.leastRatio = ratios.front();
  costs.mostRatio = ratios.back();
  return costs;
}

}  // namespace gdi::bench
