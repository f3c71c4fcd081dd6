// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/makescreens/screen_line.h"

#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace gdi::makescreens {
namespace {

constexpr std::string_view kHead =
    "quality Fine 4\n"
    "class plain 0.58 0.42 0.055 1.1 0.035 0.16\n"
    "paper Bond plain\n";

std::optional<Parameters> parametersOf(const std::string& text) {
  std::string error;
  std::optional<Parameters> read = parseParameters(text, "screens.conf", error);
  EXPECT_TRUE(read.has_value()) << error;
  return read;
}

// What is read back when all planes have that screen, at a depth at which every tile is large
// enough.
std::optional<ScreenParameters> readBack(const ScreenParameters& screen) {
  Parameters names;
  names.qualities.push_back({"Fine", 4});
  names.classes.push_back({"plain", {}, 0.0});
  std::string text(kHead);
  for (std::size_t plane = 0; plane < kPlanes.size(); ++plane) {
    text += screenLine(names, 0, 0, plane, screen) + '\n';
    for (const std::string& order : orderLines(names, 0, 0, plane, screen)) {
      text += order + '\n';
    }
  }
  const std::optional<Parameters> read = parametersOf(text);
  return read ? std::optional(read->screen(0, 0, kPlanes.size() - 1)) : std::nullopt;
}

TEST(ScreenLine, HasTheColumnsOfTheParameterFile) {
  Parameters names;
  names.qualities.push_back({"Standard", 2});
  names.classes.push_back({"smooth", {}, 0.0});
  ScreenParameters screen;
  screen.lattice = {24, 3, -4, 3, 4, 540, 721};
  screen.leastCells = 28;
  screen.softEdge = 0.104;
  screen.growth = {28.07, 4.0, {1.0, -0.03, 0.0, {}}, {0.5, 0.25, -0.29, {}}, 1, 2};
  screen.gradualWeight = 1.5;
  EXPECT_EQ(screenLine(names, 0, 0, 4, screen),
            "screen smooth Standard mono     24   3  -4   3   4   0.54  0.721     28 0.104  28.07"
            "     4     1  -0.03      0   0.5   0.25  -0.29  1  2   1.5");
}

TEST(ScreenLine, IsReadBackExactly) {
  ScreenParameters screen;
  screen.lattice = {14, 2, -3, 4, 1, 7, 999};
  screen.leastCells = 30;
  screen.softEdge = 1.0 / 3.0;
  screen.growth = {0.1 + 0.2, 1e-7 + 1.0, {1.0 / 7.0, -1.0, 0.0, {}}, {1e-12, 2.0 / 3.0, 0.0, {}},
                   16,        1};
  screen.gradualWeight = 0.7;
  EXPECT_EQ(readBack(screen), screen);
}

TEST(ScreenLine, OrdersOfPixelsHaveLinesOfTheirOwn) {
  Parameters names;
  names.qualities.push_back({"Fine", 4});
  names.classes.push_back({"plain", {}, 0.0});
  ScreenParameters screen;
  screen.lattice = {14, 2, -3, 4, 1, 345, 213};
  screen.leastCells = 14;
  EXPECT_TRUE(orderLines(names, 0, 0, 1, screen).empty());
  screen.growth.holes.order = {0, 1, 2, 3, 4, 6, 5, 7, 8, 9, 10, 11, 12, 13};
  EXPECT_EQ(orderLines(names, 0, 0, 1, screen),
            std::vector<std::string>{"order  plain  Fine     magenta holes  0  1  2  3  4  6  5  7 "
                                     " 8  9 10 11 12 13"});
  screen.growth.dots.order = {1, 0, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13};
  EXPECT_EQ(orderLines(names, 0, 0, 1, screen).size(), 2U);
  EXPECT_EQ(readBack(screen), screen);
}

TEST(ScreenLine, OfEveryBundledScreenIsReadBackExactly) {
  std::ifstream file(GDI_PARAMETERS);
  const std::optional<Parameters> parameters =
      parametersOf(std::string{std::istreambuf_iterator<char>(file), {}});
  ASSERT_TRUE(parameters.has_value());
  ASSERT_FALSE(parameters->screens.empty());
  for (const ScreenParameters& screen : parameters->screens) {
    EXPECT_EQ(readBack(screen), screen);
  }
}

}  // namespace
}  // namespace gdi::makescreens
