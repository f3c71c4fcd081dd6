// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/makescreens/calm_levels.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <cstddef>
#include <limits>
#include <numbers>
#include <utility>

#include "tools/eye/sight.h"

namespace gdi::makescreens {
namespace {

constexpr double kInches = 12.0;        // from the eye to the paper
constexpr double kShortestWave = 8.0;   // pixels: shorter ones are the cells themselves
constexpr double kCoarseWeight = 3.25;  // 1 as pattern, 1.5^2 as coarse pattern
constexpr double kToneWeight = 4.0;     // of a tone's distance from its target

// A wave of the tile and how much of it the units so far make.
struct Wave {
  double weight;                             // of its variance
  std::vector<std::complex<double>> across;  // its phase at each column
  std::vector<std::complex<double>> down;    // and at each row
  std::complex<double> sum;
};

std::vector<std::complex<double>> phases(double cyclesPerPixel, int pixels) {
  std::vector<std::complex<double>> result;
  result.reserve(static_cast<std::size_t>(pixels));
  for (int pixel = 0; pixel < pixels; ++pixel) {
    result.push_back(std::polar(1.0, 2.0 * std::numbers::pi * cyclesPerPixel * pixel));
  }
  return result;
}

// One of each pair of opposite waves.
std::vector<Wave> longWaves(const Tile& tile) {
  const double degree = eye::pixelsPerDegree(kInches);
  std::vector<Wave> waves;
  for (int y = 0; 2 * y <= tile.height; ++y) {
    for (int x = y == 0 ? 1 : -tile.width / 2; 2 * x <= tile.width; ++x) {
      const double across = static_cast<double>(x) / tile.width;
      const double down = static_cast<double>(y) / tile.height;
      const double frequency = std::hypot(across, down);
      if (frequency * kShortestWave > 1.0 + 1e-9) {
        continue;
      }
      const double seen = eye::lightnessSeen(across * degree, down * degree);
      const bool coarse = frequency * eye::kDotsPerInch < eye::kCoarse;
      waves.push_back({2.0 * seen * seen * (coarse ? kCoarseWeight : 1.0),
                       phases(across, tile.width), phases(down, tile.height), 0.0});
    }
  }
  return waves;
}

}  // namespace

std::vector<double> unevennessOf(const Tile& tile, std::span<const std::uint32_t> order) {
  std::vector<Wave> waves = longWaves(tile);
  const auto width = static_cast<std::size_t>(tile.width);
  std::vector<double> result{0.0};
  for (const std::uint32_t pixel : order) {
    double variance = 0.0;
    for (Wave& wave : waves) {
      wave.sum += wave.across[pixel % width] * wave.down[pixel / width];
      variance += wave.weight * std::norm(wave.sum);
    }
    result.push_back(variance);
  }
  return result;
}

LevelUnits calmLevels(const ToneErrors& errors, std::span<const double> unevenness) {
  constexpr double kNever = std::numeric_limits<double>::infinity();
  const std::size_t units = errors.units();
  std::vector<double> costs;
  costs.reserve(units + 1);
  for (std::size_t count = 0; count <= units; ++count) {
    const double slope = errors.slopeAt(count);
    costs.push_back(slope * slope * unevenness[count]);
  }

  // The least sum of all rows of levels so far that end at each count. Which count a row has before
  // its last: the highest below it at which a lesser sum than at all counts before begins.
  std::vector<double> sums(units + 1, kNever);
  sums.front() = 0.0;
  std::array<std::vector<bool>, kLevels> begins;
  for (int level = 1; level < kLevels; ++level) {
    std::vector<bool>& lesser = begins.at(static_cast<std::size_t>(level));
    lesser.assign(units + 1, false);
    std::vector<double> next(units + 1, kNever);
    std::size_t best = 0;
    for (std::size_t count = 1; count <= units; ++count) {
      if (sums[count - 1] < sums[best]) {
        best = count - 1;
        lesser[best] = true;
      }
      next[count] = sums[best] + kToneWeight * errors.at(level, count) + costs[count];
    }
    sums = std::move(next);
  }
  LevelUnits result{};
  std::size_t count = units;
  for (std::size_t level = kLevels - 1; level > 0; --level) {
    result.at(level) = count;
    do {
      --count;
    } while (count > 0 && !begins.at(level)[count]);
  }
  return result;
}

}  // namespace gdi::makescreens
