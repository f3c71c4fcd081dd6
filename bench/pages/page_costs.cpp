// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Measures whole jobs as processes, the floor and the filter in turn, and prints two tables: pages
// of A4, and a page so small that it tells what starting costs.

#include <array>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <string>

#include "bench/pages/paired_costs.h"

namespace gdi::bench {
namespace {

constexpr std::array kModes{"color", "mono"};
constexpr std::array kQualities{"Fast", "Standard", "Fine"};
constexpr std::array kPages{"text", "graphics", "photograph"};
constexpr std::uint32_t kPageWidth = 4960;  // A4 at 600 dpi
constexpr std::uint32_t kPageHeight = 7016;
constexpr std::uint32_t kSmallSide = 64;
constexpr double kMilliseconds = 1000;

struct Measurement {
  Programs programs;
  std::filesystem::path folder;
  int runs = 0;
};

// A row of the first table, its ratio added to `ratios`; false when measuring failed.
bool printPage(const Measurement& measurement, const char* quality, const char* mode,
               const char* page, double& ratios) {
  const auto raster = findRaster(measurement.folder, page, mode, kPageWidth, kPageHeight);
  const auto costs = raster ? measurePairs(measurement.programs, quality, *raster, measurement.runs)
                            : std::nullopt;
  if (!costs) {
    return false;
  }
  const double planes = planeMebibytes(*raster, quality);
  (void)std::printf(
      "| %s, %s | %s | %.4f | %.4f | **%.2f** | %.2f to %.2f | %.1f | %.1f | %.1f |\n", quality,
      mode, page, costs->floor, costs->filter, costs->ratio, costs->leastRatio, costs->mostRatio,
      planes, costs->mebibytes, costs->mebibytes - planes);
  (void)std::fflush(stdout);
  ratios += costs->ratio;
  return true;
}

bool printPages(const Measurement& measurement) {
  (void)std::printf(
      "| quality | page | floor, s | filter, s | ratio | spread | planes, MiB |"
      " peak, MiB | above planes, MiB |\n|---|---|---|---|---|---|---|---|---|\n");
  for (const char* mode : kModes) {
    for (const char* quality : kQualities) {
      double ratios = 0;
      for (const char* page : kPages) {
        if (!printPage(measurement, quality, mode, page, ratios)) {
          return false;
        }
      }
      (void)std::printf("| %s, %s | mean | | | **%.2f** | | | | |\n", quality, mode,
                        ratios / static_cast<double>(kPages.size()));
    }
  }
  return true;
}

bool printSmallJobs(const Measurement& measurement) {
  (void)std::printf(
      "\n| quality, 64 x 64 pixels | floor, ms | filter, ms | ratio | spread |"
      " peak, MiB |\n|---|---|---|---|---|---|\n");
  for (const char* mode : kModes) {
    for (const char* quality : kQualities) {
      const auto raster = findRaster(measurement.folder, "small", mode, kSmallSide, kSmallSide);
      const auto costs =
          raster ? measurePairs(measurement.programs, quality, *raster, measurement.runs)
                 : std::nullopt;
      if (!costs) {
        return false;
      }
      (void)std::printf("| %s, %s | %.1f | %.1f | %.2f | %.2f to %.2f | %.1f |\n", quality, mode,
                        costs->floor * kMilliseconds, costs->filter * kMilliseconds, costs->ratio,
                        costs->leastRatio, costs->mostRatio, costs->mebibytes);
    }
  }
  return true;
}

// Nothing but a whole number of 1 to 999 is one.
int runsOf(const char* word) {
  int runs = 0;
  const char* const end = word + std::strlen(word);
  const auto [rest, error] = std::from_chars(word, end, runs);
  return error == std::errc() && rest == end && runs > 0 && runs < 1000 ? runs : 0;
}

}  // namespace
}  // namespace gdi::bench

int main(int argc, char** argv) {
  const int runs = argc == 5 ? gdi::bench::runsOf(argv[4]) : 0;
  if (runs == 0) {
    (void)std::fprintf(stderr, "usage: page_costs FLOOR FILTER FOLDER RUNS\n");
    return 2;
  }
  const gdi::bench::Measurement measurement{{argv[1], argv[2]}, argv[3], runs};
  return printPages(measurement) && printSmallJobs(measurement) ? 0 : 1;
}
