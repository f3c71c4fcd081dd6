// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What png tells: lines about the job's faults and its own, and the progress line.

#include <fstream>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "tests/gdiview/png_job_fixture.h"
#include "tests/support/FailingInput.h"

namespace gdi::gdiview {
namespace {

using jobtest::Bytes;
using jobtest::JobBuilder;
using jobtest::kFirst;
using reader::Ink;

class PngLines : public PngJob {};

TEST_F(PngLines, APageThatIsNotThereIsTold) {
  options_.page = 3;
  EXPECT_EQ(run(twoPages()), kUnusable);
  EXPECT_EQ(errors_.str(), "gdiview: JOB: there is no page 3; the job has 2\n");
}

TEST_F(PngLines, AViolationIsALineAndAllPagesAreStillWritten) {
  JobBuilder job = twoPages();
  job.bytes().resize(kEndOffset);
  EXPECT_EQ(run(job), kFaulty);
  EXPECT_EQ(errors_.str(),
            "gdiview: JOB: offset 752: end of the stream: end-mark: the stream ends without the "
            "end-of-job mark (JIDG)\n");
  EXPECT_EQ(picture("page-1").width, 96U);
  EXPECT_EQ(picture("page-2").width, 96U);
}

TEST_F(PngLines, OfManyViolationsTheFirstTwentyAreTold) {
  JobBuilder job;
  job.jobRecord(1).hostRecord();
  for (std::uint16_t page = 0; page < 25; ++page) {
    job.pageRecord({.rows = 1, .channels = 3, .number = page});
  }
  EXPECT_EQ(run(job.end()), kFaulty);
  const std::string errors = errors_.str();
  EXPECT_EQ(std::count(errors.begin(), errors.end(), '\n'), 21);
  EXPECT_NE(errors.find("gdiview: JOB: there is more, which gdiview check tells\n"),
            std::string::npos);
}

TEST_F(PngLines, ANoteIsLeftToCheck) {
  JobBuilder job;
  job.jobRecord(1).hostRecord().pageRecord({.rows = 257, .heightMicrometres = 10880});
  job.band(Ink::kBlack, kFirst, jobtest::Rows(256, rowOf(0xFF))).end();
  EXPECT_EQ(run(job), kSound);
  EXPECT_EQ(errors_.str(), "");
  EXPECT_EQ(picture("page-1").height, 256U);
}

TEST_F(PngLines, AnInputThatCannotBeReadOnIsTold) {
  Bytes bytes = twoPages().bytes();
  bytes.resize(kPage2Offset);
  test::FailingInput stream(bytes);
  EXPECT_EQ(run(stream, lines_), kUnusable);
  EXPECT_NE(errors_.str().find("gdiview: JOB: the input cannot be read beyond offset 432\n"),
            std::string::npos);
  EXPECT_EQ(picture("page-1").width, 96U);
}

TEST_F(PngLines, WhatIsNoJobStreamHasNoPictures) {
  std::istringstream stream("%PDF-1.7\n");
  EXPECT_EQ(run(stream, lines_), kUnusable);
  EXPECT_EQ(errors_.str(), "gdiview: JOB: this is no job stream: it begins like a PDF document\n");
  EXPECT_EQ(lines_.str(), "");
}

TEST_F(PngLines, LinesThatCannotBeWrittenAreAFailure) {
  std::ofstream full("/dev/full");
  if (!full) {
    GTEST_SKIP() << "there is no /dev/full";
  }
  std::istringstream stream = twoPages().stream();
  EXPECT_EQ(run(stream, full), kUnusable);
  EXPECT_EQ(errors_.str(), "gdiview: standard output: No space left on device\n");
  EXPECT_EQ(picture("page-2").width, 96U);
}

TEST_F(PngLines, AFolderThatCannotBeMadeIsTold) {
  options_.folder = scratch_.write("file", "x") / "pictures";
  EXPECT_EQ(run(twoPages()), kUnusable);
  EXPECT_EQ(errors_.str(), "gdiview: " + options_.folder.string() + ": Not a directory\n");
}

TEST_F(PngLines, APictureThatCannotBeWrittenIsToldWithItsName) {
  std::filesystem::create_directories(pathOf("page-1"));
  EXPECT_EQ(run(twoPages()), kUnusable);
  EXPECT_EQ(errors_.str(), "gdiview: " + pathOf("page-1") + ": Is a directory\n");
}

TEST_F(PngLines, AFolderWithThePartsNameIsToldWithItsName) {
  std::filesystem::create_directories(pathOf("page-1") + ".part");
  EXPECT_EQ(run(twoPages()), kUnusable);
  EXPECT_EQ(errors_.str(), "gdiview: " + pathOf("page-1") + ".part: Is a directory\n");
}

// The record behind a page is read before the page is known to be over: 496 of 756 bytes are page
// 1's, in two rows, and 256 page 2's, in one. The line is gone ahead of each page's line.
TEST_F(PngLines, ATerminalSeesHowMuchIsPainted) {
  Progress::Time now;
  Progress progress(lines_, true, 756, [&now] { return now += std::chrono::seconds(2); });
  std::istringstream stream = twoPages().stream();
  JobInput input(stream, "JOB");
  EXPECT_EQ(pngJob(input, options_, progress, lines_, errors_), kSound);
  const std::string wiped = "\r" + std::string(21, ' ') + "\r";
  EXPECT_EQ(
      lines_.str().find("\rgdiview: page 1, 0 %\rgdiview: page 1, 32 %\rgdiview: page 1, 65 %" +
                        wiped + "page 1: "),
      0U);
  EXPECT_NE(
      lines_.str().find("\rgdiview: page 2, 65 %\rgdiview: page 2, 99 %" + wiped + "page 2: "),
      std::string::npos);
}

// A page's two pictures of two rows each are four parts of its 496 bytes.
TEST_F(PngLines, ThePlanesPicturesCountAsTheOtherOnes) {
  Progress::Time now;
  Progress progress(lines_, true, 756, [&now] { return now += std::chrono::seconds(2); });
  options_.planes = true;
  options_.page = 1;
  std::istringstream stream = twoPages().stream();
  JobInput input(stream, "JOB");
  EXPECT_EQ(pngJob(input, options_, progress, lines_, errors_), kSound);
  EXPECT_NE(lines_.str().find("\rgdiview: page 1, 16 %\rgdiview: page 1, 32 %\r"),
            std::string::npos);
  EXPECT_NE(lines_.str().find("\rgdiview: page 1, 49 %\rgdiview: page 1, 65 %\r"),
            std::string::npos);
}

TEST_F(PngLines, AJobWithoutPagesIsToldAsSuch) {
  JobBuilder job;
  EXPECT_EQ(run(job.text("HELLO\n").end()), kSound);
  EXPECT_EQ(lines_.str(), "JOB: 0 pages, no picture\n");
}

TEST_F(PngLines, APictureThatEndsLikeAJobIsUnusable) {
  JobBuilder picture;
  EXPECT_EQ(run(picture.text("\x89PNG\r\n\x1a\n").end()), kUnusable);
  EXPECT_EQ(errors_.str(), "gdiview: JOB: this is no job stream: it begins like a PNG picture\n");
  EXPECT_EQ(lines_.str(), "");
}

TEST_F(PngLines, WhatHasNoPictureLeavesNoFolder) {
  std::istringstream stream("%PDF-1.7\n");
  EXPECT_EQ(run(stream, lines_), kUnusable);
  JobBuilder job;
  EXPECT_EQ(run(job.jobRecord(1).hostRecord().end()), kSound);
  EXPECT_FALSE(std::filesystem::exists(options_.folder));
}

TEST_F(PngLines, ANameWithALineFeedStaysInItsLine) {
  JobBuilder job = twoPages();
  job.bytes().resize(kEndOffset);
  std::istringstream stream = job.stream();
  JobInput input(stream, "a\nb");
  EXPECT_EQ(pngJob(input, options_, progress_, lines_, errors_), kFaulty);
  EXPECT_EQ(errors_.str().find("gdiview: a\\nb: offset 752: "), 0U);
}

}  // namespace
}  // namespace gdi::gdiview
