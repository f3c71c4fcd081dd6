// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// screenquality as the build runs it: its words, its exit status and where its lines go.

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "tests/screenquality/small_bundle.h"
#include "tests/support/ProgramInFolder.h"

namespace gdi::screenquality {
namespace {

class ScreenQualityProgram : public testing::Test {
 protected:
  // Answers the exit status.
  int run(const std::string& arguments, const std::string& output = "out") {
    return program_.run(arguments, "/dev/null", output);
  }
  [[nodiscard]] std::string out() const { return program_.out(); }
  [[nodiscard]] std::string errors() const { return program_.errors(); }

 private:
  test::ProgramInFolder program_{GDI_SCREENQUALITY};
};

TEST_F(ScreenQualityProgram, HelpTellsEveryOption) {
  EXPECT_EQ(run("--help"), 0);
  for (const char* word :
       {"FOLDER", "--only", "--no-baselines", "--robust", "--bytes", "Exit status"}) {
    EXPECT_NE(out().find(word), std::string::npos) << word;
  }
  EXPECT_EQ(errors(), "");
}

TEST_F(ScreenQualityProgram, WrongWordsAreRefusedInOneLine) {
  for (const char* words : {"", "one two", "--fast one", "one --only"}) {
    EXPECT_EQ(run(words), 2) << words;
    EXPECT_EQ(out(), "");
    EXPECT_TRUE(errors().starts_with("screenquality: ")) << errors();
    EXPECT_EQ(std::ranges::count(errors(), '\n'), 1) << errors();
  }
}

TEST_F(ScreenQualityProgram, AKeyThatNoJobFormsIsRefused) {
  EXPECT_EQ(run("one --only FineGlossyColor"), 2);
  EXPECT_EQ(errors(),
            "screenquality: FineGlossyColor is no key of a set; screenquality --help tells more\n");
}

TEST_F(ScreenQualityProgram, AMissingFolderCannotBeRead) {
  EXPECT_EQ(run("/nonexistent"), 2);
  EXPECT_EQ(out(), "");
  EXPECT_NE(errors().find("screenquality: /nonexistent: the set "), std::string::npos) << errors();
}

TEST_F(ScreenQualityProgram, OneSetIsJudgedAlone) {
  ASSERT_EQ(run("'" GDI_BUNDLE "' --no-baselines --only FastThinMono"), 0) << errors();
  EXPECT_EQ(std::ranges::count(out(), '\n'), 2) << out();
  EXPECT_NE(out().find("\nFast     Mono  plain (6)  "), std::string::npos) << out();
  EXPECT_EQ(errors(), "");
}

#ifndef GDI_SLOW_BUILD
TEST_F(ScreenQualityProgram, BytesAreTheSamplePages) {
  ASSERT_EQ(run("'" GDI_BUNDLE "' --no-baselines --only FastThinMono --bytes"), 0) << errors();
  EXPECT_NE(out().find("bytes of a page"), std::string::npos) << out();
  EXPECT_NE(out().find("photograph"), std::string::npos) << out();
}
#endif

TEST_F(ScreenQualityProgram, ScreensThatBreakARuleAreNotJudged) {
  SmallBundle bundle;
  bundle.write();
  EXPECT_EQ(run(std::string("'").append(bundle.path().string()).append("' --only FastPlainMono")),
            1);
  EXPECT_EQ(out(), "");
  EXPECT_NE(errors().find(": screen flip: 2 different mean tones, fewer than 250\n"),
            std::string::npos)
      << errors();
}

TEST_F(ScreenQualityProgram, TablesThatCannotBeWrittenAreTold) {
  EXPECT_EQ(run("'" GDI_BUNDLE "' --no-baselines --only FastThinMono", "/dev/full"), 2);
  EXPECT_EQ(errors(), "screenquality: the tables cannot be written\n");
  EXPECT_EQ(run("--help", "/dev/full"), 2);
  EXPECT_EQ(errors(), "screenquality: the help cannot be written\n");
}

}  // namespace
}  // namespace gdi::screenquality
