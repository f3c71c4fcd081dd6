// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/printmodel/PrintModel.h"

#include <cstdint>
#include <vector>

#include <gtest/gtest.h>

namespace gdi::printmodel {
namespace {

constexpr Tile kTile{8, 8};
const PaperModel kPaper{0.58, 0.42, 0.055, 1.1, 0.035};

double printed(const std::vector<std::uint8_t>& values, const PaperModel& paper = kPaper,
               int steps = 1) {
  return PrintModel(paper, kTile, steps).printedArea(values);
}

std::vector<std::uint8_t> filled(std::uint8_t value) {
  std::vector<std::uint8_t> values(64, value);
  return values;
}

// Halves of 4 columns each, one dark.
std::vector<std::uint8_t> stripes() {
  std::vector<std::uint8_t> values(64);
  for (std::size_t i = 0; i < 64; ++i) {
    values[i] = i % 8 < 4 ? 1 : 0;
  }
  return values;
}

TEST(PrintModel, BarePaperIsNothingAndASolidIsAll) {
  EXPECT_NEAR(printed(filled(0)), 0.0, 0.002);
  EXPECT_NEAR(printed(filled(1)), 1.0, 0.002);
  EXPECT_NEAR(printed(filled(15), kPaper, 15), 1.0, 0.002);
}

TEST(PrintModel, LightInThePaperMakesHalfAnAreaLookDarker) {
  const double area = printed(stripes());
  EXPECT_GT(area, 0.51);
  EXPECT_LT(area, 0.75);
  PaperModel rough = kPaper;
  rough.spread = 1.6;
  EXPECT_GT(printed(stripes(), rough), area);
}

TEST(PrintModel, AHigherThresholdPrintsLighter) {
  PaperModel lighter = kPaper;
  lighter.threshold = 0.5;
  EXPECT_LT(printed(stripes(), lighter), printed(stripes()));
}

TEST(PrintModel, ALonelyPixelPrintsWeakerThanItsShareInAPair) {
  std::vector<std::uint8_t> lonely = filled(0);
  lonely[27] = 1;
  std::vector<std::uint8_t> pair = lonely;
  pair[28] = 1;
  EXPECT_LT(printed(lonely), printed(pair) / 2);
}

TEST(PrintModel, AWiderPulsePrintsDarker) {
  double last = -1.0;
  for (int value = 0; value <= 15; value += 5) {
    const double area = printed(filled(static_cast<std::uint8_t>(value)), kPaper, 15);
    EXPECT_GT(area, last);
    last = area;
  }
}

TEST(PrintModel, ATileWrapsAtItsBorders) {
  std::vector<std::uint8_t> moved(64);
  for (std::size_t i = 0; i < 64; ++i) {
    moved[i] = stripes()[(i + 3) % 8];
  }
  EXPECT_NEAR(printed(moved), printed(stripes()), 1e-12);
}

}  // namespace
}  // namespace gdi::printmodel
