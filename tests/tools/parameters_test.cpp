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
    "quality Fast 1\n"
    "class plain 0.58 0.42 0.055 1.1 0.035 0.16\n"
    "paper Bond plain\n"
    "start black 0.5 0.25\n"
    "\n"
    "screen plain Fast cyan    14 2 -3 4 1   0.01 0.013 50 0   6 1 1 0 0 1 0 0 2 3 1\n"
    "screen plain Fast magenta 14 3 2 1 -4   0.01 0.013 50 0   6 1 1 0 0 1 0 0 2 3 1\n"
    "screen plain Fast yellow  14 3 -1 -2 -4 0.01 0.013 50 0   6 1 1 0 0 1 0 0 2 3 1\n"
    "screen plain Fast black   14 1 3 4 -2   0.01 0.013 50 0.5 6 1 1 0 0 1 0 0 2 3 1  # a remark\n"
    "screen plain Fast mono    20 4 -2 -2 -4 0.5 0 50 1 4 1.5 0.8 -0.1 0 0.7 0.2 0.3 1 4 2.5\n";

// What follows a lattice whose cells are alike.
constexpr std::string_view kPlain = " 0.01 0.013 50 0 6 1 1 0 0 1 0 0 2 3 1";

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

std::string screenLine(std::string_view beginning) {
  std::string line = "screen ";
  line += beginning;
  line += kPlain;
  return line;
}

TEST(Parameters, AreReadFromPlainLines) {
  std::string error;
  const std::optional<Parameters> read = parseParameters(kGood, "screens.conf", error);
  ASSERT_TRUE(read.has_value()) << error;
  EXPECT_EQ(read->qualities.at(0).name, "Fast");
  EXPECT_EQ(read->qualities.at(0).depth, 1);
  EXPECT_EQ(read->papers.at(0).name, "Bond");
  EXPECT_DOUBLE_EQ(read->classes.at(0).model.spread, 1.1);
  EXPECT_DOUBLE_EQ(read->classes.at(0).gain, 0.16);
  EXPECT_EQ(read->screen(0, 0, 2).lattice.c, -2);
  EXPECT_EQ(read->screen(0, 0, 2).lattice.phaseV, 13);
  EXPECT_DOUBLE_EQ(read->screen(0, 0, 3).softEdge, 0.5);
  EXPECT_EQ(read->screen(0, 0, 0).leastCells, 50);
  EXPECT_DOUBLE_EQ(read->starts.at(3).y, 0.25);
}

TEST(Parameters, AScreenSaysHowItsDotsAndItsHolesGrow) {
  std::string error;
  const std::optional<Parameters> read = parseParameters(kGood, "screens.conf", error);
  ASSERT_TRUE(read.has_value()) << error;
  const ScreenParameters& screen = read->screen(0, 0, 4);
  EXPECT_EQ(screen.lattice.n, 20);
  EXPECT_EQ(screen.lattice.phaseU, 500);
  EXPECT_DOUBLE_EQ(screen.softEdge, 1.0);
  EXPECT_DOUBLE_EQ(screen.growth.evenness, 4.0);
  EXPECT_DOUBLE_EQ(screen.growth.reach, 1.5);
  EXPECT_DOUBLE_EQ(screen.growth.dots.ellipse, 0.8);
  EXPECT_DOUBLE_EQ(screen.growth.dots.roundness, -0.1);
  EXPECT_DOUBLE_EQ(screen.growth.dots.pairs, 0.0);
  EXPECT_DOUBLE_EQ(screen.growth.holes.ellipse, 0.7);
  EXPECT_DOUBLE_EQ(screen.growth.holes.roundness, 0.2);
  EXPECT_DOUBLE_EQ(screen.growth.holes.pairs, 0.3);
  EXPECT_EQ(screen.growth.leastDot, 1);
  EXPECT_EQ(screen.growth.leastHole, 4);
  EXPECT_DOUBLE_EQ(screen.gradualWeight, 2.5);
}

TEST(Parameters, VariationMayBeStated) {
  std::string error;
  const auto read = parseParameters("variation 0.08 0.04 0.12\n" + std::string(kGood), "x", error);
  ASSERT_TRUE(read.has_value()) << error;
  EXPECT_DOUBLE_EQ(read->variation.threshold, 0.04);
  EXPECT_DOUBLE_EQ(read->variation.softness, 0.12);
}

TEST(Parameters, AnUnknownKeywordIsRefusedWithItsLine) {
  EXPECT_EQ(errorWith(5, "paint red"), "screens.conf:5: unknown keyword \"paint\"");
}

TEST(Parameters, AMissingOrSurplusFieldIsRefusedWithTheFormOfTheLine) {
  const std::string expected = "screens.conf:1: expected: quality NAME DEPTH";
  EXPECT_EQ(errorWith(1, "quality Fast"), expected);
  EXPECT_EQ(errorWith(1, "quality Fast 1 50"), expected);
  EXPECT_EQ(errorWith(1, "quality"), expected);
}

TEST(Parameters, ANumberOutOfRangeOrWithTextBehindItIsRefused) {
  EXPECT_EQ(errorWith(2, "class plain 0 0.42 0.055 1.1 0.035 0.16"),
            "screens.conf:2: spot \"0\" is no number of 0.1 to 1");
  EXPECT_EQ(errorWith(2, "class plain 0.58x 0.42 0.055 1.1 0.035 0.16"),
            "screens.conf:2: spot \"0.58x\" is no number of 0.1 to 1");
  EXPECT_EQ(errorWith(2, "class plain nan 0.42 0.055 1.1 0.035 0.16"),
            "screens.conf:2: spot \"nan\" is no number of 0.1 to 1");
  EXPECT_EQ(errorWith(1, "quality Fast 99999999999"),
            "screens.conf:1: depth \"99999999999\" is no number of 1 to 8");
  EXPECT_EQ(errorWith(1, "quality Fast 3"), "screens.conf:1: depth is none of 1, 2, 4 and 8");
}

TEST(Parameters, AWeightBeyond100IsRefused) {
  EXPECT_EQ(errorWith(6, "screen plain Fast cyan 14 2 -3 4 1 0 0 50 0 6 1 1 0 0 1 0 0 2 3 101"),
            "screens.conf:6: gradual weight \"101\" is no number of 0 to 100");
}

TEST(Parameters, AnUnknownReferenceIsRefused) {
  EXPECT_EQ(errorWith(3, "paper Bond glossy"), "screens.conf:3: unknown class \"glossy\"");
  EXPECT_EQ(errorWith(6, screenLine("plain Best cyan 14 2 -3 4 1")),
            "screens.conf:6: unknown quality \"Best\"");
  EXPECT_EQ(errorWith(6, screenLine("plain Fast orange 14 2 -3 4 1")),
            "screens.conf:6: unknown plane \"orange\"");
}

TEST(Parameters, ANameGivenTwiceOrUnfitForAFileIsRefused) {
  EXPECT_EQ(errorWith(5, "paper Bond plain"), "screens.conf:5: paper \"Bond\" is given twice");
  EXPECT_EQ(errorWith(5, "paper ../Bond plain"),
            "screens.conf:5: \"../Bond\" is no name of letters and digits");
}

TEST(Parameters, AScreenGivenTwiceIsRefused) {
  EXPECT_EQ(errorWith(7, screenLine("plain Fast cyan 14 3 2 1 -4")),
            "screens.conf:7: this class, quality and plane has a screen already");
}

TEST(Parameters, AMissingScreenIsNamedAtItsClass) {
  EXPECT_EQ(errorWith(9, ""), "screens.conf:2: class \"plain\" has no screen for Fast black");
}

TEST(Parameters, ALatticeWithoutAreaOrWithTinyCellsIsRefused) {
  EXPECT_EQ(errorWith(6, screenLine("plain Fast cyan 14 2 4 1 2")),
            "screens.conf:6: A D - B C is 0: these are no two directions");
  EXPECT_EQ(errorWith(6, screenLine("plain Fast cyan 4 2 0 0 3")),
            "screens.conf:6: a cell has less than 4 pixels");
}

TEST(Parameters, ATileTooSmallForTheLevelsOrTooLargeIsRefused) {
  // 2 x 8 cells of 14 pixels: 14 x 14 pixels are 196 units.
  EXPECT_EQ(errorWith(6, "screen plain Fast cyan 14 2 -3 4 1 0 0 8 0 6 1 1 0 0 1 0 0 2 3 1"),
            "screens.conf:6: the tile has only 196 units of output, fewer than the 255 levels");
  EXPECT_EQ(errorWith(6, "screen plain Fast cyan 14 2 -3 4 1 0 0 1000 0 6 1 1 0 0 1 0 0 2 3 1"),
            "screens.conf:6: the tile has more than 4096 pixels");
}

TEST(Parameters, PairsThatTheTileCannotRepeatAreRefused) {
  // A tile of one cell, and of 3 by 1: of three cells in a row two neighbours would be alike.
  EXPECT_EQ(errorWith(6, "screen plain Fast cyan 16 1 0 0 1 0 0 1 0 6 1 1 0 0.1 1 0 0 2 3 1"),
            "screens.conf:6: the tile holds no whole pairs of cells: PAIRS has to be 0");
}

TEST(Parameters, AFileThatLacksAWholeKindIsRefusedAtItsEnd) {
  EXPECT_EQ(errorOf(""), "screens.conf:1: no quality is given");
  EXPECT_EQ(errorOf("quality Fast 1\n# end\n"), "screens.conf:2: no class is given");
  EXPECT_EQ(errorOf("quality Fast 1\nclass plain 0.58 0.42 0.055 1.1 0.035 0.16"),
            "screens.conf:2: no paper is given");
}

// Line 6 is cyan's screen, whose cells have 14 pixels.
std::string ordered(std::string_view order) {
  return std::string(screenLine("plain Fast cyan 14 2 -3 4 1")).append("\norder ").append(order);
}

TEST(Parameters, AnOrderTellsThePlacesOfACellsPixels) {
  std::string text(kGood);
  text += "order plain Fast mono holes 0 1 3 2 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19\n";
  std::string error;
  const std::optional<Parameters> read = parseParameters(text, "screens.conf", error);
  ASSERT_TRUE(read.has_value()) << error;
  EXPECT_EQ(read->screen(0, 0, 4).growth.holes.order[2], 3);
  EXPECT_EQ(read->screen(0, 0, 4).growth.holes.order.size(), 20U);
  EXPECT_TRUE(read->screen(0, 0, 4).growth.dots.order.empty());
}

TEST(Parameters, AnOrderThatLeavesAPixelOutIsRefused) {
  EXPECT_EQ(errorWith(6, ordered("plain Fast cyan dots 0 1 2 3 4 5 6 7 8 9 10 11 12")),
            "screens.conf:7: the order of dots has to name each of 0 to 13 once");
  EXPECT_EQ(errorWith(6, ordered("plain Fast cyan dots 0 1 2 3 4 5 6 7 8 9 10 11 13 13")),
            "screens.conf:7: the order of dots has to name each of 0 to 13 once");
  EXPECT_EQ(errorWith(6, ordered("plain Fast cyan holes 0 1 2 3 4 5 6 7 8 9 10 11 12 14")),
            "screens.conf:7: the order of holes has to name each of 0 to 13 once");
  EXPECT_EQ(errorWith(6, ordered("plain Fast cyan holes 0 1 -2")),
            "screens.conf:7: place \"-2\" is no number of 0 to 9999");
}

TEST(Parameters, AnOrderNeedsAScreenAndComesOnce) {
  EXPECT_EQ(errorWith(6, ordered("plain Fast magenta dots 0 1")),
            "screens.conf:7: this class, quality and plane has no screen yet");
  EXPECT_EQ(errorWith(6, ordered("plain Fast cyan rings 0 1")),
            "screens.conf:7: \"rings\" is neither dots nor holes");
  EXPECT_EQ(errorWith(6, ordered("plain Fast cyan dots")),
            "screens.conf:7: expected: order CLASS QUALITY PLANE dots|holes PLACE...");
  EXPECT_EQ(errorWith(6, ordered("plain Fast cyan dots 0 1 2 3 4 5 6 7 8 9 10 11 12 13\n"
                                 "order plain Fast cyan dots 0 1 2 3 4 5 6 7 8 9 10 11 12 13")),
            "screens.conf:8: these dots have an order already");
}

TEST(Parameters, WhereEverySecondDotIsLargerAnOrderNamesThePixelsOfTwoCells) {
  const std::string paired =
      "screen plain Fast cyan 14 2 -3 4 1 0.01 0.013 50 0 6 1 1 0 0.1 1 0 0 2 3 1\n";
  EXPECT_EQ(errorWith(6, paired + "order plain Fast cyan dots 0 1 2 3 4 5 6 7 8 9 10 11 12 13"),
            "screens.conf:7: the order of dots has to name each of 0 to 27 once");
}

}  // namespace
}  // namespace gdi::makescreens
