// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/reader/breaches.h"

namespace gdi::reader {

namespace {

using jobtest::Bytes;
using jobtest::JobBuilder;

Bytes cutTo(std::size_t size) {
  Bytes bytes = blackJob().bytes();
  bytes.resize(size);
  return bytes;
}

// The black job with other bytes between two of its records, or in place of some of them.
Bytes spliced(std::size_t at, std::string_view text, std::size_t instead = 0) {
  Bytes bytes = blackJob().bytes();
  const auto place = bytes.begin() + static_cast<std::ptrdiff_t>(at);
  bytes.erase(place, place + static_cast<std::ptrdiff_t>(instead));
  bytes.insert(bytes.begin() + static_cast<std::ptrdiff_t>(at), text.begin(), text.end());
  return bytes;
}

JobBuilder withBandAhead() {
  JobBuilder job = headers();
  job.band({.flags = jobtest::kFirst | jobtest::kLast, .rows = 2},
           jobtest::literalBand(inkedRows(2), true));
  return jobtest::addPage(job, {}).end();
}

JobBuilder twice(std::string_view record) {
  JobBuilder job = headers();
  record == "job" ? job.jobRecord(1).hostRecord() : job.hostRecord();
  return jobtest::addPage(job, {}).end();
}

JobBuilder withoutHost() {
  JobBuilder job;
  return jobtest::addPage(job.jobRecord(1), {}).end();
}

JobBuilder withoutJob() {
  JobBuilder job;
  return jobtest::addPage(job.hostRecord(), {}).end();
}

JobBuilder twoJobs() {
  JobBuilder job = blackJob();
  return job.raw(blackJob().bytes());
}

JobBuilder pageBehindTheEnd() {
  JobBuilder job = blackJob();
  return jobtest::addPage(job, {.number = 1}).end();
}

Breaches tags() {
  return {
      {Rule::kTag, "FourBytesAheadOfTheEndMark", spliced(kEndAt, "GDIX"), kEndAt, "no record"},
      {Rule::kTag, "OneByteAheadOfAPage", spliced(kPageAt, "x"), kPageAt, "no record"},
      {Rule::kTag, "TwelveBytesAheadOfABand", spliced(kBandAt, "no record..."), kBandAt,
       "no record"},
      {Rule::kTag, "ADamagedTagOfTheHostRecord", spliced(kHostAt, "GJEU", 4), kHostAt, "no record"},
      {Rule::kTag, "ADamagedTagOfABand", spliced(kBandAt, "XDIB", 4), kBandAt, "no record"},
  };
}

Breaches orders() {
  Bytes nothingButAJobRecord = JobBuilder().jobRecord(1).end().bytes();
  return {
      {Rule::kRecordOrder, "NoHostRecord", withoutHost().bytes(), kHostAt, "page 1"},
      {Rule::kRecordOrder, "NoHostRecordAndNoPage", nothingButAJobRecord, kHostAt,
       "end-of-job mark"},
      {Rule::kRecordOrder, "NoJobRecord", withoutJob().bytes(), 0, "host record"},
      {Rule::kRecordOrder, "TwoJobRecords", twice("job").bytes(), kPageAt, "job record"},
      {Rule::kRecordOrder, "TwoHostRecords", twice("host").bytes(), kPageAt, "host record"},
      {Rule::kRecordOrder, "ABandAheadOfThePage", withBandAhead().bytes(), kPageAt, "band record"},
  };
}

Breaches lengths() {
  return {
      {Rule::kRecordLength, "OfTheJobRecord", blackJob().patch(kJobAt, 7, {121}).bytes(), 4,
       "job record"},
      {Rule::kRecordLength, "OfTheHostRecord",
       blackJob().patch(kHostAt, 4, {0xFF, 0xFF, 0xFF, 0xFF}).bytes(), kHostAt + 4, "host record"},
      {Rule::kRecordLength, "OfAPageRecord", blackJob().patch(kPageAt, 7, {0}).bytes(), kPageAt + 4,
       "page 1"},
  };
}

Breaches ends() {
  const std::string end = "end of the stream";
  return {
      {Rule::kTruncated, "InTheJobRecord", cutTo(119), 119, end},
      {Rule::kTruncated, "InTheTagOfTheHostRecord", cutTo(kHostAt + 3), kHostAt + 3, end},
      {Rule::kTruncated, "InThePageRecord", cutTo(kPageAt + 63), kPageAt + 63, end},
      {Rule::kTruncated, "InABandRecord", cutTo(kBandAt + 31), kBandAt + 31, end},
      {Rule::kTruncated, "AheadOfTheBandsData", cutTo(kDataAt), kDataAt, end},
      {Rule::kTruncated, "InTheBandsData", cutTo(kDataAt + 63), kDataAt + 63, end},
      {Rule::kTruncated, "InTheEndMark", cutTo(kEndAt + 3), kEndAt + 3, end},
      {Rule::kEndMark, "IsMissing", cutTo(kEndAt), kEndAt, end},
      {Rule::kEndMark, "IsMissingOfAJobWithoutPages", headers().bytes(), kPageAt, end},
      {Rule::kAfterEnd, "OneByte", spliced(kEndAt + 4, "x"), kEndAt + 4, "no record"},
      {Rule::kAfterEnd, "OneByteOfATag", spliced(kEndAt + 4, "G"), kEndAt + 4, "no record"},
      {Rule::kAfterEnd, "AnotherMark", spliced(kEndAt + 4, "JIDG"), kEndAt + 4, "end-of-job mark"},
      {Rule::kAfterEnd, "AnotherJob", twoJobs().bytes(), kEndAt + 4, "job record"},
      {Rule::kAfterEnd, "AnotherPage", pageBehindTheEnd().bytes(), kEndAt + 4, "page 2"},
  };
}

}  // namespace

Breaches streamBreaches() {
  Breaches all;
  for (const Breaches& some : {tags(), orders(), lengths(), ends()}) {
    all.insert(all.end(), some.begin(), some.end());
  }
  return all;
}

}  // namespace gdi::reader
