// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What is neither a field nor a page's pixels is compared by its bytes.

#include <string>

#include <gtest/gtest.h>

#include "tests/gdiview/diff_jobs_fixture.h"

namespace gdi::gdiview {
namespace {

using jobtest::Bytes;
using jobtest::JobBuilder;
using jobtest::kFirst;
using jobtest::kLast;
using reader::Ink;

class DiffBytes : public DiffJobs {};

constexpr const char* kOtherBytesDiffer =
    "job: differs in bytes outside its prologue, first records and pages\n";

TEST_F(DiffBytes, ThePrologueIsTold) {
  JobBuilder other;
  other.text("HELLO\n").raw(twoPages().bytes());
  EXPECT_EQ(told(twoPages(), other), "prologue: 0 bytes \"\" in A, 6 bytes \"HELLO\\n\" in B\n");
  options_.ignored = {"prologue"};
  lines_.str("");
  EXPECT_EQ(run(twoPages(), other), kSound);
  EXPECT_EQ(lines_.str(), "");
}

TEST_F(DiffBytes, APrologueIsComparedToItsEnd) {
  const auto withPrologue = [](char last) {
    JobBuilder job;
    job.text(std::string(2000, '.') + last).raw(twoPages().bytes());
    return job;
  };
  EXPECT_EQ(run(withPrologue('a'), withPrologue('a')), kSound);
  EXPECT_EQ(told(withPrologue('a'), withPrologue('b')),
            "prologue: differs behind its first 1024 bytes\n");
  options_.ignored = {"prologue"};
  EXPECT_EQ(run(withPrologue('a'), withPrologue('b')), kSound);
}

TEST_F(DiffBytes, BytesOutsideOfPagesAreTold) {
  JobBuilder longer = twoPages();
  longer.raw({0, 0, 0});
  // 120 + 152 + 4 bytes of records and mark.
  EXPECT_EQ(told(twoPages(), longer),
            "job: 276 bytes outside its prologue and pages in A, 279 in B\n");
}

TEST_F(DiffBytes, TheRecordsOfASecondJobAreCompared) {
  const JobBuilder a = twoPages().raw(twoPages().bytes());
  const JobBuilder b = twoPages().raw(twoPages("Letter").bytes());
  EXPECT_EQ(run(a, a), kSound);
  EXPECT_EQ(told(a, b), kOtherBytesDiffer);
  JobBuilder c = a;
  c.patch(twoPages().size() + kHostOffset, 8, {'d', 'i'});
  EXPECT_EQ(told(a, c), kOtherBytesDiffer);
}

TEST_F(DiffBytes, IgnoredFieldsOfASecondJobMayDiffer) {
  const JobBuilder a = twoPages().raw(twoPages().bytes());
  JobBuilder b = twoPages().raw(twoPages().bytes());
  b.patch(twoPages().size() + kHostOffset, 8, {'d', 'i'});
  b.patch(twoPages().size(), 23, {0xD6});
  options_.ignored = {"date", "host"};
  EXPECT_EQ(run(a, b), kSound);
  b.patch(twoPages().size() + kHostOffset, 72, {'e', 'm', 'm'});
  EXPECT_EQ(told(a, b), kOtherBytesDiffer);
}

// Without a job record ahead of the first page.
TEST_F(DiffBytes, AJobRecordBehindThePagesIsCompared) {
  const auto jobOf = [](const std::string& name) {
    JobBuilder job = twoPages();
    job.bytes().erase(job.bytes().begin(), job.bytes().begin() + kPage1Offset);
    return job.raw(twoPages(name).bytes());
  };
  EXPECT_EQ(told(jobOf("Report"), jobOf("Letter")), kOtherBytesDiffer);
}

TEST_F(DiffBytes, BytesBetweenBandsAreCompared) {
  const auto withGap = [](const std::string& gap) {
    JobBuilder job = twoPages();
    job.bytes().insert(job.bytes().begin() + kPage2Offset, gap.begin(), gap.end());
    return job;
  };
  EXPECT_EQ(run(withGap("abc"), withGap("abc")), kSound);
  EXPECT_EQ(told(withGap("abc"), withGap("abd")), "page 1: differs in bytes beside its bands\n");
  EXPECT_EQ(told(withGap("abc"), withGap("abcd")),
            "page 1: 3 bytes beside its bands in A, 4 in B\n");
}

TEST_F(DiffBytes, WhereBytesStandBetweenBandsIsCompared) {
  const auto withGapAt = [](std::ptrdiff_t offset) {
    JobBuilder job = twoPages();
    job.bytes().insert(job.bytes().begin() + offset, 3, '.');
    return job;
  };
  EXPECT_EQ(told(withGapAt(kBand2Offset + 64), withGapAt(kBand2Offset + 128)),
            "page 2: differs in bytes beside its bands\n");
}

TEST_F(DiffBytes, TheDataOfABandThatThePageHasNoPlaceForAreCompared) {
  const auto withCyan = [](std::uint8_t byte) {
    JobBuilder job;
    job.jobRecord(1).hostRecord().pageRecord({.rows = 1});
    job.band(Ink::kCyan, kFirst, {rowOf(byte)}).band(Ink::kBlack, kFirst | kLast, {rowOf(0)});
    return job.end();
  };
  EXPECT_EQ(told(withCyan(1), withCyan(2)), "page 1: differs in bytes beside its bands\n");
  EXPECT_EQ(told(withCyan(1), blackPage(1, {rowOf(0)})),
            "page 1, without a place: only in A, 1 band record\n"
            "page 1: differs in bytes beside its bands\n");
}

TEST_F(DiffBytes, BytesBehindTheEndOfTheJobAreCompared) {
  EXPECT_EQ(told(twoPages().text("abc"), twoPages().text("abd")), kOtherBytesDiffer);
}

TEST_F(DiffBytes, ABandAheadOfTheFirstPageIsCompared) {
  const auto withBand = [](std::uint32_t flags, std::uint8_t byte) {
    JobBuilder job;
    job.jobRecord(1).hostRecord().band(Ink::kBlack, flags, {rowOf(byte)});
    const JobBuilder page = blackPage(1, {rowOf(0)});
    return job.raw(Bytes(page.bytes().begin() + kPage1Offset, page.bytes().end()));
  };
  EXPECT_EQ(run(withBand(1, 2), withBand(1, 2)), kSound);
  EXPECT_EQ(told(withBand(1, 2), withBand(1, 3)), kOtherBytesDiffer);
  EXPECT_EQ(told(withBand(1, 2), withBand(0, 2)), kOtherBytesDiffer);
  options_.ignored = {"flags"};
  EXPECT_EQ(run(withBand(1, 2), withBand(0, 2)), kSound);
}

TEST_F(DiffBytes, WhatAStreamBreaksOffInIsCompared) {
  for (const std::size_t size :
       {kData1Offset + 20, kBand1Offset + 20, kPage1Offset + 20, kHostOffset + 20}) {
    JobBuilder a = twoPages();
    a.bytes().resize(size);
    JobBuilder b = a;
    b.bytes().back() ^= 0x40;
    EXPECT_EQ(run(a, a), kSound) << size;
    EXPECT_EQ(told(a, b), kOtherBytesDiffer) << size;
  }
}

TEST_F(DiffBytes, ARecordAheadOfAnotherPageIsADifference) {
  const auto withHostAt = [](std::ptrdiff_t offset) {
    JobBuilder job = twoPages();
    const Bytes host(job.bytes().begin() + kHostOffset, job.bytes().begin() + kPage1Offset);
    job.bytes().insert(job.bytes().begin() + offset, host.begin(), host.end());
    return job;
  };
  EXPECT_EQ(told(withHostAt(kPage1Offset), withHostAt(kEndOffset)),
            std::string("page 2: differs in bytes beside its bands\n").append(kOtherBytesDiffer));
}

// Each byte of a job is changed in turn: none differs unseen.
TEST_F(DiffBytes, NoByteDiffersUnseen) {
  const JobBuilder whole = twoPages().raw(twoPages().bytes()).text("abc");
  for (std::size_t at = 0; at < whole.size(); ++at) {
    JobBuilder other = whole;
    other.bytes()[at] ^= 0x40U;
    EXPECT_EQ(run(whole, other), kFaulty) << at;
  }
}

}  // namespace
}  // namespace gdi::gdiview
