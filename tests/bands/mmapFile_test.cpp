// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "bands/mmapFile.h"

#include <cerrno>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/bands/logged_test.h"

namespace gdi {
namespace {

using Messages = std::vector<std::string>;

class MappedFile : public LoggedTest {
 protected:
  [[nodiscard]] std::unique_ptr<mmapFile> open(std::uint32_t size) const {
    return mmapFile::initWithFile(scratch_.c_str(), size);
  }
  static std::string opening(const std::string& path, const std::string& bytes) {
    return "mmapFile openFile: Opening file " + path + " wtih " + bytes + " bytes";
  }
};

// A file in memory that is opened through a path, for failures that no ordinary file shows.
class MemoryFile {
 public:
  explicit MemoryFile(unsigned flags) : descriptor_(memfd_create("plane", flags)) {}
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;
  MemoryFile(MemoryFile&&) = delete;
  MemoryFile& operator=(MemoryFile&&) = delete;
  ~MemoryFile() { (void)::close(descriptor_); }
  [[nodiscard]] int descriptor() const { return descriptor_; }
  [[nodiscard]] std::string path() const { return "/proc/self/fd/" + std::to_string(descriptor_); }

 private:
  int descriptor_;
};

TEST_F(MappedFile, WhatIsWrittenToTheMappingIsInTheFile) {
  const auto file = open(5);
  ASSERT_NE(file, nullptr);
  EXPECT_EQ(file->size(), 5U);
  EXPECT_STREQ(file->path(), scratch_.c_str());
  (void)std::snprintf(static_cast<char*>(file->memory()), 5, "page");
  std::ostringstream text;
  text << std::ifstream(scratch_).rdbuf();
  EXPECT_EQ(text.str(), std::string("page\0", 5));
}

TEST_F(MappedFile, OpeningLogsTheSizeAndTheAddresses) {
  const auto file = open(4096);
  ASSERT_NE(file, nullptr);
  const auto start = reinterpret_cast<std::uintptr_t>(file->memory());
  std::ostringstream created;
  created << std::hex << "mmapFile openFile: Created buffer from 0x" << start << " to 0x"
          << start + 4096;
  EXPECT_EQ(messages(), (Messages{opening(scratch_, "4096"), created.str()}));
}

TEST_F(MappedFile, ASizeOfExactly400000000IsMapped) {
  const auto file = open(400'000'000);
  ASSERT_NE(file, nullptr);
  ASSERT_NE(file->memory(), MAP_FAILED);
  static_cast<char*>(file->memory())[399'999'999] = 1;
  EXPECT_EQ(std::filesystem::file_size(scratch_), 400'000'000U);
}

TEST_F(MappedFile, ASizeOf400000001FailsWithOnlyTheOpeningLineAndNoFile) {
  EXPECT_EQ(open(400'000'001), nullptr);
  EXPECT_EQ(messages(), Messages{opening(scratch_, "400000001")});
  EXPECT_FALSE(std::filesystem::exists(scratch_));
}

TEST_F(MappedFile, ASizeOf0CountsAsASuccessWithoutMemory) {
  const auto file = open(0);
  ASSERT_NE(file, nullptr);
  EXPECT_EQ(file->memory(), MAP_FAILED);
  EXPECT_EQ(file->size(), 0U);
  EXPECT_EQ(messages().back(),
            "mmapFile openFile: Created buffer from 0xffffffffffffffff to 0xffffffffffffffff");
  file->close();
  EXPECT_EQ(file->memory(), nullptr);
}

TEST_F(MappedFile, AnExistingFileIsReusedAndResizedAndItsPermissionsBecome0666) {
  std::ofstream(scratch_) << "abcdef";
  ASSERT_EQ(chmod(scratch_.c_str(), 0600), 0);
  struct stat before {};
  ASSERT_EQ(stat(scratch_.c_str(), &before), 0);
  const auto file = open(3);
  ASSERT_NE(file, nullptr);
  EXPECT_EQ(std::string(static_cast<char*>(file->memory()), 3), "abc");
  struct stat after {};
  ASSERT_EQ(stat(scratch_.c_str(), &after), 0);
  EXPECT_EQ(after.st_ino, before.st_ino);
  EXPECT_EQ(after.st_size, 3);
  EXPECT_EQ(after.st_mode & 07777, 0666U);
}

TEST_F(MappedFile, TheModeIs0666WhateverTheUmask) {
  const mode_t umaskBefore = umask(0077);
  const auto file = open(16);
  umask(umaskBefore);
  struct stat status {};
  ASSERT_EQ(stat(scratch_.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, 0666U);
}

TEST_F(MappedFile, AfterCloseThereIsNoMemoryAndASecondCloseDoesNothing) {
  const auto file = open(16);
  ASSERT_NE(file, nullptr);
  for (int i = 0; i < 2; ++i) {
    file->close();
    EXPECT_EQ(file->memory(), nullptr);
    EXPECT_EQ(file->size(), 0U);
  }
  EXPECT_STREQ(file->path(), scratch_.c_str());
}

TEST_F(MappedFile, AClosedFileOpensAgainByItsOwnPath) {
  const auto file = open(16);
  ASSERT_NE(file, nullptr);
  file->close();
  EXPECT_TRUE(file->openFile(file->path(), 32));
  EXPECT_EQ(file->size(), 32U);
  EXPECT_EQ(std::filesystem::file_size(scratch_), 32U);
}

TEST_F(MappedFile, AfterAFailedOpenThereIsNoMemory) {
  const auto file = open(16);
  ASSERT_NE(file, nullptr);
  EXPECT_FALSE(file->openFile((folder_ / "missing" / "plane").c_str(), 16));
  EXPECT_EQ(file->memory(), nullptr);
  EXPECT_EQ(file->size(), 0U);
  EXPECT_EQ(messages().back(), "mmapFile openFile: Failed to open channel file");
}

TEST_F(MappedFile, ReleasingTheObjectLeavesTheFileOnDisk) {
  open(16).reset();
  EXPECT_EQ(std::filesystem::file_size(scratch_), 16U);
}

TEST_F(MappedFile, NoDescriptorStaysOpen) {
  const auto openDescriptors = [] {
    const std::filesystem::directory_iterator all("/proc/self/fd");
    return std::distance(begin(all), end(all));
  };
  CPSDebugLog("the log is open from here on");
  const auto before = openDescriptors();
  const auto file = open(16);
  EXPECT_EQ(openDescriptors(), before);
}

TEST_F(MappedFile, APathOf1023BytesIsKeptWhole) {
  std::string path = scratch_;
  path.insert(0, 1023 - path.size(), '/');
  const auto file = mmapFile::initWithFile(path.c_str(), 16);
  ASSERT_NE(file, nullptr);
  EXPECT_EQ(file->path(), path);
}

TEST_F(MappedFile, APathOf1024BytesIsRefusedAndNoFileOfAShorterNameIsMade) {
  std::string path = scratch_;
  path.insert(0, 1024 - path.size(), '/');
  EXPECT_EQ(mmapFile::initWithFile(path.c_str(), 16), nullptr);
  EXPECT_EQ(messages().back(), "mmapFile openFile: Failed to open channel file");
  EXPECT_FALSE(std::filesystem::exists(scratch_));
  EXPECT_FALSE(std::filesystem::exists(folder_ / "plan"));
}

TEST_F(MappedFile, AFileThatCannotGrowToItsSizeIsEmptiedAndLeft) {
  std::ofstream(scratch_) << "abcdef";
  const auto openPastTheLimit = [this] {
    (void)std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{8192, 8192};
    (void)setrlimit(RLIMIT_FSIZE, &limit);
    _exit(open(8193) == nullptr ? 7 : 0);
  };
  EXPECT_EXIT(openPastTheLimit(), testing::ExitedWithCode(7), "");
  EXPECT_EQ(messages().back(), "mmapFile openFile: Failed to truncate mmap file");
  EXPECT_EQ(std::filesystem::file_size(scratch_), 0U);
}

TEST_F(MappedFile, SpaceThatCannotBeReservedIsAFailedResize) {
  constexpr std::uint32_t hugePage = 2U << 20U;
  const MemoryFile huge(MFD_CLOEXEC | MFD_HUGETLB);
  if (huge.descriptor() < 0 || ftruncate(huge.descriptor(), hugePage) != 0 ||
      fallocate(huge.descriptor(), 0, 0, hugePage) == 0 || errno != ENOSPC) {
    GTEST_SKIP() << "no file at hand whose length can be set but whose space is short";
  }
  EXPECT_EQ(mmapFile::initWithFile(huge.path().c_str(), hugePage), nullptr);
  EXPECT_EQ(messages(), (Messages{opening(huge.path(), "2097152"),
                                  "mmapFile openFile: Failed to truncate mmap file"}));
  struct stat status {};
  ASSERT_EQ(fstat(huge.descriptor(), &status), 0);
  EXPECT_EQ(status.st_size, 0);
}

TEST_F(MappedFile, TheDiskSpaceOfTheWholeFileIsTakenAtOnce) {
  const auto file = open(1U << 20U);
  ASSERT_NE(file, nullptr);
  struct stat status {};
  ASSERT_EQ(stat(scratch_.c_str(), &status), 0);
  EXPECT_GE(status.st_blocks * 512, 1 << 20);
}

TEST_F(MappedFile, AMappingThatTheSystemRefusesIsNotTakenForAFailure) {
  constexpr int sealFutureWrite = 0x10;
  const MemoryFile sealed(MFD_CLOEXEC | MFD_ALLOW_SEALING);
  if (fcntl(sealed.descriptor(), F_ADD_SEALS, sealFutureWrite) != 0) {
    GTEST_SKIP() << "no file at hand that cannot be mapped for writing";
  }
  errno = 0;
  const auto file = mmapFile::initWithFile(sealed.path().c_str(), 4096);
  EXPECT_EQ(errno, EPERM);  // the reason, for the caller to tell
  ASSERT_NE(file, nullptr);
  EXPECT_EQ(file->memory(), MAP_FAILED);
  EXPECT_EQ(file->size(), 4096U);
}

}  // namespace
}  // namespace gdi
