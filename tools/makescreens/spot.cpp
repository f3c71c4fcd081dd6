// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/makescreens/spot.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <numeric>

namespace gdi::makescreens {
namespace {

constexpr int kPointsAcross = 8;
constexpr std::size_t kPoints = std::size_t{kPointsAcross} * kPointsAcross;

constexpr int kFractionBits = 30;
constexpr std::int64_t kOne = std::int64_t{1} << kFractionBits;

std::int64_t thousandths(double value) {
  return std::lround(value * 1000.0);
}

// cos(2 pi turn / scale) in 2^-30. Angles that mirror each other give the same number, so that
// pixels alike by symmetry stay exactly alike. Requires: scale divisible by 4.
std::int64_t cosineOfTurn(std::int64_t turn, std::int64_t scale) {
  std::int64_t angle = turn % scale;
  angle = angle < 0 ? angle + scale : angle;
  angle = std::min(angle, scale - angle);
  const bool negative = angle > scale / 4;
  angle = negative ? scale / 2 - angle : angle;
  const double radians =
      2.0 * std::numbers::pi * static_cast<double>(angle) / static_cast<double>(scale);
  const auto cosine =
      static_cast<std::int64_t>(std::llround(std::ldexp(std::cos(radians), kFractionBits)));
  return negative ? -cosine : cosine;
}

// The spot function at the 8 x 8 points of each pixel: high inside dots, low inside holes.
std::vector<std::int64_t> spotValues(const Lattice& lattice, const Tile& tile,
                                     const SpotShape& shape) {
  const std::int64_t scale = cellScale(lattice);
  const std::int64_t ellipse = thousandths(shape.ellipse);
  const std::int64_t roundness = thousandths(shape.roundness);
  const std::int64_t pairs = thousandths(shape.pairs);
  std::vector<std::int64_t> values;
  values.reserve(static_cast<std::size_t>(tile.pixels()) * kPoints);
  for (int y = 0; y < tile.height; ++y) {
    for (int x = 0; x < tile.width; ++x) {
      for (int point = 0; point < kPointsAcross * kPointsAcross; ++point) {
        const CellPoint at = cellPoint(lattice, 16 * x + 2 * (point % kPointsAcross) + 1,
                                       16 * y + 2 * (point / kPointsAcross) + 1);
        const std::int64_t u = cosineOfTurn(at.u, scale);
        const std::int64_t v = cosineOfTurn(at.v, scale);
        const std::int64_t pair = cosineOfTurn(at.u + at.v, 2 * scale);
        values.push_back(1000 * u + ellipse * v + roundness * (u * v / kOne) + pairs * pair);
      }
    }
  }
  return values;
}

// One mean share for each pixel, and `steps` shares.
struct PixelShares {
  std::vector<std::int64_t> means;
  std::vector<std::int64_t> steps;
};

PixelShares sharesOf(const Lattice& lattice, const Tile& tile, int steps, double softEdge,
                     const SpotShape& shape) {
  const std::vector<std::int64_t> values = spotValues(lattice, tile, shape);
  std::vector<std::int64_t> sorted = values;
  std::sort(sorted.begin(), sorted.end());
  // The share of points higher than this one; points alike take the middle of their places.
  const auto shareOf = [&sorted](std::int64_t value) {
    const auto [low, high] = std::equal_range(sorted.begin(), sorted.end(), value);
    const std::int64_t twice = (sorted.end() - high) + (sorted.end() - low);
    return twice * (kWholeCell / 2) / static_cast<std::int64_t>(sorted.size());
  };

  const auto soft = static_cast<std::int64_t>(std::lround(softEdge * 1000.0));
  PixelShares shares;
  std::array<std::int64_t, kPoints> points{};
  for (std::size_t first = 0; first < values.size(); first += kPoints) {
    for (std::size_t i = 0; i < kPoints; ++i) {
      points.at(i) = shareOf(values[first + i]);
    }
    std::sort(points.begin(), points.end());
    const std::int64_t mean = std::accumulate(points.begin(), points.end(), std::int64_t{0}) /
                              static_cast<std::int64_t>(kPoints);
    shares.means.push_back(mean);
    for (int step = 0; step < steps; ++step) {
      const std::size_t middle =
          static_cast<std::size_t>(2 * step + 1) * kPoints / (2 * static_cast<std::size_t>(steps));
      shares.steps.push_back(mean + (points.at(middle) - mean) * soft / 1000);
    }
  }
  return shares;
}

// The different means, rising.
std::vector<std::int64_t> kindsOf(std::vector<std::int64_t> means) {
  std::sort(means.begin(), means.end());
  means.erase(std::unique(means.begin(), means.end()), means.end());
  return means;
}

}  // namespace

std::size_t pixelKinds(const Lattice& lattice, const SpotShape& shape) {
  Tile tile = smallestTile(lattice);
  if (shape.pairs != 0.0 && !holdsPairs(lattice, tile)) {
    tile = {2 * tile.width, 2 * tile.height};
  }
  return kindsOf(sharesOf(lattice, tile, 1, 0.0, shape).means).size();
}

std::vector<std::int64_t> spotShares(const Lattice& lattice, const Tile& tile, int steps,
                                     double softEdge, const SpotShape& shape) {
  const PixelShares shares = sharesOf(lattice, tile, steps, softEdge, shape);
  if (shape.order.empty()) {
    return shares.steps;
  }
  const std::vector<std::int64_t> kinds = kindsOf(shares.means);
  const auto kindOf = [&kinds](std::int64_t mean) {
    return static_cast<std::size_t>(std::lower_bound(kinds.begin(), kinds.end(), mean) -
                                    kinds.begin());
  };
  std::vector<std::size_t> oneOfKind(kinds.size());
  for (std::size_t pixel = 0; pixel < shares.means.size(); ++pixel) {
    oneOfKind[kindOf(shares.means[pixel])] = pixel;
  }
  std::vector<std::int64_t> ordered;
  ordered.reserve(shares.steps.size());
  for (const std::int64_t mean : shares.means) {
    const auto place = static_cast<std::size_t>(shape.order[kindOf(mean)]);
    const auto from = shares.steps.begin() + static_cast<std::ptrdiff_t>(oneOfKind[place]) * steps;
    ordered.insert(ordered.end(), from, from + steps);
  }
  return ordered;
}

}  // namespace gdi::makescreens
