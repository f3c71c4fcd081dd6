// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/makescreens/growth.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <span>

namespace gdi::makescreens {
namespace {

// How one unit crowds the pixels around it: three Gaussians, their widths in cells.
struct Crowding {
  double weight;
  double width;
};
constexpr std::array<Crowding, 3> kCrowding{{{0.5, 0.5}, {0.3, 1.0}, {0.2, 2.0}}};

// One side of a Gaussian that wraps round `length` pixels; its sum is 1.
std::vector<double> wrappedGaussian(int length, double sigma) {
  std::vector<double> side(static_cast<std::size_t>(length), 0.0);
  const int reach = static_cast<int>(std::ceil(6.0 * sigma)) + length;
  double sum = 0.0;
  for (int offset = -reach; offset <= reach; ++offset) {
    const double value = std::exp(-0.5 * offset * offset / (sigma * sigma));
    side[static_cast<std::size_t>((offset % length + length) % length)] += value;
    sum += value;
  }
  for (double& value : side) {
    value /= sum;
  }
  return side;
}

// What one unit adds to the pixel that lies (x, y) further on, in whole-cell shares.
std::vector<std::int64_t> crowdingKernel(const Tile& tile, double cellWidth, double unitWeight) {
  std::vector<double> sum(static_cast<std::size_t>(tile.pixels()), 0.0);
  for (const Crowding& part : kCrowding) {
    const std::vector<double> across = wrappedGaussian(tile.width, part.width * cellWidth);
    const std::vector<double> down = wrappedGaussian(tile.height, part.width * cellWidth);
    std::size_t index = 0;
    for (const double rowValue : down) {
      for (const double value : across) {
        sum[index++] += part.weight * rowValue * value;
      }
    }
  }
  std::vector<std::int64_t> kernel;
  kernel.reserve(sum.size());
  for (const double value : sum) {
    kernel.push_back(std::llround(value * unitWeight * static_cast<double>(kWholeCell)));
  }
  return kernel;
}

// What one direction of growth works on: dots out of white, or holes out of solid.
struct Direction {
  std::vector<std::int64_t> shares;   // of each pixel's units, in the order in which they come
  std::vector<std::int64_t> means;    // of each pixel as a whole
  std::vector<std::uint32_t> limits;  // units that each pixel may take
  std::vector<std::uint32_t> cells;   // the cell of each pixel
  std::uint32_t leastUnits;           // that a begun cell is given before another is begun
};

class Grower {
 public:
  Grower(const Tile& tile, std::span<const std::int64_t> kernel, const GrowthStart& start)
      : tile_(tile), kernel_(kernel) {
    // Of pixels that are equally good the first from the start onwards is taken.
    const auto startX = static_cast<int>(start.x * tile.width);
    const auto startY = static_cast<int>(start.y * tile.height);
    for (int y = 0; y < tile.height; ++y) {
      for (int x = 0; x < tile.width; ++x) {
        visits_.push_back(static_cast<std::uint32_t>((y + startY) % tile.height * tile.width +
                                                     (x + startX) % tile.width));
      }
    }
  }

  // The pixels of the first `count` units.
  [[nodiscard]] std::vector<std::uint32_t> grow(const Direction& direction, int steps,
                                                std::size_t count) const {
    Progress progress{std::vector<std::uint32_t>(visits_.size(), 0),
                      std::vector<std::uint32_t>(visits_.size(), 0),
                      std::vector<std::int64_t>(visits_.size(), 0)};
    std::vector<std::uint32_t> order;
    std::uint32_t pixel = 0;
    while (order.size() < count) {
      const std::uint32_t lastCell = direction.cells[pixel];
      const std::uint32_t lastUnits = progress.cellUnits[lastCell];
      const bool begun = lastUnits > 0 && lastUnits < direction.leastUnits;
      if (!begun || !findCorePixel(direction, progress, lastCell, pixel)) {
        if (!findPixel(direction, progress, steps, pixel)) {
          break;
        }
        const std::uint32_t cell = direction.cells[pixel];
        if (progress.cellUnits[cell] == 0) {
          findCorePixel(direction, progress, cell, pixel);
        }
      }
      order.push_back(pixel);
      ++progress.taken[pixel];
      ++progress.cellUnits[direction.cells[pixel]];
      crowd(progress.crowded, pixel);
    }
    return order;
  }

 private:
  struct Progress {
    std::vector<std::uint32_t> taken;      // units of each pixel
    std::vector<std::uint32_t> cellUnits;  // units of each cell
    std::vector<std::int64_t> crowded;
  };

  // The pixel whose next unit comes soonest, crowded places put off. False when all are full.
  bool findPixel(const Direction& direction, const Progress& progress, int steps,
                 std::uint32_t& found) const {
    std::int64_t least = std::numeric_limits<std::int64_t>::max();
    for (const std::uint32_t pixel : visits_) {
      const std::uint32_t taken = progress.taken[pixel];
      if (taken >= direction.limits[pixel]) {
        continue;
      }
      const std::size_t unit = std::size_t{pixel} * static_cast<std::size_t>(steps) + taken;
      const std::int64_t score = direction.shares[unit] + progress.crowded[pixel];
      if (score >= least) {
        continue;
      }
      least = score;
      found = pixel;
    }
    return least != std::numeric_limits<std::int64_t>::max();
  }

  // The innermost pixel of the cell that is not full: so dots begin compact and alike. False, and
  // `found` stays, when all are full.
  bool findCorePixel(const Direction& direction, const Progress& progress, std::uint32_t cell,
                     std::uint32_t& found) const {
    std::int64_t least = std::numeric_limits<std::int64_t>::max();
    for (const std::uint32_t pixel : visits_) {
      if (direction.cells[pixel] != cell) {
        continue;
      }
      if (progress.taken[pixel] >= direction.limits[pixel]) {
        continue;
      }
      if (direction.means[pixel] >= least) {
        continue;
      }
      least = direction.means[pixel];
      found = pixel;
    }
    return least != std::numeric_limits<std::int64_t>::max();
  }

  void crowd(std::vector<std::int64_t>& crowded, std::uint32_t pixel) const {
    const auto width = static_cast<std::size_t>(tile_.width);
    const auto height = static_cast<std::size_t>(tile_.height);
    const std::size_t atX = pixel % width;
    const std::size_t atY = pixel / width;
    for (std::size_t y = 0; y < height; ++y) {
      const std::span row = kernel_.subspan((y + height - atY) % height * width, width);
      std::int64_t* to = &crowded[y * width];
      for (std::size_t x = 0; x < atX; ++x) {
        to[x] += row[x + width - atX];
      }
      for (std::size_t x = atX; x < width; ++x) {
        to[x] += row[x - atX];
      }
    }
  }

  Tile tile_;
  std::span<const std::int64_t> kernel_;
  std::vector<std::uint32_t> visits_;
};

}  // namespace

std::vector<std::uint32_t> growthOrder(const Lattice& lattice, const Tile& tile, int steps,
                                       double softEdge, const GrowthRule& rule,
                                       const GrowthStart& start) {
  const auto pixels = static_cast<std::size_t>(tile.pixels());
  const auto unitsPerPixel = static_cast<std::uint32_t>(steps);
  const std::size_t units = pixels * unitsPerPixel;
  const std::vector<std::int64_t> kernel =
      crowdingKernel(tile, rule.reach * std::sqrt(lattice.cellArea()), rule.evenness / steps);
  const Grower grower(tile, kernel, start);

  const Direction dots{spotShares(lattice, tile, steps, softEdge, rule.dots),
                       spotShares(lattice, tile, 1, 0.0, rule.dots),
                       std::vector<std::uint32_t>(pixels, unitsPerPixel),
                       cellNumbers(lattice, tile, CellsAround::kDots),
                       static_cast<std::uint32_t>(rule.leastDot) * unitsPerPixel};
  std::vector<std::uint32_t> order = grower.grow(dots, steps, units / 2);

  Direction holes{spotShares(lattice, tile, steps, softEdge, rule.holes),
                  spotShares(lattice, tile, 1, 0.0, rule.holes), dots.limits,
                  cellNumbers(lattice, tile, CellsAround::kHoles),
                  static_cast<std::uint32_t>(rule.leastHole) * unitsPerPixel};
  for (const std::uint32_t pixel : order) {
    --holes.limits[pixel];
  }
  for (std::size_t first = 0; first < units; first += unitsPerPixel) {
    const auto begin = holes.shares.begin() + static_cast<std::ptrdiff_t>(first);
    std::reverse(begin, begin + steps);
  }
  for (std::int64_t& share : holes.shares) {
    share = kWholeCell - share;
  }
  for (std::int64_t& share : holes.means) {
    share = kWholeCell - share;
  }
  const std::vector<std::uint32_t> backwards = grower.grow(holes, steps, units - order.size());
  order.insert(order.end(), backwards.rbegin(), backwards.rend());
  return order;
}

}  // namespace gdi::makescreens
