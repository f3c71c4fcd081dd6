// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/report.h"

#include <sstream>

#include <gtest/gtest.h>

#include "tests/screenquality/small_bundle.h"

namespace gdi::screenquality {
namespace {

// J is the root of 0.6^2 + 0.8^2.
Quality quality() {
  Quality result;
  result.grain = 0.6;
  result.steps = 0.8;
  result.noise = 0.31;
  return result;
}

JudgedSet judged(const ScreenSet& set) {
  JudgedSet result;
  result.set = &set;
  result.quality = quality();
  result.repeat = 5;
  return result;
}

TEST(Report, ASetIsALineOfItsFigures) {
  const ScreenSet set = validSet();
  JudgedSet line = judged(set);
  line.goal = 1.1;
  line.bestBaseline = 1.4;
  std::ostringstream out;
  writeSets(out, std::vector{line});
  EXPECT_EQ(
      out.str(),
      "quality  mode  papers        J  goal  baseline     G    LF     T     D     H     Q  RG "
      "    N  repeat\n"
      "Fast     Mono  plain (2)  1.00  1.10      1.40  0.60  0.00  0.00  0.00  0.00  0.80   - "
      " 0.31       5\n");
}

TEST(Report, RegistrationIsOfColourAlone) {
  ScreenSet set = validSet();
  set.mode = "Color";
  JudgedSet line = judged(set);
  line.quality.registration = 0.25;
  std::ostringstream out;
  writeSets(out, std::vector{line});
  EXPECT_NE(out.str().find("  0.80  0.25  0.31  "), std::string::npos) << out.str();
  // Neither goal nor baseline.
  EXPECT_NE(out.str().find("     -         -  "), std::string::npos) << out.str();
}

TEST(Report, ABaselineIsALine) {
  std::ostringstream out;
  writeBaselines(
      out, std::vector<JudgedBaseline>{{"Bayer", &kPaperClasses[1], 2, "Mono", false, quality()}});
  EXPECT_EQ(out.str(),
            "baseline  depth  mode  papers     J     G    LF     T     D     H     Q  RG     N\n"
            "Bayer     2      Mono  plain   1.00  0.60  0.00  0.00  0.00  0.00  0.80   -  0.31\n");
}

TEST(Report, WhatErrorDiffusionLeavesOutIsTold) {
  std::ostringstream out;
  writeBaselines(out, std::vector<JudgedBaseline>{
                          {"error diffusion", &kPaperClasses[1], 1, "Mono", true, quality()}});
  EXPECT_NE(out.str().find("in black alone, without RG"), std::string::npos) << out.str();
}

TEST(Report, EverySetsMissesAreTold) {
  const ScreenSet set = validSet();
  JudgedSet reaches = judged(set);
  reaches.goal = 1.0;
  JudgedSet misses = judged(set);
  misses.goal = 0.9;
  EXPECT_EQ(missesOf(std::vector{reaches, misses}),
            std::vector<std::string>{"Fast Mono plain: J 1.000 misses its goal 0.900"});
}

}  // namespace
}  // namespace gdi::screenquality
