// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "tests/gdiview/small_jobs.h"
#include "tests/support/TemporaryFolder.h"
#include "tools/gdiview/JobInput.h"

namespace gdi::gdiview {
namespace {

TEST(JobInput, AFileIsReadAndItsSizeIsKnown) {
  test::TemporaryFolder folder;
  JobInput input(folder.write("job", "GDIJ\n").string());
  std::ostringstream errors;
  EXPECT_TRUE(input.isOpen(errors));
  EXPECT_EQ(errors.str(), "");
  EXPECT_EQ(input.size(), 5U);
  std::ostringstream text;
  text << input.stream().rdbuf();
  EXPECT_EQ(text.str(), "GDIJ\n");
}

TEST(JobInput, AMissingFileIsTold) {
  test::TemporaryFolder folder;
  const std::string name = (folder.path() / "job").string();
  std::ostringstream errors;
  EXPECT_FALSE(JobInput(name).isOpen(errors));
  EXPECT_EQ(errors.str(), "gdiview: " + name + ": No such file or directory\n");
}

TEST(JobInput, ANameWithALineFeedStaysInItsLine) {
  std::ostringstream errors;
  EXPECT_FALSE(JobInput("/missing/a\nb").isOpen(errors));
  EXPECT_EQ(errors.str(), "gdiview: /missing/a\\nb: No such file or directory\n");
}

TEST(JobInput, ADirectoryIsTold) {
  test::TemporaryFolder folder;
  const std::string name = folder.path().string();
  std::ostringstream errors;
  EXPECT_FALSE(JobInput(name).isOpen(errors));
  EXPECT_EQ(errors.str(), "gdiview: " + name + ": Is a directory\n");
}

TEST(JobInput, ADeviceHasNoSize) {
  JobInput input("/dev/null");
  std::ostringstream errors;
  EXPECT_TRUE(input.isOpen(errors));
  EXPECT_EQ(input.size(), std::nullopt);
}

TEST(JobInput, TheSizeOfTwoIsKnownWhenBothAre) {
  test::TemporaryFolder folder;
  const JobInput five(folder.write("five", "12345").string());
  const JobInput three(folder.write("three", "123").string());
  const JobInput device("/dev/null");
  EXPECT_EQ(sizeOfBoth(five, three), 8U);
  EXPECT_EQ(sizeOfBoth(five, device), std::nullopt);
  EXPECT_EQ(sizeOfBoth(device, three), std::nullopt);
}

// What is said of an input that holds these bytes.
std::string lineOn(const std::string& bytes, std::optional<std::uint64_t> prologueBytes = {}) {
  std::istringstream stream(bytes);
  reader::JobWalk walk(
      stream, [](const reader::Finding&) {}, prologueBytes);
  JobStart start;
  while (const std::optional<reader::JobStep> next = walk.next()) {
    if (const auto* prologue = std::get_if<reader::Prologue>(&next->step.record)) {
      start = {*prologue, next->step.bytes};
    }
  }
  std::ostringstream errors;
  const bool job = isJobStream(walk, start, "JOB", errors);
  EXPECT_EQ(job, errors.str().empty());
  return errors.str();
}

TEST(JobInput, WhatAFileBeginsLikeIsTold) {
  const std::string start = "gdiview: JOB: this is no job stream: it begins like ";
  EXPECT_EQ(lineOn("\x89PNG\r\n\x1a\n"), start + "a PNG picture\n");
  EXPECT_EQ(lineOn("%PDF-1.7\n"), start + "a PDF document\n");
  EXPECT_EQ(lineOn("%!PS\n"), start + "a PostScript document\n");
  EXPECT_EQ(lineOn("RaS3 and more"), start + "a CUPS raster\n");
  EXPECT_EQ(lineOn("3SaR and more"), start + "a CUPS raster\n");
  EXPECT_EQ(lineOn("2SaR"), start + "a CUPS raster\n");
  EXPECT_EQ(lineOn("\x1f\x8b\x08"), start + "a gzip file\n");
  EXPECT_EQ(lineOn("PK\x03\x04"), start + "a ZIP file\n");
}

TEST(JobInput, AnythingElseHoldsNoRecord) {
  EXPECT_EQ(lineOn("%"), "gdiview: JOB: this is no job stream: it holds no record of one\n");
  EXPECT_EQ(lineOn("a letter to my aunt"),
            "gdiview: JOB: this is no job stream: it holds no record of one\n");
}

TEST(JobInput, GarbageWithAnEndMarkIsNoJob) {
  const std::string told = "gdiview: JOB: this is no job stream: no job record in ";
  EXPECT_EQ(lineOn(std::string(70000, 'x') + "JIDG"), told + "70004 bytes\n");
  // Marks alone, behind the prologue that was expected.
  std::string marks = "HELLO\n";
  for (int i = 0; i < 20000; ++i) {
    marks += "JIDG";
  }
  EXPECT_EQ(lineOn(marks, 6), told + "80006 bytes\n");
}

TEST(JobInput, APictureWithAnEndMarkIsStillAPicture) {
  EXPECT_EQ(lineOn("\x89PNG\r\n\x1a\nJIDG"),
            "gdiview: JOB: this is no job stream: it begins like a PNG picture\n");
  EXPECT_EQ(lineOn("PK\x03\x04" + std::string(70000, 'x') + "JIDG"),
            "gdiview: JOB: this is no job stream: it begins like a ZIP file\n");
}

TEST(JobInput, AJobWithoutPagesMayHaveAnyShortPrologueOrTheExpectedOne) {
  EXPECT_EQ(lineOn("JIDG"), "");
  EXPECT_EQ(lineOn(std::string(65536, 'x') + "JIDG"), "");
  EXPECT_NE(lineOn(std::string(65537, 'x') + "JIDG"), "");
  EXPECT_EQ(lineOn("%!HI\nJIDG", 5), "");
  EXPECT_NE(lineOn("%!HI\nJIDG", 4), "");
}

TEST(JobInput, AJobRecordIsAJobWhateverComesAheadOfIt) {
  const jobtest::JobBuilder job = twoPages();
  const std::string bytes(job.bytes().begin(), job.bytes().end());
  EXPECT_EQ(lineOn("\x89PNG" + bytes), "");
  EXPECT_EQ(lineOn(std::string(70000, 'x') + bytes), "");
}

TEST(JobInput, AnEmptyInputIsTold) {
  EXPECT_EQ(lineOn(""), "gdiview: JOB: the input is empty\n");
}

TEST(JobInput, OfAJobStreamNothingIsSaid) {
  const jobtest::JobBuilder job = twoPages();
  EXPECT_EQ(lineOn(std::string(job.bytes().begin(), job.bytes().end())), "");
}

}  // namespace
}  // namespace gdi::gdiview
