// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The program as the build runs it.

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

#include <gtest/gtest.h>
#include <sys/wait.h>

namespace gdi {
namespace {

class MakeScreens : public testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = testing::TempDir() + "makescreens-XXXXXX";
    folder_ = mkdtemp(pattern.data());
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  // Runs the program; leaves its standard error in `error_` and answers its exit status.
  int run(const std::string& arguments) {
    const std::string command = std::string(GDI_MAKESCREENS) + ' ' + arguments + " 2>&1 >/dev/null";
    std::FILE* pipe = popen(command.c_str(), "r");  // NOLINT(cert-env33-c): a test's own command
    if (pipe == nullptr) {
      return -1;
    }
    std::array<char, 256> part{};
    while (std::fgets(part.data(), part.size(), pipe) != nullptr) {
      error_ += part.data();
    }
    const int status = pclose(pipe);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
  [[nodiscard]] std::string writeParameters(const std::string& text) const {
    const std::filesystem::path path = folder_ / "screens.conf";
    std::ofstream(path) << text;
    return path.string();
  }

  std::filesystem::path folder_;
  std::string error_;
};

constexpr const char* kTiny =
    "quality Fast 1\nclass plain 0.58 0.42 0.055 1.1 0.035 0.16\npaper Bond plain\n"
    "screen plain Fast cyan    14 2 -3 4 1 0.01 0.013 20 0 6 1 1 0 0 1 0 0 2 3 1\n"
    "screen plain Fast magenta 14 3 2 1 -4 0.01 0.013 20 0 6 1 1 0 0 1 0 0 2 3 1\n"
    "screen plain Fast yellow  14 3 -1 -2 -4 0.01 0.013 20 0 6 1 1 0 0 1 0 0 2 3 1\n"
    "screen plain Fast black   14 1 3 4 -2 0.01 0.013 20 0 6 1 1 0 0 1 0 0 2 3 1\n"
    "screen plain Fast mono    20 4 -2 -2 -4 0.01 0.013 20 0 6 1 1 0 0 1 0 0 2 3 1\n";

TEST_F(MakeScreens, WritesTheListAndEveryScreen) {
  EXPECT_EQ(run(writeParameters(kTiny) + ' ' + (folder_ / "out").string()), 0) << error_;
  EXPECT_EQ(error_, "");
  // 28 x 14 pixels of 256 bits, behind "1 28 14 8 1" and a zero byte.
  EXPECT_EQ(std::filesystem::file_size(folder_ / "out/Screens/plain-Fast-cyan"),
            12U + 28 * 14 * 32);
  EXPECT_TRUE(std::filesystem::exists(folder_ / "out/Screens/plain-Fast-mono"));
  EXPECT_TRUE(std::filesystem::exists(folder_ / "out/ScreenSets.plist"));
}

#ifndef GDI_SLOW_BUILD
// The contents of the list of screens and of every screen, by name.
std::map<std::string, std::string> screensIn(const std::filesystem::path& folder) {
  std::map<std::string, std::string> contents;
  const auto read = [&contents](const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.is_open()) << path;
    contents[path.filename().string()] = {std::istreambuf_iterator<char>(file), {}};
  };
  read(folder / "ScreenSets.plist");
  for (const auto& entry : std::filesystem::directory_iterator(folder / "Screens")) {
    read(entry.path());
  }
  return contents;
}

TEST_F(MakeScreens, MakesTheBundlesScreensAgainToTheByte) {
  const std::string fresh = (folder_ / "fresh").string();
  ASSERT_EQ(run(std::string(GDI_PARAMETERS) + ' ' + fresh), 0) << error_;
  const std::map<std::string, std::string> made = screensIn(fresh);
  const std::map<std::string, std::string> bundled = screensIn(GDI_BUNDLE);
  EXPECT_EQ(made.size(), 46U);  // the list; 3 classes x 3 qualities x 5 planes
  EXPECT_EQ(made.size(), bundled.size());
  for (const auto& [name, contents] : made) {
    const auto twin = bundled.find(name);
    ASSERT_NE(twin, bundled.end()) << name;
    EXPECT_TRUE(contents == twin->second) << name;
  }
}
#endif

TEST_F(MakeScreens, RefusesBadParametersWithFileAndLine) {
  const std::string path = writeParameters("quality Fast 1\npaint red\n");
  EXPECT_EQ(run(path + ' ' + (folder_ / "out").string()), 1);
  EXPECT_EQ(error_, path + ":2: unknown keyword \"paint\"\n");
  EXPECT_FALSE(std::filesystem::exists(folder_ / "out"));
}

TEST_F(MakeScreens, RefusesParametersThatCannotBeRead) {
  EXPECT_EQ(run((folder_ / "none").string() + ' ' + folder_.string()), 1);
  EXPECT_EQ(error_, (folder_ / "none").string() + ": cannot be read: No such file or directory\n");
  error_.clear();
  EXPECT_EQ(run(folder_.string() + ' ' + folder_.string()), 1);
  EXPECT_EQ(error_, folder_.string() + ": cannot be read: Is a directory\n");
}

TEST_F(MakeScreens, SaysWhenAFolderCannotBeMade) {
  std::ofstream(folder_ / "out").put('\n');
  EXPECT_EQ(run(writeParameters(kTiny) + ' ' + (folder_ / "out").string()), 1);
  EXPECT_EQ(error_, (folder_ / "out/Screens").string() + ": cannot be made: Not a directory\n");
}

TEST_F(MakeScreens, SaysWhenADiskIsFull) {
  std::filesystem::create_directories(folder_ / "out/Screens");
  std::filesystem::create_symlink("/dev/full", folder_ / "out/Screens/plain-Fast-cyan");
  EXPECT_EQ(run(writeParameters(kTiny) + ' ' + (folder_ / "out").string()), 1);
  EXPECT_EQ(error_, (folder_ / "out/Screens/plain-Fast-cyan").string() +
                        ": cannot be written: No space left on device\n");
  EXPECT_FALSE(std::filesystem::exists(folder_ / "out/ScreenSets.plist"));
}

TEST_F(MakeScreens, WantsTwoArguments) {
  EXPECT_EQ(run(""), 1);
  EXPECT_EQ(error_, "usage: makescreens PARAMETERS OUTDIR\n");
}

}  // namespace
}  // namespace gdi
