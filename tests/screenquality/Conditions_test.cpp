// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/Conditions.h"

#include <array>
#include <string_view>

#include <gtest/gtest.h>

namespace gdi::screenquality {
namespace {

std::string_view classNameOf(std::string_view paperType) {
  const Conditions* conditions = paperClassOf(paperType);
  return conditions == nullptr ? "none" : conditions->name;
}

TEST(PaperClasses, ColourPaperIsSmooth) {
  EXPECT_EQ(classNameOf("Color"), "smooth");
}

TEST(PaperClasses, OfficePapersArePlain) {
  for (const char* paper : {"Thin", "Plain", "Plain90", "Preprinted", "Prepunched", "Letterhead"}) {
    EXPECT_EQ(classNameOf(paper), "plain") << paper;
  }
}

TEST(PaperClasses, RecycledAndHeavyPapersAreRough) {
  for (const char* paper :
       {"Recycled", "Bond", "Thick", "Thick160", "Cardstock", "Labels", "Envelope"}) {
    EXPECT_EQ(classNameOf(paper), "rough") << paper;
  }
}

TEST(PaperClasses, ANameThatNoJobCarriesHasNone) {
  for (const char* paper : {"", "plain", "Plain9", "Plain900", "Glossy", "smooth"}) {
    EXPECT_EQ(paperClassOf(paper), nullptr) << paper;
  }
}

// Spot, threshold, softness, spread, solid, noise and its correlation, gain, inches.
TEST(PaperClasses, HaveTheFiguresThatAllJudgementsCompareUnder) {
  using Figures = std::array<double, 9>;
  const auto figuresOf = [](const Conditions& one) {
    const PaperModel& paper = one.paper;
    return Figures{paper.spot, paper.threshold,      paper.softness, paper.spread, paper.solid,
                   one.noise,  one.noiseCorrelation, one.gain,       one.inches};
  };
  EXPECT_EQ(figuresOf(kPaperClasses[0]),
            (Figures{0.55, 0.43, 0.050, 0.9, 0.035, 0.032, 1.5, 0.14, 12.0}));
  EXPECT_EQ(figuresOf(kPaperClasses[1]),
            (Figures{0.58, 0.42, 0.055, 1.1, 0.035, 0.040, 1.5, 0.16, 12.0}));
  EXPECT_EQ(figuresOf(kPaperClasses[2]),
            (Figures{0.66, 0.41, 0.065, 1.4, 0.035, 0.055, 1.8, 0.19, 12.0}));
}

}  // namespace
}  // namespace gdi::screenquality
