// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/searchscreens/Task.h"

#include <gtest/gtest.h>

#include "tests/searchscreens/small_screens.h"

namespace gdi::searchscreens {
namespace {

std::string problemWith(const std::string& text, const std::string& paperClass,
                        const std::string& quality, const std::string& mode) {
  const Parameters parameters = parsed(text);
  std::string problem;
  EXPECT_FALSE(taskOf(parameters, paperClass, quality, mode, problem).has_value());
  return problem;
}

TEST(Task, HasTheScreensOfItsMode) {
  const Parameters parameters = parsed(smallParameters());
  std::string problem;
  const auto colour = taskOf(parameters, "plain", "Fast", "Color", problem);
  ASSERT_TRUE(colour.has_value()) << problem;
  EXPECT_TRUE(colour->isColour());
  ASSERT_EQ(colour->screens().size(), 4U);
  EXPECT_EQ(colour->screens()[2], parameters.screen(0, 0, 2));
  EXPECT_EQ(colour->nameOf(3), "plain-Fast-black");
  EXPECT_EQ(colour->conditions->name, "plain");

  const auto mono = taskOf(parameters, "plain", "Fast", "Mono", problem);
  ASSERT_TRUE(mono.has_value()) << problem;
  EXPECT_FALSE(mono->isColour());
  ASSERT_EQ(mono->screens().size(), 1U);
  EXPECT_EQ(mono->screens()[0], parameters.screen(0, 0, 4));
  EXPECT_EQ(mono->nameOf(0), "plain-Fast-mono");
}

TEST(Task, AnUnknownWordIsNamed) {
  const std::string text = smallParameters();
  EXPECT_EQ(problemWith(text, "glossy", "Fast", "Color"), "there is no class \"glossy\"");
  EXPECT_EQ(problemWith(text, "plain", "Best", "Color"), "there is no quality \"Best\"");
  EXPECT_EQ(problemWith(text, "plain", "Fast", "Grey"),
            "the mode \"Grey\" is none of Color and Mono");
}

TEST(Task, AClassThatTheMeasureDoesNotKnowIsRefused) {
  std::string text = smallParameters();
  for (std::size_t at = 0; (at = text.find("plain", at)) != std::string::npos;) {
    text.replace(at, 5, "silky");
  }
  EXPECT_EQ(problemWith(text, "silky", "Fast", "Mono"),
            "there are no conditions to judge the class \"silky\" under");
}

TEST(Task, AScreenThatBreaksARuleIsNamed) {
  std::string text = smallParameters();
  const std::string good = "14 2 -3 4 1   0.01 0.013 28";
  text.replace(text.find(good), good.size(), "16 1 0 0 1 0.01 0.013 1");
  // "1 16 16 8 1", a zero byte, 16 x 16 x 32 bytes
  EXPECT_EQ(problemWith(text, "plain", "Fast", "Color"),
            "plain-Fast-cyan: the file has 8204 bytes, outside 12000 to 150000");
}

}  // namespace
}  // namespace gdi::searchscreens
