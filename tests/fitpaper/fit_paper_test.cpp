// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/fitpaper/fit_paper.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "tools/printmodel/PrintModel.h"

namespace gdi::fitpaper {
namespace {

using printmodel::PaperModel;
using printmodel::PrintModel;

constexpr PaperModel kStart{0.66, 0.41, 0.065, 1.4, 0.035};

// A screen of one dot that grows about the middle of a square tile.
ScreenTiles dotScreen(int side, int steps) {
  ScreenTiles screen{{side, side}, steps, {}};
  for (int level = 0; level < 256; ++level) {
    std::vector<std::uint8_t>& values = screen.levels.emplace_back();
    for (int y = 0; y < side; ++y) {
      for (int x = 0; x < side; ++x) {
        const double away = std::hypot(2 * x - side + 0.9, 2 * y - side + 1.1) / side / 1.5;
        values.push_back(static_cast<std::uint8_t>(
            level == 255 ? steps : std::clamp((level / 255.0 - away) * 4 + 0.5, 0.0, 1.0) * steps));
      }
    }
  }
  return screen;
}

// The screen as that paper prints it, every twelfth level being measured with an error of
// `noise`, now up and now down.
MeasuredScreen printed(const ScreenTiles& screen, const PaperModel& paper, double noise = 0.0) {
  MeasuredScreen result{screen, {{}, paper.solid}};
  const PrintModel print(paper, screen.tile, screen.steps);
  for (std::size_t level = 12; level < 255; level += 12) {
    const double error = level % 24 == 0 ? noise : -noise;
    const double light = 1.0 - print.printedArea(screen.levels[level]) * (1.0 - paper.solid);
    result.measured.patches.push_back({level, std::max(light + error, 0.0)});
  }
  return result;
}

TEST(FitPaper, FindsTheFiguresOfASyntheticPrint) {
  for (const PaperModel& truth :
       {PaperModel{0.55, 0.46, 0.065, 0.9, 0.05}, PaperModel{0.8, 0.36, 0.065, 1.8, 0.02}}) {
    const std::vector<MeasuredScreen> screens = {printed(dotScreen(6, 1), truth),
                                                 printed(dotScreen(9, 3), truth)};
    const PaperModel found = fitPaper(kStart, screens);
    EXPECT_NEAR(found.spot, truth.spot, 0.01);
    EXPECT_NEAR(found.threshold, truth.threshold, 0.005);
    EXPECT_NEAR(found.spread, truth.spread, 0.05);
    EXPECT_NEAR(found.solid, truth.solid, 1e-12);
    EXPECT_EQ(found.softness, kStart.softness);
    EXPECT_LT(deviationOf(found, screens[0]).mean, 0.02);
  }
}

TEST(FitPaper, ComesNearDespiteErrorsOfMeasurement) {
  const PaperModel truth{0.6, 0.45, 0.065, 1.2, 0.04};
  const std::vector<MeasuredScreen> screens = {printed(dotScreen(6, 1), truth, 0.004),
                                               printed(dotScreen(9, 3), truth, 0.004)};
  const PaperModel found = fitPaper(kStart, screens);
  EXPECT_NEAR(found.spot, truth.spot, 0.05);
  EXPECT_NEAR(found.threshold, truth.threshold, 0.02);
  EXPECT_NEAR(found.spread, truth.spread, 0.3);
  EXPECT_LT(deviationOf(found, screens[0]).mean, deviationOf(kStart, screens[0]).mean);
}

TEST(FitPaper, TheSameMeasurementsGiveTheSamePaper) {
  const std::vector<MeasuredScreen> screens = {
      printed(dotScreen(6, 1), {0.6, 0.45, 0.065, 1.2, 0.04}, 0.01)};
  const PaperModel first = fitPaper(kStart, screens);
  const PaperModel second = fitPaper(kStart, screens);
  EXPECT_EQ(first.spot, second.spot);
  EXPECT_EQ(first.threshold, second.threshold);
  EXPECT_EQ(first.spread, second.spread);
}

TEST(FitPaper, StaysWithinWhatAClassMayState) {
  MeasuredScreen screen = printed(dotScreen(6, 1), kStart);
  for (Patch& patch : screen.measured.patches) {
    patch.reflectance = 1.0;  // no tone prints at all
  }
  const PaperModel found = fitPaper(kStart, std::vector{screen});
  EXPECT_GE(found.spot, 0.1);
  EXPECT_LE(found.spot, 1.0);
  EXPECT_LE(found.threshold, 0.95);
  EXPECT_GE(found.spread, 0.1);
  EXPECT_LE(found.spread, 5.0);
}

TEST(FitPaper, TheSolidIsTheMeanOfTheInks) {
  const ScreenTiles screen = dotScreen(6, 1);
  const std::vector<MeasuredScreen> screens = {printed(screen, {0.6, 0.45, 0.065, 1.2, 0.04}),
                                               printed(screen, {0.6, 0.45, 0.065, 1.2, 0.08})};
  EXPECT_NEAR(fitPaper(kStart, screens).solid, 0.06, 1e-12);
}

TEST(Deviation, TellsThePatchThatIsFurthestOff) {
  MeasuredScreen screen = printed(dotScreen(6, 1), kStart);
  EXPECT_NEAR(deviationOf(kStart, screen).mean, 0.0, 1e-9);
  Patch& patch = screen.measured.patches[3];
  const double lightness = lightnessOf(patch.reflectance);
  patch.reflectance = reflectanceOf(lightness - 3.0);
  const Deviation deviation = deviationOf(kStart, screen);
  EXPECT_EQ(deviation.level, 48U);
  EXPECT_NEAR(deviation.largest, 3.0, 1e-9);
  EXPECT_NEAR(deviation.mean, 3.0 / std::sqrt(21.0), 1e-9);
}

TEST(ClassLine, TakesTheFourFiguresAndKeepsTheRest) {
  const std::string text =
      "# class rough 1 2 3 4 5 6\nclass smooth 0.55 0.43 0.050 0.9 0.035 0.14\n"
      "  class rough  0.66 0.41 0.065 1.4 0.035 0.19 0.02 7 # a remark\n";
  EXPECT_EQ(classLine(text, "rough", {0.6184, 0.4, 1.0, 1.25678, 0.0512}),
            "class rough 0.618 0.4 0.065 1.257 0.051 0.19 0.02 7");
  EXPECT_EQ(classLine(text, "coarse", kStart), "");
}

}  // namespace
}  // namespace gdi::fitpaper
