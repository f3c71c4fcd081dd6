// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The planes of a colour page share no wave: two that do shift the page's colour with every small
// error of registration.

#include <cstddef>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "tools/makescreens/parameters.h"
#include "tools/makescreens/waves.h"

namespace gdi::makescreens {
namespace {

constexpr std::size_t kColourPlanes = 4;

TEST(ScreenWaves, ADiagonalOfOneLatticeMayBeAWaveOfAnother) {
  // (3, 2) + (1, -4) = (4, -2)
  EXPECT_TRUE(shareAWave({14, 3, 2, 1, -4}, {14, 1, 3, 4, -2}));
  // (3, 2) - (1, -4) = (2, 6), turned round and with twice the n
  EXPECT_TRUE(shareAWave({14, 3, 2, 1, -4}, {28, -4, -12, 5, 5}));
  EXPECT_FALSE(shareAWave({14, 3, 2, 1, -4}, {28, 3, 2, 1, -4}));
}

TEST(ScreenWaves, NoTwoPlanesOfAColourPageShareOne) {
  std::ifstream file(GDI_PARAMETERS);
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  std::string error;
  const std::optional<Parameters> parameters = parseParameters(text, GDI_PARAMETERS, error);
  ASSERT_TRUE(parameters.has_value()) << error;
  ASSERT_EQ(parameters->classes.size(), 3U);
  ASSERT_EQ(parameters->qualities.size(), 3U);
  for (std::size_t c = 0; c < parameters->classes.size(); ++c) {
    for (std::size_t q = 0; q < parameters->qualities.size(); ++q) {
      for (std::size_t plane = 1; plane < kColourPlanes; ++plane) {
        for (std::size_t other = 0; other < plane; ++other) {
          EXPECT_FALSE(shareAWave(parameters->screen(c, q, plane).lattice,
                                  parameters->screen(c, q, other).lattice))
              << parameters->classes[c].name << ' ' << parameters->qualities[q].name << ' '
              << kPlanes.at(other) << " and " << kPlanes.at(plane);
        }
      }
    }
  }
}

}  // namespace
}  // namespace gdi::makescreens
