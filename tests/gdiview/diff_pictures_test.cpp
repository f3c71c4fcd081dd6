// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The pictures of differences, and what a terminal sees of the work.

#include <chrono>
#include <filesystem>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "tests/gdiview/diff_jobs_fixture.h"
#include "tests/gdiview/png_reader.h"

namespace gdi::gdiview {
namespace {

using jobtest::Bytes;

class DiffPictures : public DiffJobs {};

// The first eight pixels are 00001111 and 00101100, and the second row is solid in both.
TEST_F(DiffPictures, APictureShowsWhereThePixelsOfAPageDiffer) {
  options_.folder = scratch_.path() / "pictures";
  EXPECT_EQ(run(twoPages("Report", 0x0F), twoPages("Report", 0x2C)), kFaulty);
  const std::string path = (*options_.folder / "page-1-diff.png").string();
  EXPECT_NE(lines_.str().find("\npage 1: " + path + "\n"), std::string::npos);
  const PngPicture picture = readPng(path);
  ASSERT_EQ(picture.width, 96U);
  ASSERT_EQ(picture.height, 2U);
  ASSERT_EQ(picture.channels, 3);
  const auto colorAt = [&picture](std::size_t x, std::size_t y) {
    const auto sample = picture.samples.begin() + static_cast<std::ptrdiff_t>((y * 96 + x) * 3);
    return Bytes(sample, sample + 3);
  };
  const Bytes white{255, 255, 255};
  const Bytes paleBlack{192, 192, 192};
  EXPECT_EQ(colorAt(0, 0), white);
  EXPECT_EQ(colorAt(2, 0), (Bytes{0, 0, 220}));  // more ink in the second job
  EXPECT_EQ(colorAt(3, 0), white);
  EXPECT_EQ(colorAt(4, 0), paleBlack);
  EXPECT_EQ(colorAt(5, 0), paleBlack);
  EXPECT_EQ(colorAt(6, 0), (Bytes{220, 0, 0}));  // in the first
  EXPECT_EQ(colorAt(7, 0), (Bytes{220, 0, 0}));
  EXPECT_EQ(colorAt(95, 0), white);
  EXPECT_EQ(colorAt(0, 1), paleBlack);
  EXPECT_EQ(colorAt(95, 1), paleBlack);
  EXPECT_FALSE(std::filesystem::exists(*options_.folder / "page-2-diff.png"));
}

// Of the jobs' 2 x 756 bytes 992 are read when the first pages are over. Comparing the page's two
// rows is half of the work on them, and painting them the other half: 248 bytes a step.
TEST_F(DiffPictures, ATerminalSeesHowMuchIsComparedAndPainted) {
  options_.folder = scratch_.path();
  Progress::Time now;
  Progress progress(lines_, true, 1512, [&now] { return now += std::chrono::seconds(2); });
  std::istringstream streamA = twoPages("Report", 0x0F).stream();
  std::istringstream streamB = twoPages("Report", 0x2C).stream();
  JobInput a(streamA, "ONE");
  JobInput b(streamB, "TWO");
  EXPECT_EQ(diffJobs(a, b, options_, progress, lines_, errors_), kFaulty);
  const std::string wiped = "\r" + std::string(21, ' ') + "\r";
  EXPECT_EQ(lines_.str().find("\rgdiview: page 1, 0 %\rgdiview: page 1, 16 %"
                              "\rgdiview: page 1, 32 %" +
                              wiped + "page 1, black: 3 pixels differ, "),
            0U);
  EXPECT_NE(
      lines_.str().find("\rgdiview: page 1, 49 %\rgdiview: page 1, 65 %" + wiped + "page 1: "),
      std::string::npos);
  // Four planes of a row each are compared, and nothing is painted: 65 bytes a step.
  EXPECT_NE(lines_.str().find("\rgdiview: page 2, 65 %\rgdiview: page 2, 69 %"
                              "\rgdiview: page 2, 74 %\rgdiview: page 2, 78 %"
                              "\rgdiview: page 2, 82 %" +
                              wiped),
            std::string::npos);
}

TEST_F(DiffPictures, WithoutPicturesComparingIsAllOfTheWork) {
  Progress::Time now;
  Progress progress(lines_, true, 1512, [&now] { return now += std::chrono::seconds(2); });
  std::istringstream streamA = twoPages("Report", 0x0F).stream();
  std::istringstream streamB = twoPages("Report", 0x2C).stream();
  JobInput a(streamA, "ONE");
  JobInput b(streamB, "TWO");
  EXPECT_EQ(diffJobs(a, b, options_, progress, lines_, errors_), kFaulty);
  EXPECT_EQ(lines_.str().find("\rgdiview: page 1, 0 %\rgdiview: page 1, 32 %"
                              "\rgdiview: page 1, 65 %\r "),
            0U);
}

TEST_F(DiffPictures, AFolderThatCannotBeMadeIsTold) {
  options_.folder = scratch_.write("file", "x") / "pictures";
  EXPECT_EQ(run(twoPages(), twoPages()), kUnusable);
  EXPECT_EQ(errors_.str(), "gdiview: " + options_.folder->string() + ": Not a directory\n");
}

TEST_F(DiffPictures, APictureThatCannotBeWrittenIsUnusable) {
  options_.folder = scratch_.path();
  scratch_.makeFolder("page-1-diff.png");
  EXPECT_EQ(run(twoPages("Report", 0x0F), twoPages("Report", 0x2C)), kUnusable);
  EXPECT_EQ(errors_.str(),
            "gdiview: " + (scratch_.path() / "page-1-diff.png").string() + ": Is a directory\n");
}

}  // namespace
}  // namespace gdi::gdiview
