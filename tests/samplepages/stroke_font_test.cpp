// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/samplepages/stroke_font.h"

#include <algorithm>
#include <string_view>

#include <gtest/gtest.h>

namespace gdi::samplepages {
namespace {

TEST(StrokeFont, AnLIsOneStrokeFromTheTopToTheBaseline) {
  const Letter letter = letterOf('l');
  ASSERT_EQ(letter.strokes.size(), 1U);
  EXPECT_EQ(letter.strokes[0].from, (Point{0, 0}));
  EXPECT_EQ(letter.strokes[0].to, (Point{0, 8 * kUnit}));
  EXPECT_EQ(letter.advance, 5 * kUnit / 2);
}

TEST(StrokeFont, EveryLetterOfRunningTextIsDrawn) {
  for (const char character :
       std::string_view("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPRSTUVWY.,-")) {
    EXPECT_FALSE(letterOf(character).strokes.empty()) << character;
  }
}

TEST(StrokeFont, AnyOtherCharacterIsABlank) {
  for (const char character : {' ', '\0', '~', '\xE4'}) {
    EXPECT_TRUE(letterOf(character).strokes.empty());
    EXPECT_GT(letterOf(character).advance, 0);
  }
}

TEST(StrokeFont, LettersStayBetweenTheTopOfCapitalsAndTheFootOfDescenders) {
  for (char character = 'A'; character <= 'z'; ++character) {
    const Letter letter = letterOf(character);
    for (const Stroke& stroke : letter.strokes) {
      for (const Point& point : {stroke.from, stroke.to}) {
        EXPECT_TRUE(point.x >= 0 && point.x < letter.advance) << character;
        EXPECT_TRUE(point.y >= 0 && point.y <= 10 * kUnit) << character;
      }
    }
  }
}

// The curve of an o touches its box in the middle of each side and keeps away from the corners.
TEST(StrokeFont, AnOIsRoundAndClosed) {
  const Letter letter = letterOf('o');
  ASSERT_GT(letter.strokes.size(), 16U);
  EXPECT_EQ(letter.strokes.front().from, letter.strokes.back().to);
  int left = 4 * kUnit;
  for (const Stroke& stroke : letter.strokes) {
    left = std::min(left, stroke.from.x);
    EXPECT_FALSE(stroke.from.x < kUnit / 2 && stroke.from.y < 7 * kUnit / 2);
  }
  EXPECT_LE(left, kUnit / 16);
}

}  // namespace
}  // namespace gdi::samplepages
