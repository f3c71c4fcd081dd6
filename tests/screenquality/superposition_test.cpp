// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/superposition.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <cstddef>
#include <cstdint>
#include <numbers>
#include <numeric>
#include <span>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/screenquality/test_screens.h"
#include "tools/eye/colour.h"
#include "tools/eye/sight.h"
#include "tools/printmodel/PaperLight.h"
#include "tools/screenquality/grain.h"

namespace gdi::screenquality {
namespace {

using eye::chromaSeen;
using eye::kInks;
using eye::labSlopes;
using eye::lightnessSeen;
using eye::pixelsPerDegree;
using eye::Rgb;

const Conditions& kPlain = kPaperClasses[1];

struct Print {
  explicit Print(Screen made) : screen(std::move(made)), printed(screen, kPlain.paper) {}
  Screen screen;
  PrintedScreen printed;
};

const Print& blank() {
  static const Print print(evenScreen({1, 1}, 0));
  return print;
}

// Half of cyan on half of magenta.
Superposition halvesOf(const Print& cyan, const Print& magenta, int registrations = 1) {
  constexpr std::array<Patch, 1> kHalves{{{128, 128, 0, 0}}};
  return superpositionOf({&cyan.printed, &magenta.printed, &blank().printed, &blank().printed},
                         kPlain, kHalves, registrations);
}

Superposition blackOf(const Print& black, std::uint8_t level) {
  const std::array<Patch, 1> patch{{{0, 0, 0, level}}};
  return superpositionOf({&blank().printed, &blank().printed, &blank().printed, &black.printed},
                         kPlain, patch, 1);
}

double meanOf(const std::vector<double>& values) {
  return std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
}

// What is seen of the waves of 1 to `waves` periods in a common period of upright lines, by direct
// sums.
double beatsOf(const Print& cyan, const Print& magenta, int period, int waves) {
  const std::array<const Print*, 2> planes{&cyan, &magenta};
  std::array<std::vector<double>, 3> light;
  Rgb mean{};
  for (std::size_t rgb = 0; rgb < 3; ++rgb) {
    std::vector<double> passed;
    for (int x = 0; x < period; ++x) {
      double through = 1.0;
      for (std::size_t plane = 0; plane < 2; ++plane) {
        const auto column = static_cast<std::size_t>(x % planes.at(plane)->screen.tile.width);
        const double covered = planes.at(plane)->printed.coverage(128)[column];
        through *= 1.0 - covered * (1.0 - std::sqrt(kInks.at(plane).at(rgb)));
      }
      passed.push_back(through);
    }
    light.at(rgb) = printmodel::PaperLight(kPlain.paper.spread).reflectance({period, 1}, passed);
    mean.at(rgb) = meanOf(light.at(rgb));
  }
  const auto slopes = labSlopes(mean);
  double variance = 0.0;
  for (int wave = 1; wave <= waves; ++wave) {
    const double frequency = pixelsPerDegree(kPlain.inches) * wave / period;
    for (std::size_t lab = 0; lab < 3; ++lab) {
      std::complex<double> sum;
      for (int x = 0; x < period; ++x) {
        for (std::size_t rgb = 0; rgb < 3; ++rgb) {
          sum += slopes.at(lab).at(rgb) * light.at(rgb)[static_cast<std::size_t>(x)] *
                 std::polar(1.0 / period, 2.0 * std::numbers::pi * wave * x / period);
        }
      }
      const double seen = lab == 0 ? lightnessSeen(frequency, 0.0) : chromaSeen(frequency, 0.0);
      variance += 2.0 * std::norm(sum) * seen * seen;
    }
  }
  return std::sqrt(variance);
}

TEST(Superposition, LinesOfEightAndNinePixelsBeatCoarsely) {
  const Print eight(uprightLines(8));
  const Print nine(uprightLines(9));
  const Superposition both = halvesOf(eight, nine);
  // They meet every 72 pixels, 8.3 to the inch; 3 x 8.3 is the last below 30.
  const double beats = beatsOf(eight, nine, 72, 3);
  EXPECT_GT(beats, 1.0);
  EXPECT_NEAR(both.coarse, beats, 0.05 * beats);
  const double all = beatsOf(eight, nine, 72, 35);
  EXPECT_NEAR(both.pattern, all, 0.05 * all);
}

TEST(Superposition, LinesAtRightAnglesHardlyBeat) {
  const Superposition both = halvesOf(Print(uprightLines(8)), Print(levelLines(9)));
  EXPECT_LT(both.coarse, 0.05);
  EXPECT_GT(both.pattern, 0.5);
}

TEST(Superposition, LinesOfEightAndSixteenPixelsHaveOnlyFineWaves) {
  EXPECT_LT(halvesOf(Print(uprightLines(8)), Print(uprightLines(16))).coarse, 0.02);
}

TEST(Superposition, EqualScreensChangeColourAsTheyMove) {
  const Print lines(uprightLines(8));
  EXPECT_GT(halvesOf(lines, lines, 4).registration, 3.0);
}

TEST(Superposition, AtRightAnglesColoursHoldAsPlanesMove) {
  const Superposition both = halvesOf(Print(uprightLines(8)), Print(levelLines(8)), 2);
  EXPECT_LT(both.registration, 1e-6);
}

TEST(Superposition, OneRegistrationDoesNotWander) {
  const Print lines(uprightLines(8));
  EXPECT_NEAR(halvesOf(lines, lines, 1).registration, 0.0, 1e-9);
}

TEST(Superposition, BarePaperIsEven) {
  const Superposition none = blackOf(Print(uprightLines(8)), 0);
  EXPECT_NEAR(none.pattern, 0.0, 1e-9);
  EXPECT_NEAR(none.coarse, 0.0, 1e-9);
  EXPECT_EQ(none.noise, 0.0);
  EXPECT_EQ(none.registration, 0.0);
}

TEST(Superposition, BlackAloneHasTheGrainOfOneScreen) {
  const Print lines(uprightLines(8));
  const Superposition alone = blackOf(lines, 128);
  const auto columns = lines.printed.coverage(128);
  // The same pattern at all levels of a screen of its own.
  ASSERT_EQ(columns.size(), 8U);
  const Print stripes(patternScreen({8, 1}, {1, 1, 1, 1, 0, 0, 0, 0}));
  const Grain grain = grainOf(stripes.printed, kPlain);
  EXPECT_GT(grain.pattern, 0.5);
  EXPECT_NEAR(alone.pattern, grain.pattern, 0.02 * grain.pattern);
  EXPECT_NEAR(alone.noise, grain.noise, 0.002 * grain.noise);
}

TEST(Superposition, ThePatchesAreNeutralsTwoColourTintsAndSkin) {
  int threeInks = 0;
  int fourInks = 0;
  int twoInks = 0;
  for (const Patch& patch : kPatches) {
    const auto inks = 4 - std::count(patch.begin(), patch.end(), 0);
    twoInks += inks == 2 ? 1 : 0;
    threeInks += inks == 3 ? 1 : 0;
    fourInks += inks == 4 ? 1 : 0;
  }
  EXPECT_EQ(twoInks, 3);
  EXPECT_EQ(threeInks, 5) << "one of them skin";
  EXPECT_EQ(fourInks, 4) << "one of them skin";
}

}  // namespace
}  // namespace gdi::screenquality
