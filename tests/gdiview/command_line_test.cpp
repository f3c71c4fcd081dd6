// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// gdiview as the build runs it: its words, its exit status and where its lines go.

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>
#include <sys/wait.h>

#include "tests/gdiview/small_jobs.h"
#include "tests/support/TemporaryFolder.h"

namespace gdi::gdiview {
namespace {

class CommandLineOfGdiview : public testing::Test {
 protected:
  // Answers the exit status; `arguments` are for the shell, which stands in the test's folder.
  int run(const std::string& arguments, const std::string& input = "/dev/null",
          const std::string& output = "out") {
    const std::string command = "cd '" + folder_.path().string() + "' && '" GDI_VIEW "' " +
                                arguments + " <" + input + " >" + output + " 2>errors";
    std::FILE* pipe = popen(command.c_str(), "r");  // NOLINT(cert-env33-c): a test's own command
    if (pipe == nullptr) {
      return -1;
    }
    const int status = pclose(pipe);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
  [[nodiscard]] std::string out() const { return test::contentsOf(folder_.path() / "out"); }
  [[nodiscard]] std::string errors() const { return test::contentsOf(folder_.path() / "errors"); }

  void writeJob(const std::string& name, std::size_t bytes = kEndOffset + 4) {
    const jobtest::JobBuilder job = twoPages();
    folder_.write(name, std::string(job.bytes().begin(), job.bytes().end()).substr(0, bytes));
  }
  void expectUsageError(const std::string& arguments) {
    EXPECT_EQ(run(arguments), 2) << arguments;
    EXPECT_EQ(out(), "") << arguments;
    const std::string line = errors();
    EXPECT_TRUE(line.starts_with("gdiview: ")) << arguments << ": " << line;
    EXPECT_EQ(std::count(line.begin(), line.end(), '\n'), 1) << arguments << ": " << line;
    EXPECT_TRUE(line.ends_with("\n")) << arguments;
  }

  test::TemporaryFolder folder_;
};

TEST_F(CommandLineOfGdiview, EachHelpIsPrintedAndExitsWith0) {
  for (const char* command : {"", "info ", "check ", "png ", "diff "}) {
    EXPECT_EQ(run(std::string(command) + "--help"), 0) << command;
    EXPECT_NE(out().find("gdiview " + std::string(command)), std::string::npos) << command;
    EXPECT_EQ(errors(), "") << command;
  }
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
  EXPECT_FALSE(std::filesystem::exists(folder_.path() / "pictures"));
}

TEST_F(CommandLineOfGdiview, AJobWithoutACommandBecomesPictures) {
  writeJob("job");
  EXPECT_EQ(run("job -o pictures"), 0);
  EXPECT_EQ(errors(), "");
  EXPECT_TRUE(std::filesystem::is_regular_file(folder_.path() / "pictures/page-1.png"));
  EXPECT_TRUE(std::filesystem::is_regular_file(folder_.path() / "pictures/page-2.png"));
}

TEST_F(CommandLineOfGdiview, AHyphenIsStandardInput) {
  writeJob("job");
  EXPECT_EQ(run("check -", "job"), 0);
  EXPECT_EQ(out(), "-: 2 pages, 5 bands, 0 violations, 0 notes\n");
  EXPECT_EQ(run("- -o pictures --page 2", "job"), 0);
  EXPECT_TRUE(std::filesystem::is_regular_file(folder_.path() / "pictures/page-2.png"));
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
  folder_.write("letter", "%PDF-1.7\n");
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
  for (const char* words : {"--help", "info job", "info --json job", "info --page 1 job",
                            "check job", "job -o pictures"}) {
    EXPECT_EQ(run(words, "/dev/null", "/dev/full"), 2) << words;
    EXPECT_EQ(errors(), "gdiview: standard output: No space left on device\n") << words;
  }
}

}  // namespace
}  // namespace gdi::gdiview
