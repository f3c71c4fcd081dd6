// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/void_and_cluster.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

namespace gdi::screenquality {
namespace {

constexpr double kSigma = 1.5;

// A pattern of set pixels and how crowded each place is by them.
class Pattern {
 public:
  explicit Pattern(const Tile& tile)
      : tile_(tile), set_(tile.size(), false), crowded_(tile.size(), 0.0) {
    for (int y = 0; y < tile.height; ++y) {
      for (int x = 0; x < tile.width; ++x) {
        const int across = std::min(x, tile.width - x);
        const int down = std::min(y, tile.height - y);
        kernel_.push_back(std::exp(-0.5 * (across * across + down * down) / (kSigma * kSigma)));
      }
    }
  }

  [[nodiscard]] bool isSet(std::size_t pixel) const { return set_[pixel]; }

  void change(std::size_t pixel, bool toSet) {
    set_[pixel] = toSet;
    const int atX = static_cast<int>(pixel) % tile_.width;
    const int atY = static_cast<int>(pixel) / tile_.width;
    for (int y = 0; y < tile_.height; ++y) {
      for (int x = 0; x < tile_.width; ++x) {
        const std::size_t distance =
            printmodel::wrapped(y - atY, tile_.height) * static_cast<std::size_t>(tile_.width) +
            printmodel::wrapped(x - atX, tile_.width);
        crowded_[static_cast<std::size_t>(y * tile_.width + x)] +=
            toSet ? kernel_[distance] : -kernel_[distance];
      }
    }
  }

  // The set pixel that is crowded most, or the blank one that is crowded least.
  [[nodiscard]] std::size_t tightestCluster() const { return most(true, 1.0); }
  [[nodiscard]] std::size_t widestVoid() const { return most(false, -1.0); }

 private:
  [[nodiscard]] std::size_t most(bool ofSet, double sign) const {
    double best = -std::numeric_limits<double>::max();
    std::size_t found = 0;
    for (std::size_t pixel = 0; pixel < set_.size(); ++pixel) {
      if (set_[pixel] == ofSet && sign * crowded_[pixel] > best) {
        best = sign * crowded_[pixel];
        found = pixel;
      }
    }
    return found;
  }

  Tile tile_;
  std::vector<bool> set_;
  std::vector<double> crowded_;
  std::vector<double> kernel_;
};

// A tenth of the pixels, strewn, then moved from clusters into voids until that changes nothing.
Pattern firstPattern(const Tile& tile, std::uint32_t seed) {
  Pattern pattern(tile);
  std::uint32_t state = seed * 2654435761U;
  for (std::size_t count = 0; count < tile.size() / 10;) {
    state = state * 1664525U + 1013904223U;
    const std::size_t pixel = (state >> 8U) % tile.size();
    if (!pattern.isSet(pixel)) {
      pattern.change(pixel, true);
      ++count;
    }
  }
  while (true) {
    const std::size_t cluster = pattern.tightestCluster();
    pattern.change(cluster, false);
    const std::size_t gap = pattern.widestVoid();
    pattern.change(gap, true);
    if (gap == cluster) {
      return pattern;
    }
  }
}

}  // namespace

std::vector<std::uint32_t> voidAndCluster(const Tile& tile, std::uint32_t seed) {
  const Pattern first = firstPattern(tile, seed);
  std::vector<std::uint32_t> order;
  Pattern thinning = first;
  for (std::size_t count = 0; count < tile.size() / 10; ++count) {
    const std::size_t pixel = thinning.tightestCluster();
    thinning.change(pixel, false);
    order.push_back(static_cast<std::uint32_t>(pixel));
  }
  std::reverse(order.begin(), order.end());
  Pattern filling = first;
  while (order.size() < tile.size()) {
    const std::size_t pixel = filling.widestVoid();
    filling.change(pixel, true);
    order.push_back(static_cast<std::uint32_t>(pixel));
  }
  return order;
}

}  // namespace gdi::screenquality
