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
  writeStandings(out, std::vector<Standing>{{&set, "as made for", 1.0, 2.0, "Bayer"},
                                            {&set, "8 inches", 2.0, 1.0, "45 degrees"}});
  EXPECT_EQ(out.str(),
            "set              condition    best baseline  its J     J  share\n"
            "Fast Mono plain  as made for  Bayer           2.00  1.00   0.50\n"
            "Fast Mono plain  8 inches     45 degrees      1.00  2.00   2.00\n"
            "Fast Mono plain: behind 45 degrees under 8 inches\n");
}

TEST(Robustness, ThatAllStayAheadIsToldToo) {
  const ScreenSet set = validSet();
  std::ostringstream out;
  writeStandings(out, std::vector<Standing>{{&set, "as made for", 1.0, 2.0, "Bayer"}});
  EXPECT_NE(out.str().find("Every set stays ahead"), std::string::npos) << out.str();
}

#ifndef GDI_SLOW_BUILD
TEST(Robustness, ASetStandsBesideTheBestBaselineUnderEveryCondition) {
  const std::vector sets{validSet()};
  const std::vector<Standing> standings = standingsOf(sets);
  ASSERT_EQ(standings.size(), 10U);
  for (const Standing& standing : standings) {
    EXPECT_GT(standing.bestJ, 0.0) << standing.condition;
    EXPECT_FALSE(standing.best.empty());
  }
  // Twice the noise is seen more, from further off everything less.
  EXPECT_GT(standings[7].j, standings[0].j);
  EXPECT_LT(standings[9].j, standings[8].j);
}
#endif

}  // namespace
}  // namespace gdi::screenquality
