// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/bundled_sets.h"

#include <algorithm>
#include <set>
#include <sstream>

#include <gtest/gtest.h>

#include "tests/screenquality/small_bundle.h"

namespace gdi::screenquality {
namespace {

// The sets of a small bundle; an empty list when they are refused, for `errors`.
std::vector<ScreenSet> setsOf(SmallBundle& bundle, std::ostringstream& errors) {
  bundle.write();
  return loadScreenSets(bundle.path(), errors).value_or(std::vector<ScreenSet>{});
}

const ScreenSet* find(const std::vector<ScreenSet>& sets, const std::string& quality,
                      const std::string& mode, const std::string& paper) {
  const auto found = std::ranges::find_if(sets, [&](const ScreenSet& set) {
    return set.quality == quality && set.mode == mode && std::ranges::count(set.papers, paper) == 1;
  });
  return found == sets.end() ? nullptr : &*found;
}

TEST(ScreenSetKeys, AreQualityPaperAndModeInAllCombinations) {
  const std::vector<std::string> keys = screenSetKeys();
  EXPECT_EQ(std::set<std::string>(keys.begin(), keys.end()).size(), 84U);
  EXPECT_EQ(keys.size(), 84U);
  EXPECT_EQ(std::ranges::count(keys, "StandardThick160Mono"), 1);
}

TEST(BundledSets, PapersOfAClassWithTheSameScreensAreOneSet) {
  SmallBundle bundle;
  std::ostringstream errors;
  const std::vector<ScreenSet> sets = setsOf(bundle, errors);
  EXPECT_EQ(sets.size(), 3U * 2U * 3U);
  const ScreenSet* plain = find(sets, "Fine", "Color", "Letterhead");
  ASSERT_NE(plain, nullptr) << errors.str();
  EXPECT_EQ(plain->papers.size(), 6U);
  EXPECT_EQ(plain->conditions, paperClassOf("Plain"));
  EXPECT_EQ(plain->depth, 4);
  EXPECT_EQ(plain->title(), "Fine Color plain");
  EXPECT_EQ(plain->screens[3].name, "flip");
}

TEST(BundledSets, APaperWithAScreenOfItsOwnIsASetOfItsOwn) {
  SmallBundle bundle;
  bundle.addScreen("late", 1, 8, 1, [](int, int level) { return level > 128 ? 1U : 0U; });
  bundle.set("FastBondColor").screens[2] = "late";
  bundle.addScreen("twin", 1, 8, 1, [](int, int level) { return level > 127 ? 1U : 0U; });
  bundle.set("FastThinColor").screens[2] = "twin";
  std::ostringstream errors;
  const std::vector<ScreenSet> sets = setsOf(bundle, errors);
  EXPECT_EQ(sets.size(), 19U);
  const ScreenSet* bond = find(sets, "Fast", "Color", "Bond");
  ASSERT_NE(bond, nullptr) << errors.str();
  EXPECT_EQ(bond->key(), "FastBondColor");
  EXPECT_EQ(bond->papers.size(), 1U);
  // The name of a file makes no difference.
  const ScreenSet* thin = find(sets, "Fast", "Color", "Thin");
  ASSERT_NE(thin, nullptr);
  EXPECT_EQ(thin->papers.size(), 6U);
}

TEST(BundledSets, APaperOfAnotherDepthIsASetOfItsOwn) {
  SmallBundle bundle;
  bundle.set("FastBondMono").depth = 2;
  std::ostringstream errors;
  const std::vector<ScreenSet> sets = setsOf(bundle, errors);
  EXPECT_EQ(sets.size(), 19U);
}

TEST(BundledSets, AMissingSetIsNamed) {
  SmallBundle bundle;
  bundle.remove("StandardLabelsMono");
  bundle.write();
  std::ostringstream errors;
  EXPECT_FALSE(loadScreenSets(bundle.path(), errors));
  EXPECT_EQ(errors.str(), std::string("screenquality: ")
                              .append(bundle.path().string())
                              .append(": the set StandardLabelsMono cannot be loaded\n"));
}

TEST(BundledSets, ASetWithAMissingScreenIsNamed) {
  SmallBundle bundle;
  bundle.set("FineEnvelopeColor").screens[1] = "nowhere";
  bundle.write();
  std::ostringstream errors;
  EXPECT_FALSE(loadScreenSets(bundle.path(), errors));
  EXPECT_NE(errors.str().find("FineEnvelopeColor"), std::string::npos) << errors.str();
}

TEST(BundledSets, AScreenIsCutToTheDepthOfItsSet) {
  SmallBundle bundle;
  bundle.addScreen("deep", 2, 8, 4, [](int column, int level) {
    return static_cast<unsigned>(column == 0 ? level / 16 : 15 - level / 16);
  });
  bundle.set("StandardColorMono").screens[3] = "deep";
  std::ostringstream errors;
  const std::vector<ScreenSet> sets = setsOf(bundle, errors);
  const ScreenSet* set = find(sets, "Standard", "Mono", "Color");
  ASSERT_NE(set, nullptr) << errors.str();
  const BundledScreen& deep = set->screens[3];
  EXPECT_EQ(deep.outputDepth, 4);
  EXPECT_EQ(deep.bytes, 10U + 2 * 128);
  EXPECT_EQ(deep.screen.steps, 3);
  EXPECT_EQ(deep.screen.tile, (Tile{2, 1}));
  EXPECT_EQ(deep.screen.level(100)[0], 6 >> 2);  // of 100 / 16
  EXPECT_EQ(deep.screen.level(100)[1], 9 >> 2);
}

TEST(BundledSets, AScreenOfFewerInputLevelsTakesSamplesByTheirTopBits) {
  SmallBundle bundle;
  bundle.addScreen("coarse", 1, 2, 2, [](int, int level) { return static_cast<unsigned>(level); });
  bundle.set("StandardColorMono").screens[3] = "coarse";
  std::ostringstream errors;
  const std::vector<ScreenSet> sets = setsOf(bundle, errors);
  const ScreenSet* set = find(sets, "Standard", "Mono", "Color");
  ASSERT_NE(set, nullptr) << errors.str();
  const BundledScreen& coarse = set->screens[3];
  EXPECT_EQ(coarse.inputDepth, 2);
  EXPECT_EQ(coarse.screen.level(63)[0], 0);
  EXPECT_EQ(coarse.screen.level(64)[0], 1);
  EXPECT_EQ(coarse.screen.level(255)[0], 3);
}

// Another way to the same pixels: a flat scanline through the filter's halftoner.
TEST(BundledSets, ThePixelsAreThoseThatTheFilterPrints) {
  std::ostringstream errors;
  const auto sets = loadScreenSets(GDI_BUNDLE, errors);
  ASSERT_TRUE(sets) << errors.str();
  for (const ScreenSet& set : *sets) {
    SCOPED_TRACE(set.title());
    const Screen& black = set.screens[3].screen;
    const auto width = static_cast<std::size_t>(black.tile.width);
    const auto perByte = static_cast<std::size_t>(8 / set.depth);
    const std::vector<std::uint8_t> samples(width, 77);
    std::vector<std::uint8_t> row(width, 0);
    std::uint8_t* const rows[] = {row.data()};  // NOLINT: one pointer
    ASSERT_TRUE(set.halftoner->halftoneChunkyScanlineToPlanar(samples.data(), black.tile.width, 2,
                                                              rows, 1));
    for (std::size_t x = 0; x < width; ++x) {
      const std::size_t shift = 8 - static_cast<std::size_t>(set.depth) * (x % perByte + 1);
      ASSERT_EQ(black.level(77)[2 * width + x], row[x / perByte] >> shift & black.steps) << x;
    }
  }
}

}  // namespace
}  // namespace gdi::screenquality
