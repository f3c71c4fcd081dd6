// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/void_and_cluster.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

namespace gdi::screenquality {
namespace {

// The squared distance of two pixels of a tile that repeats.
int squaredDistance(const Tile& tile, std::uint32_t one, std::uint32_t other) {
  const auto first = static_cast<int>(one);
  const auto second = static_cast<int>(other);
  int across = std::abs(first % tile.width - second % tile.width);
  int down = std::abs(first / tile.width - second / tile.width);
  across = std::min(across, tile.width - across);
  down = std::min(down, tile.height - down);
  return across * across + down * down;
}

TEST(VoidAndCluster, TakesEveryPixelOnce) {
  for (const Tile& tile : {Tile{16, 16}, Tile{13, 7}, Tile{10, 1}, Tile{3, 3}, Tile{1, 1}}) {
    std::vector<std::uint32_t> order = voidAndCluster(tile, 3);
    ASSERT_EQ(order.size(), tile.size());
    std::sort(order.begin(), order.end());
    for (std::uint32_t pixel = 0; pixel < order.size(); ++pixel) {
      EXPECT_EQ(order[pixel], pixel) << tile.width << " x " << tile.height;
    }
  }
}

TEST(VoidAndCluster, TheFirstTenthIsSpreadEvenly) {
  constexpr Tile kTile{32, 32};
  const std::vector<std::uint32_t> order = voidAndCluster(kTile, 1);
  // 102 pixels in the densest lattice would be 3.4 pixels apart.
  for (std::size_t i = 0; i < 102; ++i) {
    int nearest = std::numeric_limits<int>::max();
    for (std::size_t j = 0; j < 102; ++j) {
      if (j != i) {
        nearest = std::min(nearest, squaredDistance(kTile, order[i], order[j]));
      }
    }
    EXPECT_GE(nearest, 4);
    EXPECT_LE(nearest, 25);
  }
}

TEST(VoidAndCluster, TheLastTenthsHolesAreSpreadToo) {
  constexpr Tile kTile{32, 32};
  const std::vector<std::uint32_t> order = voidAndCluster(kTile, 1);
  for (std::size_t i = 974; i < 1024; ++i) {
    for (std::size_t j = i + 1; j < 1024; ++j) {
      EXPECT_GE(squaredDistance(kTile, order[i], order[j]), 4);
    }
  }
}

TEST(VoidAndCluster, ASeedGivesOneOrderAndAnotherSeedAnother) {
  constexpr Tile kTile{16, 16};
  EXPECT_EQ(voidAndCluster(kTile, 5), voidAndCluster(kTile, 5));
  EXPECT_NE(voidAndCluster(kTile, 5), voidAndCluster(kTile, 6));
}

}  // namespace
}  // namespace gdi::screenquality
