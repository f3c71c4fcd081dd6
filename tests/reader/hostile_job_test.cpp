// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <algorithm>
#include <istream>
#include <numeric>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "reader/JobWalk.h"
#include "tests/jobs/read_job.h"
#include "tests/jobs/sound_page.h"
#include "tests/reader/breaches.h"
#include "tests/support/FailingInput.h"

namespace gdi::reader {
namespace {

using jobtest::Bytes;
using jobtest::JobBuilder;
using jobtest::kFirst;
using jobtest::ReadJob;
using jobtest::readJob;

// What a walk through a stream found, its steps held against the stream's length.
struct Walked {
  std::vector<Finding> findings;
  std::uint64_t steps = 0;
  std::uint64_t bands = 0;
  bool contiguous = true;
  std::uint64_t end = 0;  // of the last step
  bool failed = false;
  JobTotals totals;

  [[nodiscard]] std::uint64_t violations() const {
    return static_cast<std::uint64_t>(
        std::ranges::count_if(findings, [](const Finding& f) { return !f.remark(); }));
  }
  [[nodiscard]] std::uint64_t count(Rule rule) const {
    return static_cast<std::uint64_t>(std::ranges::count(findings, rule, &Finding::rule));
  }
};

Walked walk(std::istream& input) {
  Walked walked;
  JobWalk job(input, [&walked](const Finding& finding) { walked.findings.push_back(finding); });
  while (const std::optional<JobStep> step = job.next()) {
    walked.contiguous = walked.contiguous && step->step.offset == walked.end;
    walked.end = step->step.offset + step->step.bytes;
    walked.bands += std::holds_alternative<Band>(step->step.record) ? 1 : 0;
    ++walked.steps;
  }
  walked.failed = job.failed();
  walked.totals = job.totals();
  return walked;
}

// Walks through the whole stream: every byte must be part of one step.
Walked walk(const Bytes& bytes) {
  std::istringstream input = jobtest::streamOf(bytes);
  Walked walked = walk(input);
  EXPECT_TRUE(walked.contiguous);
  EXPECT_EQ(walked.end, bytes.size());
  EXPECT_EQ(walked.totals.bytes, bytes.size());
  EXPECT_EQ(walked.totals.violations, walked.violations());
  EXPECT_EQ(walked.totals.violations + walked.totals.remarks, walked.findings.size());
  return walked;
}

// A colour page and a black one.
Bytes smallColorJob() {
  JobBuilder job = headers();
  jobtest::addPage(job, {.color = true});
  return jobtest::addPage(job, {.rows = 1, .number = 1}).end().bytes();
}

Bytes firstBytes(const Bytes& bytes, std::size_t count) {
  return {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(count)};
}

// Bytes in which no record begins: all tags consist of letters.
Bytes garbage(std::size_t count) {
  std::mt19937 random(7);  // NOLINT(cert-msc51-cpp,cert-msc32-c): the same bytes in every run
  Bytes bytes(count);
  std::ranges::generate(bytes, [&] { return static_cast<std::uint8_t>(0x80 | (random() & 0x7F)); });
  return bytes;
}

TEST(HostileJob, CutAtAnyByteIsOneViolationAtTheCut) {
  const Bytes whole = smallColorJob();
  ASSERT_TRUE(walk(whole).findings.empty());
  for (std::size_t length = 0; length < whole.size(); ++length) {
    const Walked walked = walk(firstBytes(whole, length));
    if (length < 8) {  // a job record is known by its first eight bytes
      EXPECT_TRUE(walked.findings.empty()) << length;
      continue;
    }
    ASSERT_EQ(walked.findings.size(), 1U) << length;
    const Finding& finding = walked.findings[0];
    EXPECT_TRUE(finding.rule == Rule::kTruncated || finding.rule == Rule::kEndMark)
        << length << ": " << lineOf(finding);
    EXPECT_EQ(finding.offset, length);
  }
}

TEST(HostileJob, CutBetweenTwoRecordsItLacksItsEndMarkOnly) {
  const Bytes whole = smallColorJob();
  for (const std::size_t at :
       {kHostAt, kPageAt, kBandAt, kCyanAt, kMagentaAt, kYellowAt, kColorEndAt}) {
    const ReadJob read = readJob(firstBytes(whole, at));
    EXPECT_EQ(read.rules(), "end-mark") << read.told();
  }
}

TEST(HostileJob, WhateverAByteIsEveryByteIsPartOfOneStepAndEveryRowCanBeRead) {
  const Bytes whole = smallColorJob();
  for (std::size_t at = 0; at < whole.size(); ++at) {
    for (const unsigned value : {0x00U, 0x01U, 0x3FU, 0x47U, 0x7FU, 0x80U, 0xC0U, 0xFFU}) {
      SCOPED_TRACE("byte " + std::to_string(at) + " is " + std::to_string(value));
      Bytes changed = whole;
      changed[at] = static_cast<std::uint8_t>(value);
      const Walked walked = walk(changed);
      const ReadJob read = readJob(changed);
      EXPECT_EQ(read.findings.size(), walked.findings.size());
      EXPECT_EQ(read.pages.size(), walked.totals.pages);
      for (const Page& page : read.pages) {
        for (const StoredPlane& plane : page.planes) {
          EXPECT_EQ(jobtest::rowsOf(plane).size(), plane.rows() * plane.rowBytes());
        }
      }
    }
  }
}

TEST(HostileJob, RecordsInAnyOtherOrderAreAViolationAndNoPageIsLost) {
  const Bytes whole = smallColorJob();
  const std::vector<std::size_t> starts{kJobAt,           kHostAt,     kPageAt,   kBandAt,
                                        kCyanAt,          kMagentaAt,  kYellowAt, kColorEndAt,
                                        kColorEndAt + 64,  // the second page's band
                                        whole.size() - 4, whole.size()};
  std::vector<std::size_t> order(starts.size() - 1);
  std::mt19937 random(1);  // NOLINT(cert-msc51-cpp,cert-msc32-c): the same bytes in every run
  for (int round = 0; round < 500; ++round) {
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::shuffle(order, random);
    if (std::ranges::is_sorted(order)) {
      continue;
    }
    Bytes shuffled;
    std::string name;
    for (const std::size_t record : order) {
      name += std::to_string(record) + " ";
      shuffled.insert(shuffled.end(), whole.begin() + static_cast<std::ptrdiff_t>(starts[record]),
                      whole.begin() + static_cast<std::ptrdiff_t>(starts[record + 1]));
    }
    SCOPED_TRACE(name);
    const Walked walked = walk(shuffled);
    EXPECT_EQ(walked.totals.pages, 2U);
    EXPECT_GE(walked.violations(), 1U);
  }
}

// Each band has 48 bytes and tells 4096, so that it reaches beyond those that follow.
JobBuilder lyingBands(int bands) {
  JobBuilder job = headers();
  job.pageRecord(fieldsOf(2));
  for (int band = 0; band < bands; ++band) {
    job.bandRecord({.flags = kFirst, .rows = 2}, 4096)
        .raw(jobtest::literalBand(inkedRows(2), false));
  }
  return job;
}

TEST(HostileJob, LyingLengthsAreMendedUpTo64Bands) {
  const Walked few = walk(lyingBands(64).end().bytes());
  EXPECT_EQ(few.bands, 64U);
  EXPECT_EQ(few.count(Rule::kBandLength), 64U);
  EXPECT_EQ(few.count(Rule::kTruncated), 0U);
  EXPECT_EQ(few.count(Rule::kEndMark), 0U);
}

TEST(HostileJob, TheLyingLengthThatIsNotMendedMoreRunsIntoTheEnd) {
  // Band 64 lacks bytes: the 36 that are left have 80 each, and its own record 32 of them.
  const Walked walked = walk(lyingBands(100).end().bytes());
  EXPECT_EQ(walked.bands, 64U);
  EXPECT_EQ(walked.count(Rule::kBandLength), 64U);
  EXPECT_EQ(walked.count(Rule::kTruncated), 1U);
}

TEST(HostileJob, BehindALyingLengthThatIsNotMendedTheNextPageIsFound) {
  JobBuilder job = lyingBands(100);
  job.raw(garbage(8192));
  const ReadJob read = readJob(jobtest::addPage(job, {.number = 1}).end());
  ASSERT_EQ(read.pages.size(), 2U);
  EXPECT_EQ(read.pages[0].bandCount, 65U);
  EXPECT_EQ(read.pages[1].rows(), 2U);
  walk(job.bytes());
}

TEST(HostileJob, ABandOf65535RowsIsOneViolationAndOccupiesNoRows) {
  const Bytes bytes = blackJob().patch(kBandAt, 26, {0xFF, 0xFF}).bytes();
  walk(bytes);
  const ReadJob read = readJob(bytes);
  EXPECT_EQ(read.rules(), "band-rows") << read.told();
  ASSERT_EQ(read.pages.size(), 1U);
  EXPECT_LE(read.pages[0].rows(), 2U);
}

TEST(HostileJob, NothingButBandRecordsIsNoPage) {
  JobBuilder job;
  for (int band = 0; band < 1000; ++band) {
    job.bandRecord({.rows = 256}, 0);
  }
  const Walked walked = walk(job.bytes());
  EXPECT_EQ(walked.bands, 1000U);
  EXPECT_EQ(walked.totals.pages, 0U);
  EXPECT_EQ(walked.count(Rule::kRecordOrder), 1U);
  EXPECT_EQ(walked.count(Rule::kEndMark), 1U);
  EXPECT_EQ(walked.violations(), 2U);
  EXPECT_TRUE(readJob(job.bytes()).pages.empty());
}

TEST(HostileJob, OfJobsOneAfterTheOtherAllPagesAreGivenAndAfterEndIsToldOnce) {
  JobBuilder job = blackJob();
  for (std::uint32_t jobs = 2; jobs <= 3; ++jobs) {
    job.raw(smallColorJob());
    const ReadJob read = readJob(job);
    EXPECT_EQ(read.rules(), "after-end") << read.told();
    ASSERT_EQ(read.pages.size(), 1 + 2 * (jobs - 1));
    EXPECT_EQ(read.findings[0].offset, kEndAt + 4);
    EXPECT_FALSE(read.pages[0].isColor());
    EXPECT_TRUE(read.pages[1].isColor());
  }
  walk(job.bytes());
}

TEST(HostileJob, AMegabyteOfGarbageBetweenTwoPagesIsOneFinding) {
  JobBuilder job = headers();
  jobtest::addPage(job, {});
  job.raw(garbage(1 << 20));
  jobtest::addPage(job, {.rows = 300, .number = 1}).end();
  walk(job.bytes());
  const ReadJob read = readJob(job);
  EXPECT_EQ(read.rules(), "tag") << read.told();
  EXPECT_EQ(read.findings.at(0).offset, kEndAt);
  ASSERT_EQ(read.pages.size(), 2U);
  EXPECT_EQ(read.pages[0].rows(), 2U);
  EXPECT_EQ(read.pages[1].rows(), 300U);
}

TEST(HostileJob, AMegabyteOfGarbageAloneIsNoJob) {
  const Bytes bytes = garbage(1 << 20);
  EXPECT_TRUE(walk(bytes).findings.empty());
  const ReadJob read = readJob(bytes);
  EXPECT_FALSE(read.foundRecord);
  EXPECT_EQ(read.prologueBytes, bytes.size());
}

TEST(HostileJob, APrologueOfAToldLengthMayContainAJobRecordsStart) {
  JobBuilder job;
  job.text("GDIJ").raw({0, 0, 0, 120}).text(" and more");
  ASSERT_EQ(job.size(), 17U);
  job.raw(blackJob().bytes());
  const ReadJob told = readJob(job.bytes(), 17);
  EXPECT_EQ(told.told(), "");
  EXPECT_EQ(told.prologueBytes, 17U);
  EXPECT_TRUE(told.prologue.asExpected);
  EXPECT_EQ(told.pages.size(), 1U);
  const ReadJob searched = readJob(job.bytes());
  EXPECT_EQ(searched.prologueBytes, 0U);
  EXPECT_GE(searched.totals.violations, 1U);
  EXPECT_EQ(searched.pages.size(), 1U);
}

TEST(HostileJob, AToldLengthThatIsWrongMakesNoDifference) {
  JobBuilder job;
  job.text("prologue\n").raw(blackJob().bytes());
  for (const std::uint64_t told : std::initializer_list<std::uint64_t>{
           0, 8, 10, 129, 1024, 1025, 1'000'000, 0xFFFFFFFFFFFFFFFF}) {
    const ReadJob read = readJob(job.bytes(), told);
    EXPECT_EQ(read.told(), "") << told;
    EXPECT_EQ(read.prologueBytes, 9U) << told;
    EXPECT_FALSE(read.prologue.asExpected) << told;
    EXPECT_EQ(read.pages.size(), 1U) << told;
  }
}

TEST(HostileJob, AnInputThatFailsAnywhereIsAFailureAndNoViolation) {
  const Bytes whole = smallColorJob();
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    test::FailingInput input(firstBytes(whole, length));
    const Walked walked = walk(input);
    EXPECT_TRUE(walked.failed) << length;
    EXPECT_TRUE(walked.findings.empty()) << length << ": " << lineOf(walked.findings[0]);
    EXPECT_TRUE(walked.contiguous) << length;
    EXPECT_EQ(walked.end, length);
  }
}

TEST(HostileJob, WhatWasReadOfAPageBeforeTheInputFailsIsGiven) {
  test::FailingInput input(firstBytes(smallColorJob(), kMagentaAt + 10));
  const ReadJob read = readJob(input);
  EXPECT_TRUE(read.failed);
  EXPECT_EQ(read.told(), "");
  ASSERT_EQ(read.pages.size(), 1U);
  EXPECT_EQ(read.pages[0].plane(Ink::kCyan).rows(), 2U);
  EXPECT_EQ(read.pages[0].plane(Ink::kMagenta).rows(), 0U);
}

TEST(HostileJob, AClaimedBandLengthOf4GigabytesLosesThatBandOnly) {
  // Black's length stands behind the tag and the flags.
  const Bytes bytes = colorJob().patch(kBandAt, 8, {0xFF, 0xFF, 0xFF, 0xFF}).bytes();
  walk(bytes);
  const ReadJob read = readJob(bytes);
  EXPECT_EQ(read.rules(), "band-length") << read.told();
  ASSERT_EQ(read.pages.size(), 1U);
  EXPECT_EQ(read.pages[0].plane(Ink::kYellow).rows(), 2U);
}

TEST(HostileJob, AClaimedRecordLengthOf4GigabytesIsOneViolation) {
  for (const std::size_t record : {kJobAt, kHostAt, kPageAt}) {
    const Bytes bytes = blackJob().patch(record, 4, {0xFF, 0xFF, 0xFF, 0xFF}).bytes();
    walk(bytes);
    const ReadJob read = readJob(bytes);
    EXPECT_EQ(read.rules(), "record-length") << read.told();
    EXPECT_EQ(read.pages.size(), 1U);
  }
}

}  // namespace
}  // namespace gdi::reader
