// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The program, with the bundle's screens.

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/wait.h>

#include "tests/support/TemporaryFolder.h"

namespace gdi::screenpictures {
namespace {

struct Outcome {
  int status = -1;
  std::string said;
};

Outcome run(const std::string& arguments) {
  const std::string command = std::string(GDI_SCREENPICTURES) + ' ' + arguments + " 2>&1";
  std::FILE* pipe = popen(command.c_str(), "r");  // NOLINT(cert-env33-c): a test's own command
  if (pipe == nullptr) {
    return {};
  }
  Outcome result;
  std::array<char, 256> part{};
  while (std::fgets(part.data(), part.size(), pipe) != nullptr) {
    result.said += part.data();
  }
  const int status = pclose(pipe);
  result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  return result;
}

#ifndef GDI_SLOW_BUILD
TEST(ScreenPicturesProgram, PicturesFitIntoTheDocuments) {
  const test::TemporaryFolder folder;
  const std::filesystem::path pictures = folder.path() / "made" / "screens";
  const Outcome result = run(std::string(GDI_BUNDLE " ").append(pictures.string()));
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.said, "");
  std::vector<std::string> expected;
  for (const char* const subject : {"wedge", "photograph", "text"}) {
    for (const char* const quality : {"fast", "standard", "fine"}) {
      expected.push_back(std::string(subject).append("-").append(quality).append(".png"));
    }
  }
  for (const char* const tint : {"light", "neutral"}) {
    for (const char* const screens :
         {"bundled", "bayer", "45-degrees", "rational-angles", "blue-noise"}) {
      expected.push_back(std::string(tint).append("-").append(screens).append(".png"));
    }
  }
  std::uintmax_t bytes = 0;
  for (const std::string& name : expected) {
    ASSERT_TRUE(std::filesystem::exists(pictures / name)) << name;
    bytes += std::filesystem::file_size(pictures / name);
  }
  EXPECT_LT(bytes, 1000000U);
  std::size_t entries = 0;
  for (const auto& entry : std::filesystem::directory_iterator(pictures)) {
    entries += entry.is_regular_file() ? 1 : 0;
  }
  EXPECT_EQ(entries, expected.size());
}
#endif

TEST(ScreenPicturesProgram, AFolderWithoutScreensIsTold) {
  const test::TemporaryFolder folder;
  const std::string path = folder.path().string();
  const Outcome result = run(std::string(path).append(" ").append(path));
  EXPECT_EQ(result.status, 1);
  EXPECT_NE(result.said.find(std::string(path).append(": the set ")), std::string::npos)
      << result.said;
}

TEST(ScreenPicturesProgram, OtherArgumentsAreAnsweredWithTheUsage) {
  const Outcome result = run("");
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.said, "usage: screenpictures FOLDER OUTDIR\n");
}

}  // namespace
}  // namespace gdi::screenpictures
