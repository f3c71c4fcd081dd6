// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/check_job.h"

#include <fstream>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "tests/gdiview/small_jobs.h"
#include "tests/jobs/sound_page.h"
#include "tests/support/FailingInput.h"

namespace gdi::gdiview {
namespace {

using jobtest::Bytes;
using jobtest::JobBuilder;

class CheckJob : public testing::Test {
 protected:
  int run(std::istream& stream, std::ostream& out) {
    JobInput input(stream, "JOB");
    return checkJob(input, options_, progress_, out, errors_);
  }
  int run(const JobBuilder& job) {
    std::istringstream stream = job.stream();
    return run(stream, lines_);
  }
  int run(const std::string& bytes) {
    std::istringstream stream(bytes);
    return run(stream, lines_);
  }

  CheckOptions options_;
  std::ostringstream lines_;
  std::ostringstream errors_;
  Progress progress_{errors_, false};
};

// Its page has no ink and does not say so.
JobBuilder jobWithANote() {
  return jobtest::jobOf({.ink = 0});
}
constexpr char kNote[] =
    "JOB: offset 272: page 1: note blank-content: "
    "the page has no ink and is not flagged as blank\n";

// Byte 28 of the first band's record should be 0: 336 + 28 = 364.
JobBuilder jobWithAViolation() {
  return twoPages().patch(kBand1Offset, 28, {1});
}
constexpr char kViolation[] =
    "JOB: offset 364: page 1, black band 0: zero-field: byte 28 is 1, not 0\n";

TEST_F(CheckJob, ASoundJobIsOneLine) {
  EXPECT_EQ(run(jobtest::jobOf({})), kSound);
  EXPECT_EQ(lines_.str(), "JOB: 1 page, 1 band, 0 violations, 0 notes\n");
  EXPECT_EQ(errors_.str(), "");
}

TEST_F(CheckJob, ANameWithALineFeedStaysInItsLine) {
  std::istringstream stream = jobWithAViolation().stream();
  JobInput input(stream, "a\nb");
  EXPECT_EQ(checkJob(input, options_, progress_, lines_, errors_), kFaulty);
  EXPECT_EQ(lines_.str(),
            "a\\nb: offset 364: page 1, black band 0: zero-field: byte 28 is 1, not 0\n"
            "a\\nb: 2 pages, 5 bands, 1 violation, 0 notes\n");
}

// The progress line is gone ahead of each line, and at the end.
TEST_F(CheckJob, ATerminalSeesHowMuchHasBeenRead) {
  Progress::Time now;
  Progress progress(lines_, true, 756, [&now] { return now += std::chrono::seconds(2); });
  std::istringstream stream = jobWithAViolation().stream();
  JobInput input(stream, "JOB");
  EXPECT_EQ(checkJob(input, options_, progress, lines_, errors_), kFaulty);
  EXPECT_NE(lines_.str().find(" \r" + std::string(kViolation)), std::string::npos);
  EXPECT_NE(lines_.str().find("\rgdiview: page 2, "), std::string::npos);
  EXPECT_NE(lines_.str().find(" \rJOB: 2 pages, 5 bands, "), std::string::npos);
}

TEST_F(CheckJob, PagesAndBandsAreCounted) {
  EXPECT_EQ(run(twoPages()), kSound);
  EXPECT_EQ(lines_.str(), "JOB: 2 pages, 5 bands, 0 violations, 0 notes\n");
}

TEST_F(CheckJob, AViolationIsToldWithItsPlace) {
  EXPECT_EQ(run(jobWithAViolation()), kFaulty);
  EXPECT_EQ(lines_.str(),
            std::string(kViolation) + "JOB: 2 pages, 5 bands, 1 violation, 0 notes\n");
  EXPECT_EQ(errors_.str(), "");
}

TEST_F(CheckJob, ViolationsComeInTheOrderInWhichTheyAreFound) {
  JobBuilder job = jobWithAViolation();
  job.patch(0, 34, {7});
  EXPECT_EQ(run(job), kFaulty);
  EXPECT_EQ(lines_.str(), std::string("JOB: offset 34: job record: constant: "
                                      "the field at byte 34 is 7, not 0\n") +
                              kViolation + "JOB: 2 pages, 5 bands, 2 violations, 0 notes\n");
}

TEST_F(CheckJob, OffsetsCountFromTheInputsFirstByte) {
  JobBuilder job;
  job.text("HELLO\n").raw(jobWithAViolation().bytes());
  options_.prologueBytes = 6;
  EXPECT_EQ(run(job), kFaulty);
  EXPECT_EQ(lines_.str().find("JOB: offset 370: page 1, black band 0: zero-field: "), 0U);
}

TEST_F(CheckJob, ANoteLeavesTheStatusAt0) {
  EXPECT_EQ(run(jobWithANote()), kSound);
  EXPECT_EQ(lines_.str(), std::string(kNote) + "JOB: 1 page, 1 band, 0 violations, 1 note\n");
}

TEST_F(CheckJob, QuietTellsNothingOfASoundJob) {
  options_.quiet = true;
  EXPECT_EQ(run(twoPages()), kSound);
  EXPECT_EQ(run(jobWithANote()), kSound);
  EXPECT_EQ(lines_.str(), "");
}

TEST_F(CheckJob, QuietStillTellsViolations) {
  options_.quiet = true;
  EXPECT_EQ(run(jobWithAViolation()), kFaulty);
  EXPECT_EQ(lines_.str(), kViolation);
}

TEST_F(CheckJob, EveryOneOfManyViolationsIsTold) {
  JobBuilder job;
  job.jobRecord(1).hostRecord();
  for (std::uint16_t page = 0; page < 25; ++page) {
    job.pageRecord({.rows = 1, .channels = 3, .number = page});
  }
  options_.quiet = true;
  EXPECT_EQ(run(job.end()), kFaulty);
  for (std::size_t page = 0; page < 25; ++page) {
    // Page records are 64 bytes long, and the number of planes is at byte 32.
    EXPECT_NE(lines_.str().find("JOB: offset " + std::to_string(272 + 64 * page + 32) + ": page " +
                                std::to_string(page + 1) +
                                ": channels: the page has 3 planes, not 1 or 4\n"),
              std::string::npos)
        << page;
  }
}

// Twenty bytes of the black band record of page 2 are left, which begins at 496.
TEST_F(CheckJob, AJobCutInTheMiddleIsFaulty) {
  JobBuilder job = twoPages();
  job.bytes().resize(kBand2Offset + 20);
  EXPECT_EQ(run(job), kFaulty);
  EXPECT_NE(lines_.str().find("JOB: offset 516: "), std::string::npos);
  EXPECT_NE(lines_.str().find(": truncated: "), std::string::npos);
  EXPECT_EQ(errors_.str(), "");
}

TEST_F(CheckJob, AJobWithoutItsEndMarkIsFaulty) {
  JobBuilder job = twoPages();
  job.bytes().resize(kEndOffset);
  EXPECT_EQ(run(job), kFaulty);
  EXPECT_EQ(lines_.str(),
            "JOB: offset 752: end of the stream: end-mark: the stream ends without the "
            "end-of-job mark (JIDG)\n"
            "JOB: 2 pages, 5 bands, 1 violation, 0 notes\n");
}

TEST_F(CheckJob, APictureGivenByMistakeIsNamed) {
  EXPECT_EQ(run(std::string("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16)), kUnusable);
  EXPECT_EQ(errors_.str(), "gdiview: JOB: this is no job stream: it begins like a PNG picture\n");
  EXPECT_EQ(lines_.str().find("violations, "), std::string::npos);
}

TEST_F(CheckJob, APictureThatEndsLikeAJobIsStillUnusable) {
  EXPECT_EQ(run(std::string("\x89PNG\r\n\x1a\nJIDG")), kUnusable);
  EXPECT_EQ(errors_.str(), "gdiview: JOB: this is no job stream: it begins like a PNG picture\n");
  EXPECT_EQ(lines_.str().find("violations, "), std::string::npos);
}

TEST_F(CheckJob, AnEmptyInputIsToldAsSuch) {
  EXPECT_EQ(run(std::string()), kUnusable);
  EXPECT_EQ(errors_.str(), "gdiview: JOB: the input is empty\n");
}

TEST_F(CheckJob, AnInputThatCannotBeReadOnIsUnusable) {
  Bytes bytes = jobWithAViolation().bytes();
  bytes.resize(kPage2Offset);
  test::FailingInput stream(bytes);
  EXPECT_EQ(run(stream, lines_), kUnusable);
  EXPECT_EQ(lines_.str(), kViolation);
  EXPECT_EQ(errors_.str(), "gdiview: JOB: the input cannot be read beyond offset 432\n");
}

TEST_F(CheckJob, LinesThatCannotBeWrittenAreAFailure) {
  std::ofstream full("/dev/full");
  if (!full) {
    GTEST_SKIP() << "there is no /dev/full";
  }
  std::istringstream stream = twoPages().stream();
  EXPECT_EQ(run(stream, full), kUnusable);
  EXPECT_EQ(errors_.str(), "gdiview: standard output: No space left on device\n");
}

}  // namespace
}  // namespace gdi::gdiview
