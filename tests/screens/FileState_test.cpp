// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "halftone/screens/FileState.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/TemporaryFolder.h"

namespace gdi {
namespace {

class FileStateTest : public testing::Test {
 protected:
  void write(const std::string& text, std::chrono::hours age) const {
    std::ofstream(file_) << text;
    std::filesystem::last_write_time(file_, std::filesystem::file_time_type::clock::now() - age);
  }

  test::TemporaryFolder folder_;
  std::filesystem::path file_ = folder_.path() / "file";
};

constexpr std::chrono::hours kHour{1};

TEST_F(FileStateTest, AFileThatNobodyTouchesIsUnchanged) {
  write("one", kHour);
  const FileState state(file_);
  EXPECT_TRUE(state.isUnchanged());
  EXPECT_TRUE(state.isUnchanged());
}

TEST_F(FileStateTest, AFileOfAnotherLengthOrTimeIsChanged) {
  write("one", kHour);
  const FileState state(file_);
  write("other", kHour);
  EXPECT_FALSE(state.isUnchanged());
  write("one", 2 * kHour);
  EXPECT_FALSE(state.isUnchanged());
}

TEST_F(FileStateTest, AnotherFileOfTheSameNameLengthAndTimeIsAChange) {
  write("one", kHour);
  const auto time = std::filesystem::last_write_time(file_);
  const FileState state(file_);
  const std::filesystem::path other = folder_.path() / "other";
  std::ofstream(other) << "two";
  std::filesystem::last_write_time(other, time);
  std::filesystem::rename(other, file_);
  EXPECT_FALSE(state.isUnchanged());
}

TEST_F(FileStateTest, AFileThatIsGoneOrWasNeverThereIsChanged) {
  write("one", kHour);
  const FileState state(file_);
  std::filesystem::remove(file_);
  EXPECT_FALSE(state.isUnchanged());
  EXPECT_FALSE(FileState(file_).isUnchanged());
}

TEST_F(FileStateTest, AFileJustWrittenCannotBeTold) {
  write("one", std::chrono::hours(0));
  EXPECT_FALSE(FileState(file_).isUnchanged());
}

}  // namespace
}  // namespace gdi
