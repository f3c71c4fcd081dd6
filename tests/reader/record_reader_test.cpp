// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "reader/RecordReader.h"
#include "tests/jobs/job_builder.h"

namespace gdi::reader {
namespace {

using jobtest::JobBuilder;
using jobtest::kFirst;
using jobtest::kLast;

// One letter a record: j h p b, e for the end of the job, ! for a trouble.
std::string walk(const JobBuilder& job) {
  std::istringstream input = job.stream();
  RecordReader reader(input);
  std::string letters;
  while (const std::optional<Record> record = reader.next()) {
    letters += "jhpbe!"[record->index()];
  }
  return letters;
}

Trouble troubleOf(const JobBuilder& job) {
  std::istringstream input = job.stream();
  RecordReader reader(input);
  while (const std::optional<Record> record = reader.next()) {
    if (const auto* trouble = std::get_if<Trouble>(&*record)) {
      return *trouble;
    }
  }
  return {0, "none"};
}

JobBuilder headers() {
  JobBuilder job;
  job.jobRecord(1).hostRecord();
  return job;
}

TEST(RecordReader, GivesTheRecordsInTheirOrder) {
  JobBuilder job = headers();
  job.pageRecord({.rows = 2}).band(Ink::kBlack, kFirst | kLast, jobtest::solidRows(2, 16, 1));
  EXPECT_EQ(walk(job.pageRecord({}).end()), "jhpbpe");
}

TEST(RecordReader, PassesOverAPrologueOfAnyLength) {
  for (const std::size_t length : std::initializer_list<std::size_t>{0, 1, 7, 8, 9, 100'000}) {
    JobBuilder job;
    job.text(std::string(length, 'G')).jobRecord(2).hostRecord().end();
    std::istringstream input = job.stream();
    RecordReader reader(input);
    const std::optional<Record> first = reader.next();
    ASSERT_TRUE(first && std::holds_alternative<JobRecord>(*first)) << length;
    EXPECT_EQ(std::get<JobRecord>(*first).bitsPerPixel, 2U);
    EXPECT_EQ(reader.prologueBytes(), length);
    EXPECT_EQ(reader.recordOffset(), length);
  }
}

TEST(RecordReader, APrologueThatNamesTheTagIsNoJobRecord) {
  JobBuilder job;
  job.text("GDIGDIJGDI").jobRecord(1).hostRecord().end();
  std::istringstream input = job.stream();
  RecordReader reader(input);
  const std::optional<Record> first = reader.next();
  ASSERT_TRUE(first && std::holds_alternative<JobRecord>(*first));
  EXPECT_EQ(reader.prologueBytes(), 10U);
}

TEST(RecordReader, AJobWithoutPagesIsAPrologueAndTheEndMark) {
  JobBuilder job;
  EXPECT_EQ(walk(job.text("wake up\r\n").end()), "e");
  EXPECT_EQ(walk(JobBuilder().end()), "e");
}

TEST(RecordReader, AnInputWithoutAnyRecordIsTrouble) {
  EXPECT_EQ(walk(JobBuilder()), "!");
  JobBuilder text;
  text.text("no job at all");
  EXPECT_EQ(troubleOf(text).offset, 13U);
}

TEST(RecordReader, ABandBringsItsDataAndItsPlane) {
  const jobtest::Bytes data{1, 2, 3, 4};
  JobBuilder job = headers();
  job.pageRecord({}).band({.ink = Ink::kMagenta, .rows = 1}, data).end();
  std::istringstream input = job.stream();
  RecordReader reader(input);
  reader.next();
  reader.next();
  reader.next();
  const std::optional<Record> record = reader.next();
  ASSERT_TRUE(record && std::holds_alternative<Band>(*record));
  EXPECT_EQ(reader.recordOffset(), 120U + 152 + 64);
  EXPECT_EQ(std::get<Band>(*record).ink, Ink::kMagenta);
  EXPECT_EQ(std::get<Band>(*record).data, data);
}

TEST(RecordReader, ABandThatFailedToCompressHasNoPlaneAndNoData) {
  JobBuilder job = headers();
  job.pageRecord({}).bandRecord({.rows = 1}, 0).end();
  EXPECT_EQ(walk(job), "jhpbe");
}

TEST(RecordReader, AnUnknownTagIsTroubleWhereItStands) {
  JobBuilder job = headers();
  job.text("GDIX").end();
  EXPECT_EQ(walk(job), "jh!");
  EXPECT_EQ(troubleOf(job).offset, 272U);
  EXPECT_NE(troubleOf(job).text.find("47 44 49 58"), std::string::npos);
}

TEST(RecordReader, RecordsOutOfOrderAreTrouble) {
  JobBuilder noHost;
  EXPECT_EQ(walk(noHost.jobRecord(1).pageRecord({})), "j!");
  JobBuilder noPage = headers();
  EXPECT_EQ(walk(noPage.bandRecord({}, 0)), "jh!");
  JobBuilder twice = headers();
  EXPECT_EQ(walk(twice.jobRecord(1)), "jh!");
}

TEST(RecordReader, BytesBehindTheEndMarkAreTrouble) {
  JobBuilder job = headers();
  job.end().text("x");
  EXPECT_EQ(walk(job), "jh!");
  EXPECT_EQ(troubleOf(job).offset, 276U);
}

TEST(RecordReader, ALyingRecordLengthIsTrouble) {
  for (const std::size_t record : std::initializer_list<std::size_t>{0, 120, 272}) {
    JobBuilder job = headers();
    job.pageRecord({}).end();
    job.bytes()[record + 7] ^= 1;
    EXPECT_EQ(walk(job).back(), '!') << record;
    EXPECT_EQ(troubleOf(job).offset, record + 4);
  }
}

TEST(RecordReader, AnAnnouncedHostRecordOfAnotherLengthIsTrouble) {
  JobBuilder job = headers();
  job.bytes()[19] = 153;
  EXPECT_EQ(walk(job), "!");
  EXPECT_EQ(troubleOf(job).offset, 18U);
}

TEST(RecordReader, OnlyOneTwoAndFourBitsAPixelAreTaken) {
  for (int minus1 = 0; minus1 < 256; ++minus1) {
    JobBuilder job = headers();
    job.end().bytes()[33] = static_cast<std::uint8_t>(minus1);
    const bool known = minus1 == 0 || minus1 == 1 || minus1 == 3;
    EXPECT_EQ(walk(job), known ? "jhe" : "!") << minus1;
  }
}

TEST(RecordReader, TwoLengthsInOneBandRecordAreTrouble) {
  JobBuilder job = headers();
  job.pageRecord({}).bandRecord({.ink = Ink::kBlack}, 16);
  const std::size_t band = job.size() - 32;
  job.bytes()[band + 15] = 16;
  job.raw(jobtest::Bytes(32)).end();
  EXPECT_EQ(walk(job), "jhp!");
  EXPECT_EQ(troubleOf(job).offset, band + 8);
}

TEST(RecordReader, ALyingBandLengthCostsNoMemory) {
  JobBuilder job = headers();
  job.pageRecord({}).bandRecord({.rows = 256}, 0xFFFFFFFF).raw(jobtest::Bytes(100));
  const Trouble trouble = troubleOf(job);
  EXPECT_EQ(trouble.offset, job.size());
  EXPECT_EQ(trouble.text, "the stream ends after 100 of the black band's 4294967295 bytes");
}

TEST(RecordReader, ABandLengthThatIsTooShortIsTroubleAtTheNextTag) {
  JobBuilder job = headers();
  job.pageRecord({}).bandRecord({.rows = 1}, 16).raw(jobtest::Bytes(32)).end();
  EXPECT_EQ(walk(job), "jhpb!");
  EXPECT_EQ(troubleOf(job).offset, job.size() - 4 - 16);
}

}  // namespace
}  // namespace gdi::reader
