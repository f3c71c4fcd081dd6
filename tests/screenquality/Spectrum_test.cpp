// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/Spectrum.h"

#include <array>
#include <cmath>
#include <complex>
#include <cstddef>
#include <numbers>
#include <numeric>
#include <vector>

#include <gtest/gtest.h>

namespace gdi::screenquality {
namespace {

using Field = std::vector<double>;

std::size_t halfSize(const Tile& tile) {
  return static_cast<std::size_t>(tile.width / 2 + 1) * static_cast<std::size_t>(tile.height);
}

Field ones(const Tile& tile) {
  Field shares(halfSize(tile), 1.0);
  return shares;
}

double angle(int turns, int length) {
  return 2.0 * std::numbers::pi * turns / length;
}

// A cosine of so many periods across and down the field.
Field cosine(const Tile& tile, int across, int down) {
  Field field;
  for (int y = 0; y < tile.height; ++y) {
    for (int x = 0; x < tile.width; ++x) {
      field.push_back(std::cos(angle(across * x, tile.width) + angle(down * y, tile.height)));
    }
  }
  return field;
}

// Numbers without symmetry.
Field uneven(const Tile& tile) {
  Field field;
  for (std::size_t i = 0; i < tile.size(); ++i) {
    field.push_back(static_cast<double>(i * i * 37 % 101) / 101.0);
  }
  return field;
}

// A share for each frequency, the same for both directions of a wave.
double shareOf(const Tile& tile, int across, int down) {
  across = across > tile.width / 2 ? across - tile.width : across;
  down = down > tile.height / 2 ? down - tile.height : down;
  return 1.0 / (1.0 + across * across + 0.3 * down * down);
}

Field slantingShares(const Tile& tile) {
  Field shares;
  for (int row = 0; row < tile.height; ++row) {
    for (int column = 0; column <= tile.width / 2; ++column) {
      shares.push_back(shareOf(tile, column, row));
    }
  }
  return shares;
}

// The same by double sums over the whole spectrum.
double slowVarianceSeen(const Tile& tile, const Field& field) {
  double variance = 0.0;
  for (int row = 0; row < tile.height; ++row) {
    for (int column = 0; column < tile.width; ++column) {
      if (row == 0 && column == 0) {
        continue;
      }
      std::complex<double> wave;
      std::size_t i = 0;
      for (int y = 0; y < tile.height; ++y) {
        for (int x = 0; x < tile.width; ++x) {
          wave += field[i++] *
                  std::polar(1.0, -angle(column * x, tile.width) - angle(row * y, tile.height));
        }
      }
      const double share = shareOf(tile, column, row);
      variance += std::norm(wave) * share * share;
    }
  }
  const auto count = static_cast<double>(tile.size());
  return variance / (count * count);
}

constexpr std::array<Tile, 6> kTiles{{{8, 6}, {8, 5}, {7, 6}, {7, 5}, {1, 4}, {6, 1}}};

TEST(Spectrum, SeenWholeAFieldKeepsItsVariance) {
  for (const Tile& tile : kTiles) {
    const Field field = uneven(tile);
    const double mean =
        std::accumulate(field.begin(), field.end(), 0.0) / static_cast<double>(field.size());
    double variance = 0.0;
    for (const double value : field) {
      variance += (value - mean) * (value - mean) / static_cast<double>(field.size());
    }
    EXPECT_NEAR(Spectrum(tile).varianceSeen(field, ones(tile)), variance, 1e-12)
        << tile.width << " x " << tile.height;
  }
}

TEST(Spectrum, TheVarianceSeenIsThatOfASlowTransform) {
  for (const Tile& tile : kTiles) {
    const Field field = uneven(tile);
    EXPECT_NEAR(Spectrum(tile).varianceSeen(field, slantingShares(tile)),
                slowVarianceSeen(tile, field), 1e-12)
        << tile.width << " x " << tile.height;
  }
}

TEST(Spectrum, ACosineHasHalfAsVarianceTimesItsShareSquared) {
  constexpr Tile kTile{12, 9};
  Field shares(halfSize(kTile), 0.0);
  shares[2 * 7 + 3] = 0.6;
  EXPECT_NEAR(Spectrum(kTile).varianceSeen(cosine(kTile, 3, 2), shares), 0.5 * 0.36, 1e-12);
  EXPECT_NEAR(Spectrum(kTile).varianceSeen(cosine(kTile, 3, -2), shares), 0.0, 1e-12);
  EXPECT_NEAR(Spectrum(kTile).varianceSeen(cosine(kTile, 2, 2), shares), 0.0, 1e-12);
}

TEST(Spectrum, ACheckerboardIsTheHighestWaveBothWays) {
  constexpr Tile kTile{6, 4};
  Field board;
  for (std::size_t i = 0; i < kTile.size(); ++i) {
    board.push_back((i % 6 + i / 6) % 2 == 0 ? 5.0 : 3.0);
  }
  Field shares(halfSize(kTile), 0.0);
  shares[2 * 4 + 3] = 0.25;
  EXPECT_NEAR(Spectrum(kTile).varianceSeen(board, shares), 0.0625, 1e-12);
  shares[2 * 4 + 3] = 0.0;
  shares[0] = 1.0;
  EXPECT_NEAR(Spectrum(kTile).varianceSeen(board, shares), 0.0, 1e-12) << "the mean is left out";
}

TEST(Spectrum, ATileOfOnePixelHasNoVariance) {
  Spectrum spectrum({1, 1});
  EXPECT_EQ(spectrum.varianceSeen(Field{0.7}, Field{1.0}), 0.0);
  EXPECT_EQ(spectrum.seen(Field{0.7}, Field{1.0}), Field{0.7});
}

TEST(Spectrum, SeenWholeAFieldStaysAsItIs) {
  for (const Tile& tile : kTiles) {
    const Field field = uneven(tile);
    const Field seen = Spectrum(tile).seen(field, ones(tile));
    ASSERT_EQ(seen.size(), field.size());
    for (std::size_t i = 0; i < field.size(); ++i) {
      EXPECT_NEAR(seen[i], field[i], 1e-12);
    }
  }
}

TEST(Spectrum, AWaveIsSeenAtItsShareAndTheMeanAtItsOwn) {
  for (const Tile& tile : {Tile{12, 8}, Tile{11, 7}}) {
    const Field wave = cosine(tile, 2, -3);
    const Field other = cosine(tile, 1, 1);
    Field field;
    for (std::size_t i = 0; i < wave.size(); ++i) {
      field.push_back(10.0 + wave[i] + other[i]);
    }
    const std::size_t columns = static_cast<std::size_t>(tile.width) / 2 + 1;
    Field shares(halfSize(tile), 0.0);
    shares[0] = 0.5;
    shares[static_cast<std::size_t>(tile.height - 3) * columns + 2] = 0.3;
    const Field seen = Spectrum(tile).seen(field, shares);
    for (std::size_t i = 0; i < field.size(); ++i) {
      EXPECT_NEAR(seen[i], 5.0 + 0.3 * wave[i], 1e-12);
    }
  }
}

TEST(Spectrum, OneFieldAfterTheOtherCanBeLookedAt) {
  constexpr Tile kTile{7, 6};
  Spectrum spectrum(kTile);
  const Field field = uneven(kTile);
  const double first = spectrum.varianceSeen(field, slantingShares(kTile));
  spectrum.seen(cosine(kTile, 1, 2), ones(kTile));
  EXPECT_EQ(spectrum.varianceSeen(field, slantingShares(kTile)), first);
}

}  // namespace
}  // namespace gdi::screenquality
