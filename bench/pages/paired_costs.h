// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The filter against the floor: one page at one quality, both in turn, several times.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "bench/pages/PageRaster.h"

namespace gdi::bench {

struct Programs {
  std::filesystem::path floor;   // reads the raster and nothing else
  std::filesystem::path filter;  // whose queue is named "bench"
};

struct PairedCosts {
  double floor = 0;   // seconds of the processor, median
  double filter = 0;  // likewise
  double ratio = 0;   // of filter to floor, pair by pair: median, least, most
  double leastRatio = 0;
  double mostRatio = 0;
  double mebibytes = 0;  // the filter's most resident memory in any run
};

// Runs a pair once to fill caches, then `runs` pairs, at least 1. Nothing when one fails, which
// standard error has been told.
std::optional<PairedCosts> measurePairs(const Programs& programs, const std::string& quality,
                                        const PageRaster& raster, int runs);

}  // namespace gdi::bench
