// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/robustness.h"

#include <algorithm>
#include <array>
#include <sstream>

#include <gtest/gtest.h>

#include "tests/screenquality/small_bundle.h"

namespace gdi::screenquality {
namespace {

TEST(Robustness, OneThingIsChangedAtATime) {
  const Conditions nominal = kPaperClasses[1];
  const std::vector<OtherConditions> all = otherConditions(nominal);
  ASSERT_EQ(all.size(), 10U);
  const auto changes = [&](const Conditions& other) {
    return std::ranges::count(
        std::array{other.paper.spot != nominal.paper.spot,
                   other.paper.threshold != nominal.paper.threshold,
                   other.paper.softness != nominal.paper.softness,
                   other.paper.spread != nominal.paper.spread,
                   other.paper.solid != nominal.paper.solid, other.noise != nominal.noise,
                   other.noiseCorrelation != nominal.noiseCorrelation,
                   other.inches != nominal.inches, other.gain != nominal.gain},
        true);
  };
  EXPECT_EQ(changes(all[0].conditions), 0);
  for (std::size_t i = 1; i < all.size(); ++i) {
    EXPECT_EQ(changes(all[i].conditions), 1) << all[i].name;
  }
}

TEST(Robustness, WhereASetFallsBehindIsTold) {
  const ScreenSet set = validSet();
  std::ostringstream out;
  writeStandings(
      out, std::vector<Standing>{{&set, {{"as made for", kPaperClasses[1]}, "Bayer", 2.0}, 1.0},
                                 {&set, {{"8 inches", kPaperClasses[1]}, "45 degrees", 1.0}, 2.0}});
  EXPECT_EQ(out.str(),
            "set              condition    best baseline  its J     J  share\n"
            "Fast Mono plain  as made for  Bayer           2.00  1.00   0.50\n"
            "Fast Mono plain  8 inches     45 degrees      1.00  2.00   2.00\n"
            "Fast Mono plain: behind 45 degrees under 8 inches\n");
}

TEST(Robustness, ThatAllStayAheadIsToldToo) {
  const ScreenSet set = validSet();
  std::ostringstream out;
  writeStandings(
      out, std::vector<Standing>{{&set, {{"as made for", kPaperClasses[1]}, "Bayer", 2.0}, 1.0}});
  EXPECT_NE(out.str().find("Every set stays ahead"), std::string::npos) << out.str();
}

#ifndef GDI_SLOW_BUILD
TEST(Robustness, TheRivalIsTheBestOfAllBaselines) {
  const Conditions& nominal = kPaperClasses[2];
  const std::vector<Rival> rivals = rivalsOf(nominal, 1, false);
  const Rival& gradual = rivals.at(5);
  ASSERT_EQ(gradual.other.name, "softness 0.12");
  double least = 100.0;
  std::string best;
  for (const MadeBaseline& baseline : baselinesFor(nominal, 1)) {
    const double j = qualityOf(baseline.screens, false, gradual.other.conditions).composite();
    best = j < least ? baseline.name : best;
    least = std::min(least, j);
  }
  EXPECT_EQ(gradual.j, least);
  EXPECT_EQ(gradual.baseline, best);
}

TEST(Robustness, ASetStandsBesideTheBestBaselineUnderEveryCondition) {
  const std::vector sets{validSet()};
  const std::vector<Standing> standings = standingsOf(sets);
  ASSERT_EQ(standings.size(), 10U);
  for (const Standing& standing : standings) {
    EXPECT_GT(standing.rival.j, 0.0) << standing.rival.other.name;
    EXPECT_FALSE(standing.rival.baseline.empty());
  }
  // Twice the noise is seen more, from further off everything less.
  EXPECT_GT(standings[7].j, standings[0].j);
  EXPECT_LT(standings[9].j, standings[8].j);
}
#endif

}  // namespace
}  // namespace gdi::screenquality
