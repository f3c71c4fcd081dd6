// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/Conditions.h"

#include <string_view>
#include <vector>

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

TEST(PaperClasses, RougherPaperIsNoisierAndSpreadsLightFurther) {
  const auto& [smooth, plain, rough] = kPaperClasses;
  const std::vector<const Conditions*> rising{&smooth, &plain, &rough};
  for (std::size_t i = 1; i < rising.size(); ++i) {
    const Conditions& before = *rising[i - 1];
    const Conditions& after = *rising[i];
    EXPECT_LT(before.noise, after.noise);
    EXPECT_LE(before.noiseCorrelation, after.noiseCorrelation);
    EXPECT_LT(before.paper.spot, after.paper.spot);
    EXPECT_LT(before.paper.softness, after.paper.softness);
    EXPECT_LT(before.paper.spread, after.paper.spread);
    EXPECT_GT(before.paper.threshold, after.paper.threshold);
  }
}

TEST(PaperClasses, AllAreSeenFromTwelveInches) {
  for (const Conditions& conditions : kPaperClasses) {
    EXPECT_EQ(conditions.inches, 12.0) << conditions.name;
    EXPECT_EQ(conditions.paper.solid, 0.035) << conditions.name;
  }
}

}  // namespace
}  // namespace gdi::screenquality
