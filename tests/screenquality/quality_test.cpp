// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/quality.h"

#include <array>
#include <cmath>
#include <cstddef>

#include <gtest/gtest.h>

#include "tests/screenquality/test_screens.h"
#include "tools/screenquality/PrintedScreen.h"
#include "tools/screenquality/detail.h"
#include "tools/screenquality/grain.h"
#include "tools/screenquality/superposition.h"
#include "tools/screenquality/tones.h"

namespace gdi::screenquality {
namespace {

const Conditions& kPlain = kPaperClasses[1];

TEST(Quality, ThePerfectSetHasNothing) {
  EXPECT_EQ(Quality{}.composite(), 0.0);
}

TEST(Quality, EachTermCountsByItsWeight) {
  Quality quality;
  quality.grain = 2.0;
  EXPECT_DOUBLE_EQ(quality.composite(), 2.0);
  quality = {};
  quality.coarse = 2.0;
  EXPECT_DOUBLE_EQ(quality.composite(), 3.0);
  quality = {};
  quality.swing = 2.0;
  EXPECT_DOUBLE_EQ(quality.composite(), 0.4);
  quality = {};
  quality.detail = 2.0;
  EXPECT_DOUBLE_EQ(quality.composite(), 1.2);
  quality = {};
  quality.curve = 2.0;
  EXPECT_DOUBLE_EQ(quality.composite(), 0.8);
  quality = {};
  quality.steps = 2.0;
  EXPECT_DOUBLE_EQ(quality.composite(), 2.0);
  quality = {};
  quality.registration = 2.0;
  EXPECT_DOUBLE_EQ(quality.composite(), 0.7);
}

TEST(Quality, TermsAddUpAsSquares) {
  Quality quality;
  quality.grain = 1.0;
  quality.coarse = 2.0;
  quality.swing = 10.0;
  quality.detail = 5.0;
  quality.curve = 5.0;
  quality.steps = 4.0;
  quality.registration = 20.0;
  // 1 + 9 + 4 + 9 + 4 + 16 + 49
  EXPECT_DOUBLE_EQ(quality.composite(), std::sqrt(92.0));
}

TEST(MonoQuality, HoldsTheTermsOfTheBlackScreenAlone) {
  const Screen screen = uprightLines(8);
  const Quality quality = monoQuality(screen, kPlain);
  const PrintedScreen print(screen, kPlain.paper);
  const Grain grain = grainOf(print, kPlain);
  EXPECT_DOUBLE_EQ(quality.grain, std::hypot(grain.pattern, grain.noise));
  EXPECT_DOUBLE_EQ(quality.coarse, grain.coarse);
  EXPECT_DOUBLE_EQ(quality.swing, exposureSwing(print));
  EXPECT_DOUBLE_EQ(quality.detail, detailLoss(print, kPlain));
  EXPECT_DOUBLE_EQ(quality.curve, curveError(print));
  EXPECT_DOUBLE_EQ(quality.steps, toneSteps(print));
  EXPECT_EQ(quality.registration, 0.0);
}

TEST(MonoQuality, BarePaperIsOnlyOffTheCurve) {
  const Quality quality = monoQuality(evenScreen({1, 1}, 0), kPlain);
  EXPECT_EQ(quality.registration, 0.0);
  EXPECT_NEAR(quality.composite(), 0.4 * quality.curve, 1e-6);
  EXPECT_GT(quality.curve, 10.0);
}

#ifndef GDI_SLOW_BUILD
TEST(ColourQuality, PlanesTonesCountByHowMuchIsSeenOfThem) {
  const std::array<Screen, 4> screens{uprightLines(4), levelLines(6), uprightLines(9),
                                      levelLines(16)};
  const auto& [cyan, magenta, yellow, black] = screens;
  constexpr std::array<double, 4> kWeights{0.30, 0.35, 0.05, 0.30};
  const Quality quality = colourQuality({&cyan, &magenta, &yellow, &black}, kPlain);
  double swing = 0.0;
  double detail = 0.0;
  double curve = 0.0;
  double steps = 0.0;
  for (std::size_t plane = 0; plane < 4; ++plane) {
    const PrintedScreen print(screens.at(plane), kPlain.paper);
    swing += kWeights.at(plane) * std::pow(exposureSwing(print), 2.0);
    detail += kWeights.at(plane) * std::pow(detailLoss(print, kPlain), 2.0);
    curve += kWeights.at(plane) * std::pow(curveError(print), 2.0);
    steps += kWeights.at(plane) * std::pow(toneSteps(print), 2.0);
  }
  EXPECT_NEAR(quality.swing, std::sqrt(swing), 1e-9);
  EXPECT_NEAR(quality.detail, std::sqrt(detail), 1e-9);
  EXPECT_NEAR(quality.curve, std::sqrt(curve), 1e-9);
  EXPECT_NEAR(quality.steps, std::sqrt(steps), 1e-9);
  EXPECT_GT(quality.grain, quality.coarse);
}
#endif

}  // namespace
}  // namespace gdi::screenquality
