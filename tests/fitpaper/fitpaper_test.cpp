// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The program, with the bundle's screens.

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include <gtest/gtest.h>
#include <sys/wait.h>

#include "halftone/screens/file_contents.h"
#include "tools/fitpaper/measured_screen.h"
#include "tools/printmodel/PrintModel.h"

namespace gdi::fitpaper {
namespace {

const std::string kParameters = GDI_PARAMETERS;
const std::string kScreen = GDI_SCREENS "/rough-Fine-black";

class FitPaperProgram : public testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = testing::TempDir() + "fitpaper-XXXXXX";
    folder_ = mkdtemp(pattern.data());
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  // Runs the program; leaves what it says in `said_` and answers its exit status.
  int run(const std::string& arguments) {
    const std::string command = std::string(GDI_FITPAPER) + ' ' + arguments + " 2>&1";
    std::FILE* pipe = popen(command.c_str(), "r");  // NOLINT(cert-env33-c): a test's own command
    if (pipe == nullptr) {
      return -1;
    }
    std::array<char, 256> part{};
    while (std::fgets(part.data(), part.size(), pipe) != nullptr) {
      said_ += part.data();
    }
    const int status = pclose(pipe);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
  [[nodiscard]] std::string write(const std::string& text) const {
    const std::filesystem::path path = folder_ / "measured";
    std::ofstream(path) << text;
    return path.string();
  }

  std::filesystem::path folder_;
  std::string said_;
};

// What this paper would print and an instrument would read on paper of reflectance 0.8.
std::string measurementsOf(const std::string& screen, const printmodel::PaperModel& paper) {
  const auto data = contentsOfFile(screen);
  const auto tiles = data ? readScreenTiles(*data) : std::nullopt;
  if (!tiles) {
    return "";
  }
  const printmodel::PrintModel print(paper, tiles->tile, tiles->steps);
  std::string text = "0 0.8\n";
  for (std::size_t level = 15; level <= 255; level += 15) {
    const double area = print.printedArea(tiles->levels[level]);
    text +=
        std::to_string(level) + ' ' + std::to_string(0.8 * (1.0 - area * (1 - paper.solid))) + '\n';
  }
  return text;
}

TEST_F(FitPaperProgram, TellsTheClassLineToEnter) {
  const std::string path = write(measurementsOf(kScreen, {0.6, 0.45, 0.065, 1.2, 0.05}));
  ASSERT_EQ(run(kParameters + " rough " + kScreen + ' ' + path), 0) << said_;
  EXPECT_EQ(said_.find("# " + path + ": off by "), 0U) << said_;
  double spot = 0.0;
  double threshold = 0.0;
  double spread = 0.0;
  double solid = 0.0;
  const std::size_t line = said_.find("\nclass rough ");
  ASSERT_NE(line, std::string::npos) << said_;
  // NOLINTNEXTLINE(cert-err34-c): the figures are compared
  ASSERT_EQ(std::sscanf(&said_[line], "\nclass rough %lf %lf 0.065 %lf %lf 0.19", &spot, &threshold,
                        &spread, &solid),
            4)
      << said_;
  EXPECT_NEAR(spot, 0.6, 0.02);
  EXPECT_NEAR(threshold, 0.45, 0.01);
  EXPECT_NEAR(spread, 1.2, 0.1);
  EXPECT_NEAR(solid, 0.05, 0.001);
}

TEST_F(FitPaperProgram, RefusesABadLineInOneLine) {
  const std::string path = write("0 0.8\n10 dark\n");
  EXPECT_EQ(run(kParameters + " rough " + kScreen + ' ' + path), 1);
  EXPECT_EQ(said_, path + ":2: \"dark\" is no reflectance\n");
}

TEST_F(FitPaperProgram, RefusesAFileThatCannotBeRead) {
  EXPECT_EQ(run(kParameters + " rough /nonexistent/screen x"), 1);
  EXPECT_EQ(said_, "/nonexistent/screen: cannot be read\n");
}

TEST_F(FitPaperProgram, RefusesWhatIsNoScreen) {
  const std::string path = write("no screen");
  EXPECT_EQ(run(kParameters + " rough " + path + ' ' + path), 1);
  EXPECT_NE(said_.find(path + ": is no screen\n"), std::string::npos) << said_;
}

TEST_F(FitPaperProgram, RefusesAClassThatIsNotStated) {
  EXPECT_EQ(run(kParameters + " glossy " + kScreen + " x"), 1);
  EXPECT_EQ(said_, kParameters + ": there is no class \"glossy\"\n");
}

TEST_F(FitPaperProgram, TellsItsArgumentsWhenTheyAreNotComplete) {
  EXPECT_EQ(run(kParameters + " rough " + kScreen), 1);
  EXPECT_EQ(said_,
            "usage: fitpaper PARAMETERS CLASS SCREEN MEASUREMENTS [SCREEN MEASUREMENTS]...\n");
}

}  // namespace
}  // namespace gdi::fitpaper
