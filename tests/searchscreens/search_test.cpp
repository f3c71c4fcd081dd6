// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/searchscreens/search.h"

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/searchscreens/small_screens.h"
#include "tools/searchscreens/Page.h"
#include "tools/searchscreens/Score.h"
#include "tools/searchscreens/rules.h"

namespace gdi::searchscreens {
namespace {

struct Searched {
  Found found;
  std::vector<long> told;  // tries, as progress has them
};

class Search : public testing::Test {
 protected:
  Searched search(const std::string& mode, const Limits& limits) {
    std::string problem;
    task_ = taskOf(parameters_, "plain", "Fast", mode, problem);
    EXPECT_TRUE(task_.has_value()) << problem;
    Searched result;
    result.found = searchscreens::search(
        *task_, limits,
        [&](double /*seconds*/, long tries, double /*j*/) { result.told.push_back(tries); });
    return result;
  }
  [[nodiscard]] const Task& task() const { return *task_; }

  static void expectRulesKept(const std::vector<ScreenParameters>& screens) {
    for (std::size_t place = 0; place < screens.size(); ++place) {
      EXPECT_EQ(breachOf(screens, place, 1), "");
    }
  }

 private:
  Parameters parameters_ = parsed(smallParameters());
  std::optional<Task> task_;
};

Limits tries(long count, std::uint32_t seed = 1) {
  Limits limits;
  limits.tries = count;
  limits.seed = seed;
  return limits;
}

TEST_F(Search, FindsABetterScreenThatKeepsTheRules) {
  const Searched searched = search("Mono", tries(12));
  EXPECT_EQ(searched.found.tries, 12);
  EXPECT_LT(searched.found.after, searched.found.before);
  expectRulesKept(searched.found.screens);
  EXPECT_DOUBLE_EQ(Page(task()).j(), searched.found.before);
  ASSERT_EQ(searched.found.screens.size(), 1U);
  EXPECT_DOUBLE_EQ(Page(task()).with(0, searched.found.screens[0]).j(), searched.found.after);
}

#ifndef GDI_SLOW_BUILD
TEST_F(Search, WithoutRivalsTheScoreIsJ) {
  const Found found = search("Mono", tries(4)).found;
  EXPECT_EQ(found.j, found.after);
}
#endif

#ifndef GDI_SLOW_BUILD
TEST_F(Search, OfRobustScreensLowersTheirScore) {
  Limits limits = tries(4);
  limits.robust = true;
  const Found found = search("Mono", limits).found;
  EXPECT_LT(found.after, found.before);
  const Page page = Page(task()).with(0, found.screens.at(0));
  EXPECT_DOUBLE_EQ(found.j, page.j());
  Score score(*task().conditions, screenquality::rivalsOf(*task().conditions, 1, false));
  EXPECT_NEAR(score.of(page, found.j, std::numeric_limits<double>::infinity()), found.after, 1e-9);
  EXPECT_GT(found.after, found.j);
}
#endif

#ifndef GDI_SLOW_BUILD
TEST_F(Search, TellsOfTheStartAndOfEachBetterScreen) {
  const Searched searched = search("Mono", tries(12));
  ASSERT_GE(searched.told.size(), 2U);
  EXPECT_EQ(searched.told.front(), 0);
  EXPECT_TRUE(std::ranges::is_sorted(searched.told));
}
#endif

#ifndef GDI_SLOW_BUILD
TEST_F(Search, ASeedGivesTheSameScreens) {
  const Found first = search("Mono", tries(4, 3)).found;
  const Found second = search("Mono", tries(4, 3)).found;
  EXPECT_EQ(first.screens, second.screens);
  EXPECT_EQ(first.after, second.after);
  EXPECT_NE(first.screens, search("Mono", tries(4, 4)).found.screens);
}
#endif

#ifndef GDI_SLOW_BUILD
TEST_F(Search, IsNeverWorseThanTheStart) {
  for (std::uint32_t seed = 1; seed <= 3; ++seed) {
    const Found found = search("Mono", tries(1, seed)).found;
    EXPECT_LE(found.after, found.before);
    EXPECT_EQ(found.after == found.before, found.screens == task().screens());
  }
}
#endif

#ifndef GDI_SLOW_BUILD
TEST_F(Search, KeepsTheLatticeWhenAskedTo) {
  Limits limits = tries(10);
  limits.shapesOnly = true;
  makescreens::Lattice lattice = search("Mono", limits).found.screens.at(0).lattice;
  lattice.phaseU = task().screens().at(0).lattice.phaseU;
  lattice.phaseV = task().screens().at(0).lattice.phaseV;
  EXPECT_EQ(lattice, task().screens().at(0).lattice);
}
#endif

TEST_F(Search, EndsAfterItsSeconds) {
  Limits limits;
  limits.seconds = 0.1;
  EXPECT_GE(search("Mono", limits).found.tries, 0);
}

#ifndef GDI_SLOW_BUILD
TEST_F(Search, ChangesThePlanesOfAColourPage) {
  const Found found = search("Color", tries(3)).found;
  ASSERT_EQ(found.screens.size(), 4U);
  EXPECT_LE(found.after, found.before);
  expectRulesKept(found.screens);
}
#endif

}  // namespace
}  // namespace gdi::searchscreens
