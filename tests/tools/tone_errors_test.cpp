// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/makescreens/tone_errors.h"

#include <cmath>
#include <cstddef>
#include <vector>

#include <gtest/gtest.h>

namespace gdi::makescreens {
namespace {

constexpr double kSolid = 0.035;
constexpr std::size_t kUnits = 4080;  // 16 a level

PrintedCurve lifted(double lift) {
  return {kUnits, [lift](std::size_t count) {
            const double tone = static_cast<double>(count) / kUnits;
            return tone + lift * 4.0 * tone * (1.0 - tone);
          }};
}

// L* of an area, for reflectances above 0.009.
double lightnessOf(double area) {
  return 116.0 * std::cbrt(1.0 - area * (1.0 - kSolid)) - 16.0;
}

TEST(ToneErrors, InOnePrinterAreTheSquaredDistanceInLightness) {
  const std::vector<PrinterCurve> straight{{lifted(0.0), 1.0}};
  const ToneErrors errors(straight, 0.0, kSolid);
  EXPECT_EQ(errors.units(), kUnits);
  const double distance = lightnessOf(0.3) - lightnessOf(0.2);
  EXPECT_NEAR(errors.at(51, 1224), distance * distance, 1e-6);
  EXPECT_NEAR(errors.at(51, 816), 0.0, 1e-9);
}

TEST(ToneErrors, TheFirstPrinterIsHeldToTheGain) {
  const std::vector<PrinterCurve> straight{{lifted(0.0), 1.0}};
  const ToneErrors errors(straight, 0.15, kSolid);
  EXPECT_EQ(errors.liftOf(0), 0.15);
  // 2/5 lifted by 0.15 x 4 x 2/5 x 3/5 is 0.544.
  const double distance = lightnessOf(0.4) - lightnessOf(0.544);
  EXPECT_NEAR(errors.at(102, 1632), distance * distance, 1e-6);
}

TEST(ToneErrors, APrinterThatIsDarkerThroughoutIsNoError) {
  const std::vector<PrinterCurve> printers{{lifted(0.0), 1.0}, {lifted(0.2), 1.0}};
  const ToneErrors errors(printers, 0.0, kSolid);
  EXPECT_NEAR(errors.liftOf(1), 0.2, 1e-3);
  for (int level = 10; level < 245; ++level) {
    EXPECT_NEAR(errors.at(level, std::size_t{16} * static_cast<std::size_t>(level)), 0.0, 1e-3);
  }
}

TEST(ToneErrors, PrintersCountByTheirWeights) {
  const std::vector<PrinterCurve> printers{{lifted(0.0), 1.0}, {lifted(0.2), 3.0}};
  const ToneErrors errors(printers, 0.0, kSolid);
  // 2048 units of 4080 stand for level 102 in neither printer.
  const double first = lightnessOf(2048.0 / 4080.0) - lightnessOf(0.4);
  const double tone = 2048.0 / 4080.0;
  const double second =
      lightnessOf(tone + 0.8 * tone * (1.0 - tone)) - lightnessOf(0.4 + 0.8 * 0.4 * 0.6);
  EXPECT_NEAR(errors.at(102, 2048), (first * first + 3.0 * second * second) / 4.0, 0.5);
}

TEST(ToneErrors, AHeavyPrinterLeavesTheFirstItsGain) {
  const std::vector<PrinterCurve> printers{
      {lifted(0.0), 1.0}, {lifted(0.2), 20.0}, {lifted(-0.1), 1.0}};
  const ToneErrors errors(printers, 0.0, kSolid);
  EXPECT_NEAR(errors.liftOf(1), 0.2, 1e-3);
  EXPECT_NEAR(errors.liftOf(2), -0.1, 1e-3);
}

TEST(ToneErrors, APrinterOfNoWeightIsNone) {
  const std::vector<PrinterCurve> two{{lifted(0.1), 1.0}, {lifted(0.4), 0.0}};
  const std::vector<PrinterCurve> one{{lifted(0.1), 1.0}};
  EXPECT_EQ(ToneErrors(two, 0.0, kSolid).at(100, 1700), ToneErrors(one, 0.0, kSolid).at(100, 1700));
}

// A fog of toner on bare paper is no lift: it is worst where the lift is least.
TEST(ToneErrors, FogStaysAnError) {
  const PrintedCurve fogged(
      kUnits, [](std::size_t count) { return 0.05 + 0.95 * static_cast<double>(count) / kUnits; });
  const std::vector<PrinterCurve> printers{{lifted(0.0), 1.0}, {fogged, 1.0}};
  const ToneErrors errors(printers, 0.0, kSolid);
  const double fog = lightnessOf(0.05) - lightnessOf(0.0);
  EXPECT_NEAR(errors.at(0, 0), fog * fog / 2.0, 0.02);
  EXPECT_LT(errors.at(20, 280), errors.at(20, 320));
}

TEST(ToneErrors, TheSlopeIsTakenOverAFortiethOnBothSides) {
  const std::vector<PrinterCurve> printers{{lifted(0.0), 1.0}, {lifted(0.2), 1.0}};
  const ToneErrors errors(printers, 0.0, kSolid);
  const auto after = [](double units) { return lightnessOf(units / kUnits); };
  EXPECT_NEAR(errors.slopeAt(2000), (after(2102) - after(1898)) / 204, 1e-6);
  EXPECT_NEAR(errors.slopeAt(50), (after(152) - after(0)) / 152, 1e-4);
  EXPECT_NEAR(errors.slopeAt(kUnits), (after(kUnits) - after(3978)) / 102, 1e-3);
}

TEST(ToneErrors, LiftsEndWhereMiddleTonesAreSolidOrBlank) {
  for (const double area : {0.0, 0.9, 1.0}) {
    const PrintedCurve always(kUnits, [area](std::size_t) { return area; });
    const std::vector<PrinterCurve> printers{{lifted(0.0), 1.0}, {always, 5.0}};
    const ToneErrors errors(printers, 0.0, kSolid);
    EXPECT_LE(std::abs(errors.liftOf(1)), 1.0) << area;
    EXPECT_TRUE(std::isfinite(errors.at(128, 2048))) << area;
  }
}

}  // namespace
}  // namespace gdi::makescreens
