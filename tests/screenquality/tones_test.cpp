// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/tones.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <vector>

#include <gtest/gtest.h>

#include "tests/screenquality/test_screens.h"
#include "tools/eye/colour.h"
#include "tools/screenquality/levels.h"

namespace gdi::screenquality {
namespace {

using eye::lightness;

constexpr int kRows = 2048;
constexpr Tile kColumn{1, kRows};
constexpr double kSolid = 0.035;

double toneOf(std::size_t level) {
  return static_cast<double>(level) / 255.0;
}

// A screen whose levels print that area.
template <typename Area>
Screen printing(Area area) {
  return barScreen(kColumn, [area](std::size_t level) {
    return static_cast<int>(std::lround(kRows * area(toneOf(level))));
  });
}

// A screen whose levels print that L*, above 22.
template <typename Lightness>
Screen printingLightness(Lightness lightnessOf) {
  return printing([lightnessOf](double tone) {
    const double root = (lightnessOf(tone) + 16.0) / 116.0;
    return (1.0 - root * root * root) / (1.0 - kSolid);
  });
}

double curveErrorOf(const Screen& screen) {
  return curveError(PrintedScreen(screen, kPlainPrinter));
}

double toneStepsOf(const Screen& screen) {
  return toneSteps(PrintedScreen(screen, kPlainPrinter));
}

double lifted(double tone, double gain) {
  return tone + gain * 4.0 * tone * (1.0 - tone);
}

double kinked(double tone) {
  return tone < 0.5 ? 1.4 * tone : 0.7 + 0.6 * (tone - 0.5);
}

// How far the judged levels' L* are from the nearest plain curve, by trying one gain after another.
double nearestCurve(std::span<const double> printed) {
  double least = std::numeric_limits<double>::max();
  for (int step = -500; step <= 500; ++step) {
    double squares = 0.0;
    for (std::size_t i = 0; i < printed.size(); ++i) {
      const double wanted = std::min(lifted(toneOf(kJudgedLevels.at(i)), step / 1000.0), 1.0);
      const double distance = printed[i] - lightness(reflectanceOfArea(wanted));
      squares += distance * distance;
    }
    least = std::min(least, std::sqrt(squares / static_cast<double>(printed.size())));
  }
  return least;
}

// The cubic fitted to 25 values, at `position` of -12 to 12, by the polynomials that are
// orthogonal there: 1, j, j^2 - 52, j^3 - 93.4 j.
double fitted(std::span<const double> window, int position) {
  const auto polynomial = [](int power, double j) {
    switch (power) {
      case 0:
        return 1.0;
      case 1:
        return j;
      case 2:
        return j * j - 52.0;
      default:
        return j * j * j - 93.4 * j;
    }
  };
  double sum = 0.0;
  for (int power = 0; power < 4; ++power) {
    double common = 0.0;
    double norm = 0.0;
    auto value = window.begin();
    for (int j = -12; j <= 12; ++j) {
      common += polynomial(power, j) * *value++;
      norm += polynomial(power, j) * polynomial(power, j);
    }
    sum += polynomial(power, position) * common / norm;
  }
  return sum;
}

// What the middle of a window takes of the value j further on.
double middleWeight(int j) {
  return (467.0 - 5.0 * j * j) / 5175.0;
}

std::vector<double> uneven(std::size_t count) {
  std::vector<double> values;
  for (std::size_t i = 0; i < count; ++i) {
    values.push_back(static_cast<double>(i * i * 31 % 97));
  }
  return values;
}

TEST(Smoothed, CubicsStayAsTheyAre) {
  std::vector<double> cubic;
  for (int i = 0; i < 60; ++i) {
    const double x = i / 10.0;
    cubic.push_back(5.0 - 2.0 * x + 0.7 * x * x - 0.1 * x * x * x);
  }
  const std::vector<double> smooth = smoothed(cubic);
  ASSERT_EQ(smooth.size(), cubic.size());
  for (std::size_t i = 0; i < cubic.size(); ++i) {
    EXPECT_NEAR(smooth[i], cubic[i], 1e-10);
  }
}

TEST(Smoothed, ASingleValueIsSpreadByTheWindowsWeights) {
  std::vector<double> values(80, 0.0);
  values[40] = 1.0;
  const std::vector<double> smooth = smoothed(values);
  for (int away = -12; away <= 12; ++away) {
    EXPECT_NEAR(smooth[static_cast<std::size_t>(40 + away)], middleWeight(away), 1e-12);
  }
  EXPECT_EQ(smooth[27], 0.0);
  EXPECT_EQ(smooth[53], 0.0);
}

TEST(Smoothed, ValuesNearAnEndAreFittedByTheEndsWindow) {
  const std::vector<double> values = uneven(40);
  const std::vector<double> smooth = smoothed(values);
  const std::span<const double> all(values);
  for (int i = 0; i < 12; ++i) {
    EXPECT_NEAR(smooth[static_cast<std::size_t>(i)], fitted(all.first(25), i - 12), 1e-9);
    EXPECT_NEAR(smooth[static_cast<std::size_t>(39 - i)], fitted(all.last(25), 12 - i), 1e-9);
  }
  EXPECT_NEAR(smooth[20], fitted(all.subspan(8, 25), 0), 1e-9);
}

TEST(Smoothed, TwentyFiveValuesAreOneCubic) {
  const std::vector<double> values = uneven(25);
  const std::vector<double> smooth = smoothed(values);
  ASSERT_EQ(smooth.size(), 25U);
  for (int i = 0; i < 25; ++i) {
    EXPECT_NEAR(smooth[static_cast<std::size_t>(i)], fitted(values, i - 12), 1e-9);
  }
}

TEST(ToneSteps, BarePaperAndASolidHaveNone) {
  EXPECT_NEAR(toneStepsOf(evenScreen({3, 2}, 0)), 0.0, 1e-9);
  EXPECT_NEAR(toneStepsOf(evenScreen({1, 1}, 1)), 0.0, 1e-9);
}

TEST(ToneSteps, LightnessesOnACubicHaveHardlyAny) {
  const Screen screen =
      printingLightness([](double tone) { return 99.0 - 76.0 * tone * tone * (3.0 - 2.0 * tone); });
  EXPECT_LT(toneStepsOf(screen), 0.03);
}

TEST(ToneSteps, AStepDeviatesByTheWindowsPartialSums) {
  constexpr double kStep = 6.0;
  const Screen screen = printingLightness(
      [](double tone) { return 90.0 - 40.0 * tone - (tone > 0.5 ? kStep : 0.0); });
  double squares = 0.0;
  for (int from = -12; from < 12; ++from) {
    // So much of the step is in the smooth curve at the level whose window has it at `from`.
    double part = 0.0;
    for (int j = from + 1; j <= 12; ++j) {
      part += middleWeight(j);
    }
    const double deviation = from < 0 ? 1.0 - part : part;
    squares += deviation * deviation;
  }
  EXPECT_NEAR(toneStepsOf(screen), kStep * std::sqrt(squares / 256.0), 0.02);
}

TEST(CurveError, TonesOnAPlainCurveOfAnyGainHaveHardlyAny) {
  for (const double gain : {0.17, -0.1}) {
    EXPECT_LT(curveErrorOf(printing([gain](double tone) { return lifted(tone, gain); })), 0.06)
        << gain;
  }
}

TEST(CurveError, AKinkIsItsDistanceFromTheNearestCurve) {
  std::vector<double> printed;
  for (const std::size_t level : kJudgedLevels) {
    printed.push_back(lightness(reflectanceOfArea(kinked(toneOf(level)))));
  }
  const double expected = nearestCurve(printed);
  EXPECT_GT(expected, 0.5);
  EXPECT_NEAR(curveErrorOf(printing(kinked)), expected, 0.05);
}

TEST(CurveError, IsThatOfASharperAndASofterPrinterToo) {
  const PaperModel nominal{0.58, 0.42, 0.055, 1.1, kSolid};
  PaperModel sharper = nominal;
  sharper.spot = 0.50;
  sharper.threshold = 0.47;
  PaperModel softer = nominal;
  softer.spot = 0.65;
  softer.threshold = 0.37;
  const Screen screen = uprightLines(8);
  double squares = 0.0;
  for (const PaperModel& paper : {nominal, sharper, softer}) {
    const PrintedScreen print(screen, paper);
    std::vector<double> printed;
    for (const std::size_t level : kJudgedLevels) {
      printed.push_back(lightness(print.reflectance(level)));
    }
    squares += std::pow(nearestCurve(printed), 2.0);
  }
  EXPECT_NEAR(curveError(PrintedScreen(screen, nominal)), std::sqrt(squares / 3.0), 1e-3);
}

TEST(ExposureSwing, BarePaperHasNone) {
  EXPECT_EQ(exposureSwing(PrintedScreen(evenScreen({4, 4}, 0), kPlainPrinter)), 0.0);
}

TEST(ExposureSwing, ASolidHasHardlyAny) {
  EXPECT_LT(exposureSwing(PrintedScreen(evenScreen({4, 4}, 1), kPlainPrinter)), 0.05);
}

TEST(ExposureSwing, OfAnEvenExposureFollowsFromTheLogisticFunction) {
  const Screen screen = continuousScreen();
  const PrintedScreen print(screen, kPlainPrinter);
  const auto lightnessAt = [](double exposure) {
    const double covered = 1.0 / (1.0 + std::exp(-(exposure - 0.5) / 0.05));
    const double through = 1.0 - covered * (1.0 - std::sqrt(kSolid));
    return lightness(through * through);
  };
  std::vector<double> swings;
  std::vector<double> lightnesses;
  for (const std::size_t level : kJudgedLevels) {
    const double exposure = toneOf(level);
    lightnesses.push_back(lightnessAt(exposure));
    swings.push_back((lightnessAt(0.9 * exposure) - lightnessAt(1.1 * exposure)) / 2.0);
  }
  const double expected = rootMeanSquare(swings, levelWeights(lightnesses));
  EXPECT_GT(expected, 5.0);
  EXPECT_NEAR(exposureSwing(print), expected, 0.01 * expected);
}

TEST(ExposureSwing, LargeDotsAreSteadierThanSinglePixels) {
  // Half of the paper at all levels: blocks of 8 x 8, and a checkerboard of pixels.
  std::vector<std::uint8_t> blocks;
  std::vector<std::uint8_t> pixels;
  for (unsigned i = 0; i < 256; ++i) {
    blocks.push_back((i / 8 + i / 128) % 2);
    pixels.push_back((i + i / 16) % 2);
  }
  const Screen large = patternScreen({16, 16}, blocks);
  const Screen small = patternScreen({16, 16}, pixels);
  const double steady = exposureSwing(PrintedScreen(large, kPlainPrinter));
  EXPECT_GT(steady, 0.1);
  EXPECT_LT(3.0 * steady, exposureSwing(PrintedScreen(small, kPlainPrinter)));
}

}  // namespace
}  // namespace gdi::screenquality
