// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/baselines.h"

#include <cmath>
#include <cstdint>
#include <vector>

#include "tools/makescreens/growth.h"
#include "tools/makescreens/lattice.h"
#include "tools/makescreens/tone.h"
#include "tools/printmodel/PrintModel.h"
#include "tools/screenquality/ordered_screen.h"
#include "tools/screenquality/void_and_cluster.h"

namespace gdi::screenquality {
namespace {

using makescreens::Lattice;
using makescreens::LevelUnits;

// The pixels that take one step each, in that order, until all are solid.
using UnitOrder = std::vector<std::uint32_t>;

LevelUnits evenLevels(std::size_t units) {
  LevelUnits levels{};
  for (std::size_t level = 0; level < kLevels; ++level) {
    levels.at(level) = (units * level + (kLevels - 1) / 2) / (kLevels - 1);
  }
  return levels;
}

LevelUnits compensatedLevels(const Tile& tile, int steps, const UnitOrder& order,
                             const PaperModel& paper, double gain) {
  const printmodel::PrintModel model(paper, tile, steps);
  std::vector<std::uint8_t> values(tile.size(), 0);
  std::size_t unit = 0;
  const makescreens::PrintedCurve curve(order.size(), [&](std::size_t units) {
    for (; unit < units; ++unit) {
      ++values[order[unit]];
    }
    return model.printedArea(values);
  });
  return makescreens::nearestUnits(curve, gain);
}

// All pixels take their first step, then all their second.
UnitOrder dispersed(const std::vector<std::uint32_t>& pixels, int steps) {
  UnitOrder order;
  for (int step = 0; step < steps; ++step) {
    order.insert(order.end(), pixels.begin(), pixels.end());
  }
  return order;
}

FourScreens bayer(int steps, const PaperModel& /*paper*/, double /*gain*/) {
  constexpr unsigned kSide = 16;
  std::vector<std::uint32_t> order(std::size_t{kSide} * kSide);
  for (unsigned y = 0; y < kSide; ++y) {
    for (unsigned x = 0; x < kSide; ++x) {
      unsigned rank = 0;
      for (unsigned bit = 0; bit < 4; ++bit) {
        rank = rank << 2U | ((x ^ y) >> bit & 1U) << 1U | (y >> bit & 1U);
      }
      order[rank] = y * kSide + x;
    }
  }
  const Tile tile{kSide, kSide};
  const UnitOrder units = dispersed(order, steps);
  const Screen screen = orderedScreen(tile, steps, units, evenLevels(units.size()));
  return {screen, screen, screen, screen};
}

// A pixel takes all its steps before the next one begins, as dots are grown from thresholds.
UnitOrder clustered(const Lattice& lattice, const Tile& tile, int steps) {
  UnitOrder order;
  for (const std::uint32_t pixel : makescreens::growthOrder(lattice, tile, 1, 0.0, {}, {})) {
    order.insert(order.end(), static_cast<std::size_t>(steps), pixel);
  }
  return order;
}

FourScreens clusteredAt45Degrees(int steps, const PaperModel& paper, double gain) {
  constexpr Lattice kLattice{8, 1, 1, -1, 1, 10, 13};
  constexpr Tile kTile{16, 16};
  const UnitOrder order = clustered(kLattice, kTile, steps);
  const Screen screen =
      orderedScreen(kTile, steps, order, compensatedLevels(kTile, steps, order, paper, gain));
  return {screen, screen, screen, screen};
}

FourScreens clusteredAtRationalAngles(int steps, const PaperModel& /*paper*/, double /*gain*/) {
  constexpr std::array<Lattice, 4> kLattices{{{20, 3, 1, -1, 3, 10, 13},
                                              {20, 1, 3, -3, 1, 10, 13},
                                              {6, 1, 0, 0, 1, 10, 13},
                                              {8, 1, 1, -1, 1, 10, 13}}};
  FourScreens screens;
  for (std::size_t plane = 0; plane < screens.size(); ++plane) {
    const Lattice& lattice = kLattices.at(plane);
    const Tile tile = makescreens::tileWithCells(lattice, 8);
    const UnitOrder order = clustered(lattice, tile, steps);
    screens.at(plane) = orderedScreen(tile, steps, order, evenLevels(order.size()));
  }
  return screens;
}

constexpr Tile kBlueNoiseTile{64, 64};

// The same for every paper, and slow to find.
const std::array<std::vector<std::uint32_t>, 4>& blueNoiseOrders() {
  static const std::array<std::vector<std::uint32_t>, 4> orders{
      voidAndCluster(kBlueNoiseTile, 1), voidAndCluster(kBlueNoiseTile, 2),
      voidAndCluster(kBlueNoiseTile, 3), voidAndCluster(kBlueNoiseTile, 4)};
  return orders;
}

FourScreens blueNoise(int steps, const PaperModel& paper, double gain) {
  FourScreens screens;
  for (std::size_t plane = 0; plane < screens.size(); ++plane) {
    const UnitOrder order = dispersed(blueNoiseOrders().at(plane), steps);
    screens.at(plane) = orderedScreen(kBlueNoiseTile, steps, order,
                                      compensatedLevels(kBlueNoiseTile, steps, order, paper, gain));
  }
  return screens;
}

}  // namespace

const std::array<Baseline, 4> kBaselines{{
    {"Bayer", bayer},
    {"45 degrees", clusteredAt45Degrees},
    {"rational angles", clusteredAtRationalAngles},
    {"blue noise", blueNoise},
}};

}  // namespace gdi::screenquality
