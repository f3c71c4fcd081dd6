// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// searchscreens as a maintainer runs it: its words, its exit status and where its lines go.

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "tests/searchscreens/small_screens.h"
#include "tests/support/ProgramInFolder.h"

namespace gdi::searchscreens {
namespace {

class SearchScreensProgram : public testing::Test {
 protected:
  SearchScreensProgram() { program_.folder().write("small.conf", smallParameters()); }

  // Answers the exit status.
  int run(const std::string& arguments, const std::string& output = "out") {
    return program_.run(arguments, "/dev/null", output);
  }
  [[nodiscard]] std::string out() const { return program_.out(); }
  [[nodiscard]] std::string errors() const { return program_.errors(); }
  test::ProgramInFolder& program() { return program_; }

 private:
  test::ProgramInFolder program_{GDI_SEARCHSCREENS};
};

TEST_F(SearchScreensProgram, HelpTellsEveryOption) {
  EXPECT_EQ(run("--help"), 0);
  for (const char* word : {"PARAMETERS", "CLASS", "QUALITY", "MODE", "--seconds", "--tries",
                           "--seed", "--shapes-only", "--robust", "Exit status"}) {
    EXPECT_NE(out().find(word), std::string::npos) << word;
  }
  EXPECT_EQ(errors(), "");
}

TEST_F(SearchScreensProgram, WrongWordsAreRefusedInOneLine) {
  for (const char* words :
       {"", "small.conf plain Fast", "small.conf plain Fast Mono more",
        "small.conf plain Fast Mono --tries 0", "small.conf plain Fast Mono --seconds nan",
        "small.conf plain Fast Mono --tries 1 --seconds 1", "small.conf plain Fast Mono --seed -1",
        "small.conf glossy Fast Mono", "none.conf plain Fast Mono", ". plain Fast Mono"}) {
    EXPECT_EQ(run(words), 2) << words;
    EXPECT_EQ(out(), "");
    EXPECT_TRUE(errors().starts_with("searchscreens: ")) << errors();
    EXPECT_EQ(std::ranges::count(errors(), '\n'), 1) << errors();
  }
}

TEST_F(SearchScreensProgram, ABadClassOrQualityIsNamedWithItsFile) {
  EXPECT_EQ(run("small.conf glossy Fast Mono"), 2);
  EXPECT_EQ(errors(), "searchscreens: small.conf: there is no class \"glossy\"\n");
  EXPECT_EQ(run("small.conf plain Best Mono"), 2);
  EXPECT_EQ(errors(), "searchscreens: small.conf: there is no quality \"Best\"\n");
}

TEST_F(SearchScreensProgram, TheBetterLineIsOneForTheParameterFile) {
  ASSERT_EQ(run("small.conf plain Fast Mono --tries 6"), 0) << errors();
  EXPECT_NE(errors().find("0 tries, J "), std::string::npos) << errors();
  const std::string found = out();
  EXPECT_TRUE(found.starts_with("# searchscreens plain Fast Mono, seed 1, 6 tries: J ")) << found;
  EXPECT_EQ(std::ranges::count(found, '\n'), 2) << found;
  const std::string text = smallParameters();
  const makescreens::Parameters read = parsed(text.substr(0, text.rfind("screen ")) + found);
  ASSERT_EQ(read.screens.size(), 5U);
  EXPECT_NE(read.screens[4], parsed(text).screens[4]);
}

#ifndef GDI_SLOW_BUILD
TEST_F(SearchScreensProgram, OrdersOfPixelsAreWrittenBelowTheirScreen) {
  const std::string order =
      "order  plain  Fast     mono    holes  0  1  2  3  4  5  6  7  8  9 10 11 12 13 14 15 16 17"
      " 19 18\n";
  program().folder().write("ordered.conf", smallParameters() + order);
  ASSERT_EQ(run("ordered.conf plain Fast Mono --tries 1"), 0) << errors();
  EXPECT_TRUE(out().ends_with(order)) << out();
}

TEST_F(SearchScreensProgram, ARobustSearchTellsItsScoreAndJ) {
  ASSERT_EQ(run("small.conf plain Fast Mono --robust --tries 2"), 0) << errors();
  EXPECT_NE(errors().find("0 tries, score "), std::string::npos) << errors();
  const std::string found = out();
  EXPECT_NE(found.find(", 2 tries: score "), std::string::npos) << found;
  EXPECT_NE(found.find(" after, J "), std::string::npos) << found;
}
#endif

TEST_F(SearchScreensProgram, LinesThatCannotBeWrittenAreTold) {
  EXPECT_EQ(run("small.conf plain Fast Mono --tries 1", "/dev/full"), 2);
  EXPECT_TRUE(errors().ends_with("searchscreens: the screens cannot be written\n")) << errors();
  EXPECT_EQ(run("--help", "/dev/full"), 2);
  EXPECT_EQ(errors(), "searchscreens: the help cannot be written\n");
}

}  // namespace
}  // namespace gdi::searchscreens
