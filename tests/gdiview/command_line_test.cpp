// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// gdiview as the build runs it: its words, its exit status and where its lines go.

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "tests/gdiview/small_jobs.h"
#include "tests/support/ProgramInFolder.h"

namespace gdi::gdiview {
namespace {

class CommandLineOfGdiview : public testing::Test {
 protected:
  // Answers the exit status; `arguments` are for the shell, which stands in the test's folder.
  int run(const std::string& arguments, const std::string& input = "/dev/null",
          const std::string& output = "out") {
    return program_.run(arguments, input, output);
  }
  [[nodiscard]] std::string out() const { return program_.out(); }
  [[nodiscard]] std::string errors() const { return program_.errors(); }

  void writeJob(const std::string& name, std::size_t bytes = kEndOffset + 4) {
    const jobtest::JobBuilder job = twoPages();
    program_.folder().write(name,
                            std::string(job.bytes().begin(), job.bytes().end()).substr(0, bytes));
  }
  void expectUsageError(const std::string& arguments) {
    EXPECT_EQ(run(arguments), 2) << arguments;
    EXPECT_EQ(out(), "") << arguments;
    const std::string line = errors();
    EXPECT_TRUE(line.starts_with("gdiview: ")) << arguments << ": " << line;
    EXPECT_EQ(std::count(line.begin(), line.end(), '\n'), 1) << arguments << ": " << line;
    EXPECT_TRUE(line.ends_with("\n")) << arguments;
  }

  test::ProgramInFolder program_{GDI_VIEW};
};

TEST_F(CommandLineOfGdiview, EachHelpIsPrintedAndExitsWith0) {
  for (const char* command : {"", "info ", "check ", "png ", "diff "}) {
    EXPECT_EQ(run(std::string(command) + "--help"), 0) << command;
    EXPECT_NE(out().find("gdiview " + std::string(command)), std::string::npos) << command;
    EXPECT_EQ(errors(), "") << command;
  }
}

TEST_F(CommandLineOfGdiview, CheckListsItsRulesWithoutAJob) {
  EXPECT_EQ(run("check --rules"), 0);
  const std::string rules = out();
  EXPECT_TRUE(rules.starts_with("tag             every record begins with one of the five tags\n"));
  EXPECT_NE(rules.find("\ncodec-habit     note: "), std::string::npos);
  EXPECT_EQ(std::count(rules.begin(), rules.end(), '\n'), 44);
  EXPECT_EQ(errors(), "");
}

TEST_F(CommandLineOfGdiview, TheVersionIsPrinted) {
  EXPECT_EQ(run("--version"), 0);
  EXPECT_EQ(out().find("gdiview "), 0U);
}

TEST_F(CommandLineOfGdiview, AUsageErrorIsOneLineAndExitsWith2) {
  writeJob("job");
  expectUsageError("");
  expectUsageError("--frobnicate");
  expectUsageError("info");
  expectUsageError("check --page 1 job");
  expectUsageError("info --page 0 job");
  expectUsageError("info --resources nowhere job");
  expectUsageError("job");
  expectUsageError("job -o ''");
  expectUsageError("png job -o pictures --scale 0");
  expectUsageError("png job -o pictures --upright=sideways");
  expectUsageError("diff job");
  expectUsageError("diff - -");
  expectUsageError("diff job job --ignore nonsense");
  expectUsageError("diff job job --ignore ,");
  expectUsageError("diff job job --ignore ''");
  EXPECT_FALSE(std::filesystem::exists(program_.folder().path() / "pictures"));
}

TEST_F(CommandLineOfGdiview, AWordThatIsNeitherACommandNorAFileIsTold) {
  writeJob("job");
  for (const char* words : {"chekc job", "chekc", "chekc job -o pictures"}) {
    EXPECT_EQ(run(words), 2) << words;
    EXPECT_EQ(errors(), "gdiview: there is no command or file chekc; gdiview --help tells more\n");
  }
  EXPECT_EQ(run("'a\nb'"), 2);
  EXPECT_EQ(errors(), "gdiview: there is no command or file a\\nb; gdiview --help tells more\n");
}

TEST_F(CommandLineOfGdiview, AnUnknownOptionIsToldAheadOfWhatIsMissing) {
  writeJob("job");
  EXPECT_EQ(run("--bogus"), 2);
  EXPECT_EQ(errors(), "gdiview: there is no option --bogus; gdiview png --help tells more\n");
  EXPECT_EQ(run("job --bogus"), 2);
  EXPECT_EQ(errors(), "gdiview: there is no option --bogus; gdiview png --help tells more\n");
  EXPECT_EQ(run("check job -x"), 2);
  EXPECT_EQ(errors(), "gdiview: there is no option -x; gdiview check --help tells more\n");
}

TEST_F(CommandLineOfGdiview, WhatIsMissingIsToldWithTheCommandsHelp) {
  writeJob("job");
  EXPECT_EQ(run("job"), 2);
  EXPECT_EQ(errors(), "gdiview: --out is required; gdiview png --help tells more\n");
  EXPECT_EQ(run("info"), 2);
  EXPECT_EQ(errors(), "gdiview: JOB is required; gdiview info --help tells more\n");
  EXPECT_EQ(run("png job -o"), 2);
  EXPECT_EQ(errors(), "gdiview: --out needs a value; gdiview png --help tells more\n");
  EXPECT_EQ(run(""), 2);
  EXPECT_EQ(errors(), "gdiview: there is no command and no JOB; gdiview --help tells more\n");
}

TEST_F(CommandLineOfGdiview, AnEmptyNameIsRefused) {
  writeJob("job");
  program_.folder().write("Info.plist", "{}");  // not taken for the one of a folder without a name
  const std::string job = "JOB: it must name a file, or be -; gdiview ";
  for (const auto& [words, line] : std::initializer_list<std::pair<const char*, std::string>>{
           {"check ''", job + "check --help"},
           {"'' -o pictures", job + "--help"},
           {"diff '' job", "A: it must name a file, or be -; gdiview diff --help"},
           {"diff job ''", "B: it must name a file, or be -; gdiview diff --help"},
           {"check --resources '' job",
            "--resources: it must name a folder; gdiview check --help"}}) {
    EXPECT_EQ(run(words), 2) << words;
    EXPECT_EQ(errors(), std::string("gdiview: ").append(line).append(" tells more\n"));
  }
}

TEST_F(CommandLineOfGdiview, AScaleOfNoPictureIsRefused) {
  writeJob("job");
  EXPECT_EQ(run("diff job job --scale 1/2"), 2);
  EXPECT_EQ(errors(), "gdiview: --scale requires --out; gdiview diff --help tells more\n");
  EXPECT_EQ(run("diff job job --scale 1/2 -o pictures"), 0);
}

TEST_F(CommandLineOfGdiview, WhatIsTooMuchIsTold) {
  writeJob("job");
  EXPECT_EQ(run("check job other"), 2);
  EXPECT_EQ(errors(), "gdiview: other is one word too many; gdiview check --help tells more\n");
  EXPECT_EQ(run("png job -o a -o b"), 2);
  EXPECT_EQ(errors(), "gdiview: --out may be given once; gdiview png --help tells more\n");
}

TEST_F(CommandLineOfGdiview, FieldsToIgnoreMayStandAnywhere) {
  writeJob("A");
  std::string job = test::contentsOf(program_.folder().path() / "A");
  job[23] = '\xD4';  // an hour less
  program_.folder().write("B", job);
  for (const char* words :
       {"A B --ignore date,host", "--ignore date,host A B", "A --ignore date,host B",
        "--ignore date,host A B -o DIR", "--ignore date,host -o DIR A B",
        "-o DIR --ignore date,host A B", "A B -o DIR --ignore date,host", "--ignore=date,host A B",
        "--ignore date --ignore host A B -o DIR", "--ignore date A B --ignore=host"}) {
    EXPECT_EQ(run(std::string("diff ") + words), 0) << words << ": " << errors();
    EXPECT_EQ(errors(), "") << words;
  }
  EXPECT_EQ(run("diff A B --ignore copies"), 1);
}

TEST_F(CommandLineOfGdiview, AFieldThatDoesNotExistIsToldByItself) {
  EXPECT_EQ(run("diff A B --ignore date,dote"), 2);
  EXPECT_EQ(errors(),
            "gdiview: --ignore: there is no field dote; gdiview diff --help tells more\n");
  EXPECT_EQ(run("diff --help"), 0);
  EXPECT_NE(out().find("\nFIELD is one of: prologue length "), std::string::npos);
}

TEST_F(CommandLineOfGdiview, ResourcesThatCannotBeReadAreRefused) {
  writeJob("job");
  program_.folder().write("Info.plist", "<plist><dict><key>");
  EXPECT_EQ(run("check --resources . job"), 2);
  EXPECT_EQ(errors(),
            "gdiview: --resources: .: its Info.plist is no dictionary; gdiview check --help tells "
            "more\n");
}

TEST_F(CommandLineOfGdiview, OneWordIsUsedForACommand) {
  for (const char* words : {"--help", "png --help", "diff --help"}) {
    EXPECT_EQ(run(words), 0);
    std::string text = out();
    std::ranges::transform(text, text.begin(), [](unsigned char c) { return std::tolower(c); });
    EXPECT_EQ(text.find("subcommand"), std::string::npos) << words;
    EXPECT_EQ(text.find('{'), std::string::npos) << words;
    EXPECT_EQ(text.find("docs/"), std::string::npos) << words;
  }
}

TEST_F(CommandLineOfGdiview, AJobWithoutACommandBecomesPictures) {
  writeJob("job");
  EXPECT_EQ(run("job -o pictures"), 0);
  EXPECT_EQ(errors(), "");
  EXPECT_TRUE(std::filesystem::is_regular_file(program_.folder().path() / "pictures/page-1.png"));
  EXPECT_TRUE(std::filesystem::is_regular_file(program_.folder().path() / "pictures/page-2.png"));
}

TEST_F(CommandLineOfGdiview, WithoutACommandOptionsMayComeFirst) {
  writeJob("job");
  EXPECT_EQ(run("-o png --upright job"), 0);
  EXPECT_EQ(errors(), "");
  EXPECT_TRUE(std::filesystem::is_regular_file(program_.folder().path() / "png/page-1.png"));
}

TEST_F(CommandLineOfGdiview, AHyphenIsStandardInput) {
  writeJob("job");
  EXPECT_EQ(run("check -", "job"), 0);
  EXPECT_EQ(out(), "-: 2 pages, 5 bands, 0 violations, 0 notes\n");
  EXPECT_EQ(run("- -o pictures --page 2", "job"), 0);
  EXPECT_TRUE(std::filesystem::is_regular_file(program_.folder().path() / "pictures/page-2.png"));
}

TEST_F(CommandLineOfGdiview, CheckExitsWith0ForASoundJob) {
  writeJob("job");
  EXPECT_EQ(run("check job"), 0);
  EXPECT_EQ(out(), "job: 2 pages, 5 bands, 0 violations, 0 notes\n");
  EXPECT_EQ(errors(), "");
}

TEST_F(CommandLineOfGdiview, CheckExitsWith1ForAViolation) {
  writeJob("job", kEndOffset);
  EXPECT_EQ(run("check -q job"), 1);
  EXPECT_EQ(out(),
            "job: offset 752: end of the stream: end-mark: the stream ends without the end-of-job "
            "mark (JIDG)\n");
  EXPECT_EQ(errors(), "");
}

TEST_F(CommandLineOfGdiview, CheckExitsWith2ForWhatIsNoJob) {
  EXPECT_EQ(run("check missing"), 2);
  EXPECT_EQ(errors(), "gdiview: missing: No such file or directory\n");
  program_.folder().write("letter", "%PDF-1.7\n");
  EXPECT_EQ(run("check letter"), 2);
  EXPECT_EQ(out(), "");
  EXPECT_EQ(errors(), "gdiview: letter: this is no job stream: it begins like a PDF document\n");
}

// A folder can be opened, and fails when it is read.
TEST_F(CommandLineOfGdiview, AStandardInputThatCannotBeReadIsTold) {
  EXPECT_EQ(run("check -", "."), 2);
  EXPECT_EQ(errors(), "gdiview: -: the input cannot be read beyond offset 0\n");
}

TEST_F(CommandLineOfGdiview, AFullStandardOutputExitsWith2) {
  if (!std::filesystem::exists("/dev/full")) {
    GTEST_SKIP() << "there is no /dev/full";
  }
  writeJob("job");
  for (const char* words : {"--help", "diff --help", "check --rules", "info job", "info --json job",
                            "info --page 1 job", "check job", "job -o pictures"}) {
    EXPECT_EQ(run(words, "/dev/null", "/dev/full"), 2) << words;
    EXPECT_EQ(errors(), "gdiview: standard output: No space left on device\n") << words;
  }
}

}  // namespace
}  // namespace gdi::gdiview
