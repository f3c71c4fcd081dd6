// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/fitpaper/measured_screen.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace gdi::fitpaper {
namespace {

const std::string kFive = "0 0.8\n50 0.6\n100 0.4\n150 0.2\n200 0.1\n250 0.05\n255 0.04\n";

std::string faultOf(const std::string& text) {
  std::string error;
  EXPECT_FALSE(parseMeasurements(text, "m.txt", error)) << text;
  return error;
}

TEST(Measurements, AreRelativeToThePaper) {
  std::string error;
  const auto measured = parseMeasurements("# glossy\n\n" + kFive, "m.txt", error);
  ASSERT_TRUE(measured) << error;
  ASSERT_EQ(measured->patches.size(), 5U);
  EXPECT_EQ(measured->patches[1].level, 100U);
  EXPECT_NEAR(measured->patches[1].reflectance, 0.5, 1e-12);
  EXPECT_NEAR(measured->solid, 0.05, 1e-12);
}

TEST(Measurements, SeveralReadingsOfALevelAreAveraged) {
  std::string error;
  const auto measured = parseMeasurements(kFive + "100 0.5\n100 0.6\n0 0.8\n", "m.txt", error);
  ASSERT_TRUE(measured) << error;
  EXPECT_NEAR(measured->patches[1].reflectance, 0.5 / 0.8, 1e-12);
}

TEST(Measurements, MayBeDensitiesOrLightness) {
  std::string error;
  const auto measured = parseMeasurements(
      "unit density\n0 0.1\n50 0.4 # 1 / 10^0.3\n100 1.1\nunit lightness\n150 50\n200 8\n"
      "unit reflectance\n250 0.05\n255 0\n",
      "m.txt", error);
  ASSERT_TRUE(measured) << error;
  const double paper = 0.79432823;  // 10^-0.1
  EXPECT_NEAR(measured->patches[0].reflectance, 0.50118723, 1e-6);
  EXPECT_NEAR(measured->patches[1].reflectance, 0.1, 1e-6);
  EXPECT_NEAR(measured->patches[2].reflectance, 0.18418652 / paper, 1e-6);  // (66 / 116)^3
  EXPECT_NEAR(measured->patches[3].reflectance, 0.00885645 / paper, 1e-6);  // 8 x 27 / 24389
  EXPECT_EQ(measured->solid, 0.0);
}

TEST(Measurements, NameTheLineThatIsWrong) {
  EXPECT_EQ(faultOf("0 0.8\n12\n"), "m.txt:2: expected LEVEL VALUE or unit NAME");
  EXPECT_EQ(faultOf("0 0.8\n\n12 0.1 0.2\n"), "m.txt:3: expected LEVEL VALUE or unit NAME");
  EXPECT_EQ(faultOf("256 0.8\n"), "m.txt:1: \"256\" is no level of 0 to 255");
  EXPECT_EQ(faultOf("-1 0.8\n"), "m.txt:1: \"-1\" is no level of 0 to 255");
  EXPECT_EQ(faultOf("12.5 0.8\n"), "m.txt:1: \"12.5\" is no level of 0 to 255");
  EXPECT_EQ(faultOf("0 0,8\n"), "m.txt:1: \"0,8\" is no reflectance");
  EXPECT_EQ(faultOf("0 -0.8\n"), "m.txt:1: \"-0.8\" is no reflectance");
  EXPECT_EQ(faultOf("0 nan\n"), "m.txt:1: \"nan\" is no reflectance");
  EXPECT_EQ(faultOf("unit density\n0 -999\n"), "m.txt:2: \"-999\" is no density");
  EXPECT_EQ(faultOf("unit lightness\n0 -1"), "m.txt:2: \"-1\" is no lightness");
  EXPECT_EQ(faultOf("unit percent\n"), "m.txt:1: unknown unit \"percent\"");
}

TEST(Measurements, NeedPaperSolidAndFiveTonesBetween) {
  EXPECT_EQ(faultOf(""), "m.txt:0: level 0, the paper, is missing");
  EXPECT_EQ(faultOf("255 0.1\n"), "m.txt:1: level 0, the paper, is missing");
  EXPECT_EQ(faultOf("0 0.8\n50 0.6\n"), "m.txt:2: level 255, the solid, is missing");
  EXPECT_EQ(faultOf("0 0.8\n"), "m.txt:1: level 255, the solid, is missing");
  EXPECT_EQ(faultOf("0 0.8\n50 0.6\n255 0.1\n"), "m.txt:3: fewer than 5 levels from 1 to 254");
  EXPECT_EQ(faultOf(kFive + "255 2\n"), "m.txt:8: the solid is no darker than the paper");
  EXPECT_EQ(faultOf("0 0\n255 0\n"), "m.txt:2: the solid is no darker than the paper");
}

TEST(Lightness, IsThatOfTheStandardObserver) {
  EXPECT_NEAR(lightnessOf(1.0), 100.0, 1e-9);
  EXPECT_NEAR(lightnessOf(0.18418652), 50.0, 1e-5);
  EXPECT_NEAR(lightnessOf(0.001), 0.9032963, 1e-6);
  for (const double lightness : {0.0, 3.0, 8.0, 40.0, 99.0}) {
    EXPECT_NEAR(lightnessOf(reflectanceOf(lightness)), lightness, 1e-9);
  }
}

// Two pixels: the left one turns from 0 to 3 at level 128, the right one from 1 to 2.
TEST(ScreenTiles, HoldEachPixelOfEachLevel) {
  const std::string header = "1 2 1 8 2";
  std::vector<std::uint8_t> data(header.begin(), header.end());
  data.push_back(0);
  data.insert(data.end(), 32, 0x00);
  data.insert(data.end(), 32, 0xFF);
  data.insert(data.end(), 32, 0x55);
  data.insert(data.end(), 32, 0xAA);
  const auto tiles = readScreenTiles(data);
  ASSERT_TRUE(tiles);
  EXPECT_EQ(tiles->tile, (printmodel::Tile{2, 1}));
  EXPECT_EQ(tiles->steps, 3);
  ASSERT_EQ(tiles->levels.size(), 256U);
  EXPECT_EQ(tiles->levels[127], (std::vector<std::uint8_t>{0, 1}));
  EXPECT_EQ(tiles->levels[128], (std::vector<std::uint8_t>{3, 2}));
}

TEST(ScreenTiles, RefuseWhatIsNoScreenWith256Levels) {
  const std::string shallow = "1 2 1 1 2";
  std::vector<std::uint8_t> data(shallow.begin(), shallow.end());
  data.insert(data.end(), {0, 0x36});
  testing::internal::CaptureStderr();
  EXPECT_FALSE(readScreenTiles(data));
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "ERROR: the screen has not 256 input levels\n");
  data.pop_back();
  testing::internal::CaptureStderr();
  EXPECT_FALSE(readScreenTiles(data));
  EXPECT_NE(testing::internal::GetCapturedStderr(), "");
}

}  // namespace
}  // namespace gdi::fitpaper
