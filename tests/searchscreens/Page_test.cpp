// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/searchscreens/Page.h"

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "halftone/screens/HalftoneScreen.h"
#include "tests/searchscreens/small_screens.h"
#include "tools/makescreens/screen_sets.h"

namespace gdi::searchscreens {
namespace {

using screenquality::Screen;

// The screen as makescreens writes it and the filter reads it.
Screen bundled(const Parameters& parameters, std::size_t plane) {
  const std::string file = makescreens::makeScreen(parameters, 0, 0, plane);
  const std::vector<std::uint8_t> bytes(file.begin(), file.end());
  const std::unique_ptr<HalftoneScreen> read = HalftoneScreen::loadFromData(bytes);
  EXPECT_NE(read, nullptr);
  if (read == nullptr) {
    return {};
  }
  const std::vector<std::uint8_t> table = read->table();
  Screen screen{{read->header().width, read->header().height}, 1, {}};
  for (std::size_t level = 0; level < screenquality::kLevels; ++level) {
    for (std::size_t pixel = 0; pixel < screen.tile.size(); ++pixel) {
      screen.outputs.push_back(table[pixel * screenquality::kLevels + level]);
    }
  }
  return screen;
}

struct SmallTask {
  explicit SmallTask(const std::string& mode) {
    std::string problem;
    task = taskOf(parameters, "plain", "Fast", mode, problem);
    EXPECT_TRUE(task.has_value()) << problem;
  }
  Parameters parameters = parsed(smallParameters());
  std::optional<Task> task;
};

TEST(Page, IsJudgedAsItsBundledScreen) {
  const SmallTask small("Mono");
  const double j =
      screenquality::monoQuality(bundled(small.parameters, 4), screenquality::kPaperClasses[1])
          .composite();
  const Page page(*small.task);
  EXPECT_DOUBLE_EQ(page.j(), j);
  EXPECT_DOUBLE_EQ(page.quickJ(), j);
  EXPECT_DOUBLE_EQ(page.ownSquares(), j * j);
}

TEST(Page, IsJudgedUnderOtherConditionsAsItsBundledScreen) {
  const SmallTask small("Mono");
  const Screen screen = bundled(small.parameters, 4);
  const Page page(*small.task);
  Conditions far = *small.task->conditions;
  far.inches = 16.0;
  EXPECT_DOUBLE_EQ(page.jUnder(far), screenquality::monoQuality(screen, far).composite());
  Conditions blurred = *small.task->conditions;
  blurred.paper.spot = 0.7;
  EXPECT_DOUBLE_EQ(page.jUnder(blurred), screenquality::monoQuality(screen, blurred).composite());
  EXPECT_GT(page.jUnder(blurred), page.jUnder(far));
}

TEST(Page, WithAnotherScreenIsAnotherPage) {
  const SmallTask small("Mono");
  const Page page(*small.task);
  ScreenParameters better = small.parameters.screen(0, 0, 4);
  better.growth = {};
  const Page changed = page.with(0, better);
  EXPECT_EQ(changed.screens(), std::vector{better});
  EXPECT_EQ(page.screens(), small.task->screens());
  EXPECT_LT(changed.j(), page.j());
}

#ifndef GDI_SLOW_BUILD
TEST(Page, OfFourPlanesIsJudgedAsItsBundledScreens) {
  const SmallTask small("Color");
  const std::array<Screen, 4> screens{bundled(small.parameters, 0), bundled(small.parameters, 1),
                                      bundled(small.parameters, 2), bundled(small.parameters, 3)};
  const auto& [cyan, magenta, yellow, black] = screens;
  const auto quality = screenquality::colourQuality({&cyan, &magenta, &yellow, &black},
                                                    screenquality::kPaperClasses[1]);
  const Page page(*small.task);
  EXPECT_DOUBLE_EQ(page.j(), quality.composite());
  Conditions other = screenquality::kPaperClasses[1];
  other.paper.spot = 0.7;
  other.inches = 16.0;
  EXPECT_DOUBLE_EQ(
      page.jUnder(other),
      screenquality::colourQuality({&cyan, &magenta, &yellow, &black}, other).composite());
  EXPECT_NEAR(page.quickJ(), quality.composite(), 0.1 * quality.composite());

  auto own = quality;
  own.grain = 0.0;
  own.coarse = 0.0;
  own.registration = 0.0;
  EXPECT_NEAR(page.ownSquares(), own.composite() * own.composite(), 1e-9);
}
#endif

}  // namespace
}  // namespace gdi::searchscreens
