// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "reader/RecordReader.h"
#include "tests/reader/breaches.h"

namespace gdi::reader {
namespace {

using jobtest::Bytes;
using jobtest::JobBuilder;
using jobtest::kFirst;
using jobtest::kLast;

std::vector<RecordStep> stepsOf(const JobBuilder& job) {
  std::istringstream input = job.stream();
  RecordReader reader(input);
  std::vector<RecordStep> steps;
  while (std::optional<RecordStep> step = reader.next()) {
    steps.push_back(std::move(*step));
  }
  return steps;
}

// One letter a step behind the prologue: j h p b, e for the end of the job, ? for a gap, ! for the
// end of a stream that breaks off. A star follows a step in which there is a flaw.
std::string walk(const JobBuilder& job) {
  std::string letters;
  for (const RecordStep& step : stepsOf(job)) {
    if (!std::holds_alternative<Prologue>(step.record)) {
      letters += " jhpbe?!"[step.record.index()];
      letters += step.flaws.empty() ? "" : "*";
    }
  }
  return letters;
}

struct Told {
  std::uint64_t offset = 0;  // in the stream
  Rule rule = Rule::kTag;
  std::string text;
};

// The flaws of all steps.
std::vector<Told> toldOf(const JobBuilder& job) {
  std::vector<Told> told;
  for (const RecordStep& step : stepsOf(job)) {
    for (const Flaw& flaw : step.flaws) {
      told.push_back({step.offset + flaw.offset, flaw.rule, flaw.text});
    }
  }
  return told;
}

// The only flaw.
Told flawOf(const JobBuilder& job) {
  const std::vector<Told> told = toldOf(job);
  EXPECT_EQ(told.size(), 1U);
  return told.empty() ? Told() : told.front();
}

TEST(RecordReader, GivesTheRecordsInTheirOrder) {
  JobBuilder job = headers();
  job.pageRecord({.rows = 2}).band(Ink::kBlack, kFirst | kLast, inkedRows(2));
  EXPECT_EQ(walk(job.pageRecord({}).end()), "jhpbpe");
}

TEST(RecordReader, GivesEveryByteInOneStep) {
  JobBuilder job;
  job.text("wake up").raw(blackJob().bytes()).text("behind the end");
  std::uint64_t offset = 0;
  for (const RecordStep& step : stepsOf(job)) {
    EXPECT_EQ(step.offset, offset);
    offset += step.bytes;
  }
  EXPECT_EQ(offset, job.size());
}

TEST(RecordReader, PassesOverAPrologueOfAnyLength) {
  for (const std::size_t length : std::initializer_list<std::size_t>{0, 1, 7, 8, 9, 100'000}) {
    JobBuilder job;
    job.text(std::string(length, 'G')).jobRecord(2).hostRecord().end();
    const std::vector<RecordStep> steps = stepsOf(job);
    ASSERT_EQ(steps.size(), 4U) << length;
    ASSERT_TRUE(std::holds_alternative<Prologue>(steps[0].record));
    EXPECT_EQ(steps[0].bytes, length);
    EXPECT_EQ(std::get<Prologue>(steps[0].record).start,
              Bytes(std::min<std::size_t>(length, 1024), 'G'));
    ASSERT_TRUE(std::holds_alternative<JobRecord>(steps[1].record)) << length;
    EXPECT_EQ(std::get<JobRecord>(steps[1].record).bitsPerPixel, 2U);
    EXPECT_EQ(steps[1].offset, length);
  }
}

TEST(RecordReader, APrologueThatNamesTheTagIsNoJobRecord) {
  JobBuilder job;
  job.text("GDIGDIJGDI").jobRecord(1).hostRecord().end();
  EXPECT_EQ(walk(job), "jhe");
  EXPECT_EQ(stepsOf(job).front().bytes, 10U);
}

// The first eight bytes of a band record, a page record and a host record.
const std::vector<Bytes> kStartsOfOtherRecords{{'G', 'D', 'I', 'B', 0, 0, 0, 1},
                                               {'G', 'D', 'I', 'P', 0, 0, 0, 64},
                                               {'G', 'J', 'E', 'T', 0, 0, 0, 152}};

TEST(RecordReader, APrologueMayHoldTheStartOfAnotherRecord) {
  // As far behind it as the page record is long, so that the job record itself seems to follow it,
  // directly, and at the end of what is looked at.
  for (const std::size_t filler : std::initializer_list<std::size_t>{56, 0, 13, 144, 65535}) {
    for (const Bytes& start : kStartsOfOtherRecords) {
      JobBuilder job;
      job.text("wake up").raw(start).text(std::string(filler, '.')).raw(blackJob().bytes());
      EXPECT_EQ(walk(job), "jhpbe") << start[3] << filler;
      EXPECT_EQ(stepsOf(job).front().bytes, 7U + 8 + filler);
    }
  }
}

TEST(RecordReader, APrologueMayHoldTheStartsOfManyRecords) {
  JobBuilder job;
  for (int i = 0; i < 1000; ++i) {
    job.raw(kStartsOfOtherRecords[1]).raw(kStartsOfOtherRecords[0]).text("...");
  }
  EXPECT_EQ(walk(job.raw(blackJob().bytes())), "jhpbe");
}

TEST(RecordReader, AJobWithoutItsBeginningIsReadFromItsFirstRecord) {
  const Bytes whole = blackJob().bytes();
  const auto from = [&whole](std::ptrdiff_t offset) {
    JobBuilder job;
    job.text("...").raw(Bytes(whole.begin() + offset, whole.end()));
    return job;
  };
  EXPECT_EQ(walk(from(120)), "h*pbe");
  EXPECT_EQ(walk(from(272)), "p*be");
  EXPECT_EQ(walk(from(336)), "b*e");
}

TEST(RecordReader, AJobWithoutItsBeginningIsNoPrologueOfTheJobBehindIt) {
  const Bytes whole = blackJob().bytes();
  for (const std::ptrdiff_t offset : {120, 272, 336}) {
    JobBuilder job;
    job.raw(Bytes(whole.begin() + offset, whole.end())).raw(whole);
    const std::string letters = walk(job);
    EXPECT_EQ(letters, offset == 120 ? "h*pbej*hpbe" : offset == 272 ? "p*bej*hpbe" : "b*ej*hpbe");
  }
}

TEST(RecordReader, AJobRecordTooFarBehindAnotherRecordIsNotLookedFor) {
  JobBuilder job;
  job.raw(kStartsOfOtherRecords[1]).text(std::string(65537, '.')).raw(blackJob().bytes());
  EXPECT_EQ(stepsOf(job).front().bytes, 0U);
  EXPECT_EQ(walk(job).front(), 'p');
}

TEST(RecordReader, AJobWithoutPagesIsAPrologueAndTheEndMark) {
  JobBuilder job;
  EXPECT_EQ(walk(job.text("wake up\r\n").end()), "e");
  EXPECT_EQ(walk(JobBuilder().end()), "e");
}

TEST(RecordReader, AnInputWithoutAnyRecordIsAPrologueAlone) {
  for (const char* text : {"", "no job at all"}) {
    std::istringstream input(text);
    RecordReader reader(input);
    const std::optional<RecordStep> prologue = reader.next();
    ASSERT_TRUE(prologue && std::holds_alternative<Prologue>(prologue->record)) << text;
    EXPECT_EQ(prologue->bytes, std::string(text).size());
    EXPECT_FALSE(reader.next());
    EXPECT_FALSE(reader.foundRecord());
    EXPECT_FALSE(reader.failed());
  }
}

TEST(RecordReader, ABandBringsItsDataAndItsPlane) {
  const Bytes data{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
  JobBuilder job = headers();
  job.pageRecord({}).band({.ink = Ink::kMagenta, .rows = 1}, data).end();
  const std::vector<RecordStep> steps = stepsOf(job);
  ASSERT_EQ(steps.size(), 6U);
  ASSERT_TRUE(std::holds_alternative<Band>(steps[4].record));
  EXPECT_EQ(steps[4].offset, 120U + 152 + 64);
  EXPECT_EQ(steps[4].bytes, 32U + 16);
  EXPECT_EQ(steps[4].header.size(), 32U);
  EXPECT_EQ(std::get<Band>(steps[4].record).ink, Ink::kMagenta);
  EXPECT_EQ(std::get<Band>(steps[4].record).data, data);
}

TEST(RecordReader, ABandThatFailedToCompressHasNoPlaneAndNoData) {
  JobBuilder job = headers();
  job.pageRecord({}).bandRecord({.rows = 1}, 0).end();
  EXPECT_EQ(walk(job), "jhpbe");
  const std::vector<RecordStep> steps = stepsOf(job);
  ASSERT_EQ(steps.size(), 6U);
  EXPECT_EQ(std::get<Band>(steps[4].record).ink, std::nullopt);
  EXPECT_TRUE(std::get<Band>(steps[4].record).data.empty());
}

// The check value of CRC-32 is that of these nine digits.
TEST(RecordReader, WhatIsNoWholeRecordHasAChecksumOfAllItsBytes) {
  JobBuilder prologue;
  EXPECT_EQ(stepsOf(prologue.text("123456789").end()).at(0).checksum.value(), 0xCBF43926U);
  JobBuilder gap = headers();
  gap.text("123456789").pageRecord({});
  EXPECT_EQ(stepsOf(gap).at(3).checksum.value(), 0xCBF43926U);
  EXPECT_EQ(stepsOf(gap).at(3).checksum.bytes(), 9U);
}

TEST(RecordReader, TheChecksumOfALongPrologueIsOfAllItsBytes) {
  Bytes bytes(70'000, '.');
  const auto checksumOf = [](const Bytes& prologue) {
    return stepsOf(JobBuilder().raw(prologue).jobRecord(1).hostRecord().end()).at(0).checksum;
  };
  Checksum whole;
  whole.add(bytes);
  EXPECT_EQ(checksumOf(bytes), whole);
  for (const std::size_t at : std::initializer_list<std::size_t>{0, 65527, 65528, 65536, 69'999}) {
    Bytes other = bytes;
    other[at] = ',';
    EXPECT_NE(checksumOf(other), whole) << at;
  }
}

TEST(RecordReader, AStreamThatBreaksOffHasAChecksumOfWhatCame) {
  JobBuilder band = headers();
  band.pageRecord({}).bandRecord({.rows = 1}, 64).text("1234");
  EXPECT_EQ(stepsOf(band).back().checksum.bytes(), 36U);
  JobBuilder page = headers();
  page.text("GDIP").text("1234");
  Checksum whole;
  whole.add(Bytes{'G', 'D', 'I', 'P', '1', '2', '3', '4'});
  EXPECT_EQ(stepsOf(page).back().checksum, whole);
}

TEST(RecordReader, AnUnknownTagIsAGapUpToTheNextRecord) {
  JobBuilder job = headers();
  job.text("GDIX").pageRecord({}).end();
  EXPECT_EQ(walk(job), "jh?*pe");
  EXPECT_EQ(flawOf(job).offset, 272U);
  EXPECT_EQ(flawOf(job).text, "no record begins with 47 44 49 58; 4 bytes passed over");
}

TEST(RecordReader, RecordsOutOfOrderAreGivenAllTheSame) {
  JobBuilder noHost;
  EXPECT_EQ(walk(noHost.jobRecord(1).pageRecord({}).end()), "jp*e");
  JobBuilder noPage = headers();
  EXPECT_EQ(walk(noPage.bandRecord({.rows = 1}, 0).end()), "jhb*e");
  JobBuilder twice = headers();
  EXPECT_EQ(walk(twice.jobRecord(1).hostRecord().end()), "jhj*he");
}

TEST(RecordReader, BytesBehindTheEndMarkAreAGapAndToldOnce) {
  JobBuilder job = headers();
  job.end().text("x");
  EXPECT_EQ(walk(job), "jhe?*");
  EXPECT_EQ(flawOf(job).offset, 276U);
  EXPECT_EQ(walk(job.raw(headers().bytes()).end()), "jhe?*jhe");
  EXPECT_EQ(flawOf(job).rule, Rule::kAfterEnd);
}

TEST(RecordReader, ALyingRecordLengthLeavesTheRecordsWhereTheyAre) {
  for (const std::size_t record : std::initializer_list<std::size_t>{0, 120, 272}) {
    JobBuilder job = headers();
    job.pageRecord({}).end();
    job.bytes()[record + 7] ^= 1;
    const std::string letters = walk(job);
    EXPECT_EQ(letters, record == 0 ? "j*hpe" : record == 120 ? "jh*pe" : "jhp*e");
    EXPECT_EQ(flawOf(job).offset, record + 4);
  }
}

TEST(RecordReader, OnlyOneTwoAndFourBitsAPixelAreTaken) {
  for (int minus1 = 0; minus1 < 256; ++minus1) {
    JobBuilder job = headers();
    job.end().bytes()[33] = static_cast<std::uint8_t>(minus1);
    const bool known = minus1 == 0 || minus1 == 1 || minus1 == 3;
    EXPECT_EQ(walk(job), known ? "jhe" : "j*he") << minus1;
  }
}

TEST(RecordReader, TwoLengthsInOneBandRecordLeaveItsDataAGap) {
  JobBuilder job = headers();
  job.pageRecord({}).bandRecord({.ink = Ink::kBlack, .rows = 1}, 16);
  const std::size_t band = job.size() - 32;
  job.bytes()[band + 15] = 16;
  job.raw(Bytes(32)).end();
  EXPECT_EQ(walk(job), "jhpb*?e");
  EXPECT_EQ(flawOf(job).offset, band + 8);
}

TEST(RecordReader, ALyingBandLengthCostsNoMemory) {
  JobBuilder job = headers();
  job.pageRecord({}).bandRecord({.rows = 256}, 0xFFFFFFFF).raw(Bytes(100)).end();
  EXPECT_EQ(walk(job), "jhpb*?e");
  EXPECT_EQ(flawOf(job).rule, Rule::kBandLength);
  for (const RecordStep& step : stepsOf(job)) {
    if (const auto* band = std::get_if<Band>(&step.record)) {
      EXPECT_EQ(band->data.capacity(), 0U);
    }
  }
}

TEST(RecordReader, AStreamThatEndsInABandBreaksOff) {
  JobBuilder job = headers();
  job.pageRecord({}).bandRecord({.rows = 256}, 16'000).raw(Bytes(100));
  EXPECT_EQ(walk(job), "jhp!*");
  const Told told = flawOf(job);
  EXPECT_EQ(told.offset, job.size());
  EXPECT_EQ(told.rule, Rule::kTruncated);
  EXPECT_EQ(told.text, "the stream ends after 100 of the black band's 16000 bytes");
}

TEST(RecordReader, ABandLengthThatIsTooShortEndsWhereTheNextRecordBegins) {
  JobBuilder job = headers();
  job.pageRecord({}).bandRecord({.rows = 1}, 16).raw(Bytes(48, 7)).pageRecord({}).end();
  EXPECT_EQ(walk(job), "jhpb*pe");
  const Told told = flawOf(job);
  EXPECT_EQ(told.offset, 336U + 8);
  EXPECT_EQ(told.text, "the band has 16 bytes, and yet the next record begins after 48 bytes");
  EXPECT_EQ(std::get<Band>(stepsOf(job).at(4).record).data, Bytes(48, 7));
}

TEST(RecordReader, ABandLengthThatIsTooShortEndsAtTheEndMark) {
  JobBuilder job = headers();
  job.pageRecord({}).bandRecord({.rows = 1}, 16).raw(Bytes(32)).end();
  EXPECT_EQ(walk(job), "jhpb*e");
  EXPECT_EQ(flawOf(job).rule, Rule::kBandLength);
}

TEST(RecordReader, ABandEndsAheadOfADamagedRecord) {
  for (const bool page : {false, true}) {
    JobBuilder job = headers();
    job.pageRecord({}).band({.rows = 1}, Bytes(16));
    const std::size_t damaged = job.size();
    page ? job.pageRecord({}) : job.band({.rows = 1}, Bytes(16));
    job.band({.rows = 1}, Bytes(16)).patch(damaged, 0, {'g'}).end();
    EXPECT_EQ(walk(job), "jhpb?*be") << page;
    EXPECT_EQ(flawOf(job).offset, damaged);
  }
}

TEST(RecordReader, ABandDoesNotGrowBeyondWhatItsRowsCanTake) {
  // A row takes 2 + 2 x 65,535 bytes at most, and the padding 16 more.
  JobBuilder job = headers();
  job.pageRecord({}).bandRecord({.rows = 1}, 16).raw(Bytes(std::size_t{131'104})).pageRecord({});
  EXPECT_EQ(walk(job.end()), "jhpb?*pe");
}

TEST(RecordReader, ABandLengthThatIsTooLongEndsWhereTheNextRecordBegins) {
  JobBuilder job = headers();
  job.pageRecord({}).bandRecord({.rows = 1}, 64).raw(Bytes(32, 7)).pageRecord({}).end();
  EXPECT_EQ(walk(job), "jhpb*pe");
  const Told told = flawOf(job);
  EXPECT_EQ(told.offset, 336U + 8);
  EXPECT_EQ(told.text, "the band has 64 bytes, and yet a record begins after 32 bytes");
  const std::vector<RecordStep> steps = stepsOf(job);
  ASSERT_EQ(steps.size(), 7U);
  EXPECT_EQ(std::get<Band>(steps[4].record).data, Bytes(32, 7));
}

}  // namespace
}  // namespace gdi::reader
