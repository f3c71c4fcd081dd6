// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/makescreens/parameters.h"

#include <optional>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace gdi::makescreens {
namespace {

// The least that is complete: 10 lines.
constexpr std::string_view kGood =
    "quality Fast 1 50\n"
    "class plain 0.58 0.42 0.055 1.1 0.035 0.16\n"
    "paper Bond plain\n"
    "phase corner 0.01 0.013\n"
    "\n"
    "screen plain Fast cyan    14 2 -3 4 1 corner 0\n"
    "screen plain Fast magenta 14 3 2 1 -4 corner 0\n"
    "screen plain Fast yellow  14 3 -1 -2 -4 corner 0\n"
    "screen plain Fast black   14 1 3 4 -2 corner 0.5  # a remark\n"
    "screen plain Fast mono    20 4 -2 -2 -4 corner 1\n";

std::string errorOf(std::string_view text) {
  std::string error;
  EXPECT_FALSE(parseParameters(text, "screens.conf", error).has_value());
  return error;
}

// The error when line `number` (from 1) of the good text reads `line` instead.
std::string errorWith(int number, std::string_view line) {
  std::string text;
  std::string_view rest = kGood;
  for (int current = 1; !rest.empty(); ++current) {
    const std::size_t end = rest.find('\n');
    text += current == number ? line : rest.substr(0, end);
    text += '\n';
    rest.remove_prefix(end + 1);
  }
  return errorOf(text);
}

TEST(Parameters, AreReadFromPlainLines) {
  std::string error;
  const std::optional<Parameters> read = parseParameters(kGood, "screens.conf", error);
  ASSERT_TRUE(read.has_value()) << error;
  EXPECT_EQ(read->qualities.at(0).name, "Fast");
  EXPECT_EQ(read->qualities.at(0).depth, 1);
  EXPECT_EQ(read->qualities.at(0).leastCells, 50);
  EXPECT_EQ(read->papers.at(0).name, "Bond");
  EXPECT_DOUBLE_EQ(read->classes.at(0).model.spread, 1.1);
  EXPECT_DOUBLE_EQ(read->classes.at(0).gain, 0.16);
  EXPECT_EQ(read->screen(0, 0, 2).lattice.c, -2);
  EXPECT_EQ(read->screen(0, 0, 2).lattice.phaseV, 13);
  EXPECT_DOUBLE_EQ(read->screen(0, 0, 3).softEdge, 0.5);
  EXPECT_EQ(read->screen(0, 0, 4).lattice.n, 20);
}

TEST(Parameters, GrowthStartAndVariationMayBeStated) {
  std::string error;
  const std::string text = "growth 4 1 2\nstart black 0.5 0.25\nvariation 0.08 0.04\n";
  const auto read = parseParameters(text + std::string(kGood), "screens.conf", error);
  ASSERT_TRUE(read.has_value()) << error;
  EXPECT_DOUBLE_EQ(read->growth.evenness, 4.0);
  EXPECT_EQ(read->growth.leastDot, 1);
  EXPECT_EQ(read->growth.leastHole, 2);
  EXPECT_DOUBLE_EQ(read->starts.at(3).y, 0.25);
  EXPECT_DOUBLE_EQ(read->variation.threshold, 0.04);
}

TEST(Parameters, AnUnknownKeywordIsRefusedWithItsLine) {
  EXPECT_EQ(errorWith(5, "paint red"), "screens.conf:5: unknown keyword \"paint\"");
}

TEST(Parameters, AMissingOrSurplusFieldIsRefusedWithTheFormOfTheLine) {
  const std::string expected = "screens.conf:1: expected: quality NAME DEPTH CELLS";
  EXPECT_EQ(errorWith(1, "quality Fast 1"), expected);
  EXPECT_EQ(errorWith(1, "quality Fast 1 50 3"), expected);
  EXPECT_EQ(errorWith(1, "quality"), expected);
}

TEST(Parameters, ANumberOutOfRangeOrWithTextBehindItIsRefused) {
  EXPECT_EQ(errorWith(2, "class plain 0 0.42 0.055 1.1 0.035 0.16"),
            "screens.conf:2: spot \"0\" is no number of 0.1 to 1");
  EXPECT_EQ(errorWith(2, "class plain 0.58x 0.42 0.055 1.1 0.035 0.16"),
            "screens.conf:2: spot \"0.58x\" is no number of 0.1 to 1");
  EXPECT_EQ(errorWith(2, "class plain nan 0.42 0.055 1.1 0.035 0.16"),
            "screens.conf:2: spot \"nan\" is no number of 0.1 to 1");
  EXPECT_EQ(errorWith(1, "quality Fast 1 99999999999"),
            "screens.conf:1: cell count \"99999999999\" is no number of 1 to 1024");
  EXPECT_EQ(errorWith(1, "quality Fast 3 50"), "screens.conf:1: depth is none of 1, 2, 4 and 8");
}

TEST(Parameters, AnUnknownReferenceIsRefused) {
  EXPECT_EQ(errorWith(3, "paper Bond glossy"), "screens.conf:3: unknown class \"glossy\"");
  EXPECT_EQ(errorWith(6, "screen plain Best cyan 14 2 -3 4 1 corner 0"),
            "screens.conf:6: unknown quality \"Best\"");
  EXPECT_EQ(errorWith(6, "screen plain Fast cyan 14 2 -3 4 1 edge 0"),
            "screens.conf:6: unknown phase \"edge\"");
  EXPECT_EQ(errorWith(6, "screen plain Fast orange 14 2 -3 4 1 corner 0"),
            "screens.conf:6: unknown plane \"orange\"");
}

TEST(Parameters, ANameGivenTwiceOrUnfitForAFileIsRefused) {
  EXPECT_EQ(errorWith(5, "paper Bond plain"), "screens.conf:5: paper \"Bond\" is given twice");
  EXPECT_EQ(errorWith(5, "paper ../Bond plain"),
            "screens.conf:5: \"../Bond\" is no name of letters and digits");
}

TEST(Parameters, AScreenGivenTwiceIsRefused) {
  EXPECT_EQ(errorWith(7, "screen plain Fast cyan 14 3 2 1 -4 corner 0"),
            "screens.conf:7: this class, quality and plane has a screen already");
}

TEST(Parameters, AMissingScreenIsNamedAtItsClass) {
  EXPECT_EQ(errorWith(9, ""), "screens.conf:2: class \"plain\" has no screen for Fast black");
}

TEST(Parameters, ALatticeWithoutAreaOrWithTinyCellsIsRefused) {
  EXPECT_EQ(errorWith(6, "screen plain Fast cyan 14 2 4 1 2 corner 0"),
            "screens.conf:6: A D - B C is 0: these are no two directions");
  EXPECT_EQ(errorWith(6, "screen plain Fast cyan 4 2 0 0 3 corner 0"),
            "screens.conf:6: a cell has less than 4 pixels");
}

TEST(Parameters, ATileTooSmallForTheLevelsOrTooLargeIsRefused) {
  // 2 x 8 cells of 14 pixels: 14 x 14 pixels are 196 units.
  EXPECT_EQ(errorWith(1, "quality Fast 1 8"),
            "screens.conf:6: the tile has only 196 units of output, fewer than the 255 levels");
  EXPECT_EQ(errorWith(1, "quality Fast 1 1000"),
            "screens.conf:6: the tile has more than 4096 pixels");
}

TEST(Parameters, AFileThatLacksAWholeKindIsRefusedAtItsEnd) {
  EXPECT_EQ(errorOf(""), "screens.conf:1: no quality is given");
  EXPECT_EQ(errorOf("quality Fast 1 50\n# end\n"), "screens.conf:2: no class is given");
  EXPECT_EQ(errorOf("quality Fast 1 50\nclass plain 0.58 0.42 0.055 1.1 0.035 0.16"),
            "screens.conf:2: no paper is given");
}

}  // namespace
}  // namespace gdi::makescreens
