// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/png/PngFile.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/resource.h>

namespace gdi {
namespace {

// A disk that is full after so many bytes of a file: the system refuses more with EFBIG.
class SmallDisk {
 public:
  explicit SmallDisk(rlim_t bytes) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit small{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
  }
  ~SmallDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    (void)std::signal(SIGXFSZ, handler_);
  }
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;
  SmallDisk(SmallDisk&&) = delete;
  SmallDisk& operator=(SmallDisk&&) = delete;

 private:
  rlimit before_{};
  void (*handler_)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

class PngFileOnDisk : public testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = testing::TempDir() + "png-file-XXXXXX";
    scratch_ = mkdtemp(pattern.data());
    picture_ = scratch_ / "picture.png";
  }
  void TearDown() override { std::filesystem::remove_all(scratch_); }

  std::filesystem::path scratch_;
  std::filesystem::path picture_;
};

TEST_F(PngFileOnDisk, AFinishedPictureStays) {
  std::unique_ptr<PngFile> file = PngFile::create(picture_, {3, 1, 1, 23622});
  ASSERT_NE(file, nullptr);
  EXPECT_TRUE(file->writeRow(std::vector<std::uint8_t>{0, 128, 255}));
  EXPECT_TRUE(file->finish());
  file.reset();
  EXPECT_TRUE(std::filesystem::exists(picture_));
}

// As libpng's plain reader sees it.
std::vector<std::uint8_t> coloursOf(const std::filesystem::path& path) {
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  std::vector<std::uint8_t> samples;
  if (png_image_begin_read_from_file(&image, path.c_str()) != 0) {
    image.format = PNG_FORMAT_RGB;
    samples.resize(PNG_IMAGE_SIZE(image));
    (void)png_image_finish_read(&image, nullptr, samples.data(), 0, nullptr);
  }
  png_image_free(&image);
  return samples;
}

// Bits a sample and the colour type stand behind the signature, the first chunk's head, and the
// picture's width and height.
std::vector<int> formOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  file.seekg(8 + 8 + 8);
  const int bits = file.get();
  return {bits, file.get()};
}

TEST_F(PngFileOnDisk, SixteenColoursTakeHalfAByteASample) {
  const PngLayout layout{3, 1, 1, 3780, {{1, 2, 3}, {40, 50, 60}, {255, 254, 253}}};
  std::unique_ptr<PngFile> file = PngFile::create(picture_, layout);
  ASSERT_NE(file, nullptr);
  EXPECT_TRUE(file->writeRow(std::vector<std::uint8_t>{2, 0, 1}));
  EXPECT_TRUE(file->finish());
  EXPECT_EQ(formOf(picture_), (std::vector<int>{4, PNG_COLOR_TYPE_PALETTE}));
  EXPECT_EQ(coloursOf(picture_), (std::vector<std::uint8_t>{255, 254, 253, 1, 2, 3, 40, 50, 60}));
}

TEST_F(PngFileOnDisk, MoreColoursTakeAByteASample) {
  PngLayout layout{1, 1, 1, 3780, std::vector<PngColour>(17)};
  layout.palette.back() = {7, 8, 9};
  std::unique_ptr<PngFile> file = PngFile::create(picture_, layout);
  ASSERT_NE(file, nullptr);
  EXPECT_TRUE(file->writeRow(std::vector<std::uint8_t>{16}));
  EXPECT_TRUE(file->finish());
  EXPECT_EQ(formOf(picture_), (std::vector<int>{8, PNG_COLOR_TYPE_PALETTE}));
  EXPECT_EQ(coloursOf(picture_), (std::vector<std::uint8_t>{7, 8, 9}));
}

TEST_F(PngFileOnDisk, APictureThatIsGivenUpIsRemoved) {
  std::unique_ptr<PngFile> file = PngFile::create(picture_, {3, 2, 1, 23622});
  ASSERT_NE(file, nullptr);
  EXPECT_TRUE(file->writeRow(std::vector<std::uint8_t>{0, 128, 255}));
  file.reset();
  EXPECT_TRUE(std::filesystem::is_empty(scratch_));
}

TEST_F(PngFileOnDisk, APictureHasItsNameOnlyOnceItIsFinished) {
  std::unique_ptr<PngFile> file = PngFile::create(picture_, {3, 1, 1, 23622});
  ASSERT_NE(file, nullptr);
  EXPECT_TRUE(file->writeRow(std::vector<std::uint8_t>{0, 128, 255}));
  EXPECT_FALSE(std::filesystem::exists(picture_));
  EXPECT_TRUE(std::filesystem::exists(scratch_ / "picture.png.part"));
  EXPECT_TRUE(file->finish());
  EXPECT_TRUE(std::filesystem::exists(picture_));
  EXPECT_FALSE(std::filesystem::exists(scratch_ / "picture.png.part"));
}

TEST_F(PngFileOnDisk, AnOlderPictureStaysWhenTheNewOneIsGivenUp) {
  std::ofstream(picture_) << "older";
  std::unique_ptr<PngFile> file = PngFile::create(picture_, {3, 2, 1, 23622});
  ASSERT_NE(file, nullptr);
  file.reset();
  EXPECT_EQ(std::filesystem::file_size(picture_), 5U);
}

TEST_F(PngFileOnDisk, WhatAKilledRunLeftIsReplaced) {
  std::ofstream(scratch_ / "picture.png.part") << "half a picture";
  std::unique_ptr<PngFile> file = PngFile::create(picture_, {3, 1, 1, 23622});
  ASSERT_NE(file, nullptr);
  EXPECT_TRUE(file->writeRow(std::vector<std::uint8_t>{0, 128, 255}));
  EXPECT_TRUE(file->finish());
  EXPECT_TRUE(std::filesystem::exists(picture_));
  EXPECT_FALSE(std::filesystem::exists(scratch_ / "picture.png.part"));
}

TEST_F(PngFileOnDisk, AFolderInTheWayStays) {
  std::filesystem::create_directory(scratch_ / "picture.png.part");
  errno = 0;
  EXPECT_EQ(PngFile::create(picture_, {3, 1, 1, 23622}), nullptr);
  EXPECT_EQ(errno, EISDIR);
  EXPECT_TRUE(std::filesystem::is_directory(scratch_ / "picture.png.part"));
}

// A link of the picture's name is replaced, and what it leads to stays as it is.
TEST_F(PngFileOnDisk, NothingIsWrittenThroughALink) {
  std::ofstream(scratch_ / "other") << "other";
  std::filesystem::create_symlink("other", picture_);
  std::filesystem::create_symlink("other", scratch_ / "picture.png.part");
  std::unique_ptr<PngFile> file = PngFile::create(picture_, {3, 1, 1, 23622});
  ASSERT_NE(file, nullptr);
  EXPECT_TRUE(file->writeRow(std::vector<std::uint8_t>{0, 128, 255}));
  EXPECT_TRUE(std::filesystem::is_symlink(picture_));
  EXPECT_TRUE(file->finish());
  EXPECT_FALSE(std::filesystem::is_symlink(picture_));
  EXPECT_EQ(std::filesystem::file_size(scratch_ / "other"), 5U);
}

// The first of the rows that no longer fits is told, and errno outlives the removal.
TEST_F(PngFileOnDisk, ADiskThatIsFullAmongTheRowsLeavesNoHalfPicture) {
  constexpr std::uint32_t kWidth = 10000;
  int error = 0;
  bool written = true;
  {
    const SmallDisk disk(20000);
    std::unique_ptr<PngFile> file = PngFile::create(picture_, {kWidth, 100, 1, 23622});
    ASSERT_NE(file, nullptr);
    std::vector<std::uint8_t> row(kWidth);
    std::uint32_t noise = 1;
    for (int y = 0; y < 100 && written; ++y) {
      for (std::uint8_t& sample : row) {
        noise = noise * 1664525 + 1013904223;
        sample = static_cast<std::uint8_t>(noise >> 24);
      }
      errno = 0;
      written = file->writeRow(row);
    }
    file.reset();
    error = errno;
  }
  EXPECT_FALSE(written);
  EXPECT_EQ(error, EFBIG);
  EXPECT_TRUE(std::filesystem::is_empty(scratch_));
}

// All of a small picture is still in memory when its last row has been written.
TEST_F(PngFileOnDisk, ADiskThatIsFullAtTheEndLeavesNoHalfPicture) {
  int error = 0;
  bool finished = true;
  {
    const SmallDisk disk(20);
    std::unique_ptr<PngFile> file = PngFile::create(picture_, {3, 1, 1, 23622});
    ASSERT_NE(file, nullptr);
    EXPECT_TRUE(file->writeRow(std::vector<std::uint8_t>{0, 128, 255}));
    errno = 0;
    finished = file->finish();
    file.reset();
    error = errno;
  }
  EXPECT_FALSE(finished);
  EXPECT_EQ(error, EFBIG);
  EXPECT_TRUE(std::filesystem::is_empty(scratch_));
}

}  // namespace
}  // namespace gdi
