// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "tests/gdiview/info_job_fixture.h"
#include "tests/support/FailingInput.h"

namespace gdi::gdiview {
namespace {

using jobtest::Bytes;
using jobtest::JobBuilder;

const std::string kJobLines =
    "offset 6: job record, 120 bytes\n"
    "  length              120 bytes\n"
    "  constant_8          100\n"
    "  copies              3\n"
    "  host_record_length  152 bytes\n"
    "  date                2108593877 (2026-11-15 21:54:36)\n"
    "  color_flag          0 (tells nothing: 0 in colour jobs too)\n"
    "  constant_32         1\n"
    "  bits_per_pixel      1 (Fast)\n"
    "  constant_34         0\n"
    "  constant_35         2\n"
    "  name                \"Report\"\n"
    "offset 126: host record, 152 bytes\n"
    "  length              152 bytes\n"
    "  host                \"desk\"\n"
    "  user                \"anna\"\n";

const std::string kPageLines =
    "offset 278: page record, 64 bytes: page 1\n"
    "  length              64 bytes\n"
    "  media_size          9 (A4)\n"
    "  input_tray          2 (Tray1)\n"
    "  paper_type          13 (Thick160)\n"
    "  row_bits            128 (the low 16 bits of a row's bits, padding included)\n"
    "  rows                2 (the low 16 bits)\n"
    "  planes              1 (black)\n"
    "  constant_33         1\n"
    "  number              0 (from 0)\n"
    "  bands               1 (a plane, sometimes one too many)\n"
    "  page_width          4064 µm (4.1 mm)\n"
    "  page_length         85 µm (0.085 mm)\n";

const std::string kBandLine =
    "offset 342: band record, page 1, black band 0: flags 3 (first of its plane, last of the "
    "page), "
    "black_bytes 64, row_bits 128, rows 2, page_blank 0, 200.0 % of 32 bytes\n";

const std::string kPageSummary =
    "page 1: A4, 4.1 x 0.085 mm, 1 plane of 1 bit (Fast), 96 x 2 pixels, rows of 128 bits, not "
    "blank\n"
    "  black: 1 band, 2 rows, 64 bytes\n"
    "  compressed: 64 bytes, 200.0 % of 32; the largest is black band 0 with 64 bytes\n";

const std::string kJobLine =
    "job: 1 page, 3 copies, \"Report\", 2026-11-15 21:54:36, host \"desk\", user \"anna\"\n";

TEST_F(InfoJob, EveryRecordIsToldFieldByFieldThenThePageAndTheJob) {
  EXPECT_EQ(run(onePage()), kSound);
  EXPECT_EQ(errors_.str(), "");
  EXPECT_EQ(out_.str(),
            "offset 0: prologue, 6 bytes, as long as Info.plist says\n"
            "  \"\\x1b%P\\\"\\r\\n\"\n" +
                kJobLines + kPageLines + kBandLine + kPageSummary +
                "offset 438: end-of-job mark, 4 bytes\n" + kJobLine +
                "  442 bytes, of these 64 in bands; 0 violations and 0 notes\n");
}

TEST_F(InfoJob, APrologueOfUnknownLengthIsSearchedForItsEnd) {
  options_.prologueBytes.reset();
  EXPECT_EQ(run(onePage()), kSound);
  EXPECT_EQ(out_.str().find("offset 0: prologue, 6 bytes, found by searching for a record\n"), 0U);
}

TEST_F(InfoJob, ThatThereIsNoPrologueIsToldAsSuch) {
  options_.prologueBytes.reset();
  EXPECT_EQ(run(twoPages()), kSound);
  EXPECT_EQ(out_.str().find("offset 0: no prologue\noffset 0: job record, "), 0U);
}

TEST_F(InfoJob, ABandsFieldsAreToldWithTheirMeanings) {
  JobBuilder job;
  job.jobRecord(1).hostRecord().pageRecord({.rows = 1});
  job.band({.flags = jobtest::kFirst | jobtest::kLast, .rows = 1, .pageBlank = true},
           jobtest::literalBand({rowOf(0)}, true));
  options_.prologueBytes.reset();
  (void)run(job.end());
  EXPECT_NE(out_.str().find(", page_blank 1 (the page is blank), "), std::string::npos);
}

TEST_F(InfoJob, OfAPictureThatEndsLikeAJobNothingIsPrinted) {
  for (const bool json : {false, true}) {
    options_.json = json;
    JobBuilder picture;
    EXPECT_EQ(run(picture.text("\x89PNG\r\n\x1a\n").end()), kUnusable);
    EXPECT_EQ(out_.str(), "");
  }
}

TEST_F(InfoJob, AJobWithoutPagesIsItsPrologueAndItsEnd) {
  JobBuilder job;
  EXPECT_EQ(run(job.text(kPrologue).end()), kSound);
  EXPECT_EQ(out_.str().find("offset 0: prologue, 6 bytes, as long as Info.plist says\n"
                            "  \"\\x1b%P\\\"\\r\\n\"\n"
                            "offset 6: end-of-job mark, 4 bytes\n"
                            "job: 0 pages\n"),
            0U);
}

// The band's data are bytes of no code word: nobody knows whether it had ink.
TEST_F(InfoJob, APageWithALostBandIsNotCalledBlank) {
  options_.page = 1;
  options_.summary = true;
  JobBuilder job;
  job.jobRecord(1).hostRecord().pageRecord({.rows = 2, .heightMicrometres = 85});
  job.band({.flags = jobtest::kFirst | jobtest::kLast, .rows = 2}, Bytes(16, 0x55)).end();
  EXPECT_EQ(run(job), kFaulty);
  EXPECT_NE(out_.str().find(", no ink in what can be read\n"), std::string::npos);
  EXPECT_NE(out_.str().find("; 1 band lost\n"), std::string::npos);
}

// Nothing is written to a terminal that there is not; the line would stand among the records.
TEST_F(InfoJob, ATerminalSeesHowMuchHasBeenRead) {
  Progress::Time now;
  Progress progress(errors_, true, 442, [&now] { return now += std::chrono::seconds(2); });
  std::istringstream stream = onePage().stream();
  JobInput input(stream, "JOB");
  EXPECT_EQ(infoJob(input, options_, progress, out_, errors_), kSound);
  EXPECT_NE(errors_.str().find("\rgdiview: page 1, "), std::string::npos);
  EXPECT_EQ(errors_.str().back(), '\r');
  EXPECT_EQ(out_.str().find('\r'), std::string::npos);
}

TEST_F(InfoJob, TheSummariesAloneHaveNoRecords) {
  options_.summary = true;
  EXPECT_EQ(run(onePage()), kSound);
  EXPECT_EQ(out_.str(), kPageSummary + kJobLine +
                            "  442 bytes, of these 64 in bands; 0 violations and 0 notes\n");
}

TEST_F(InfoJob, OnePageAloneIsItsRecordsAndItsSummary) {
  options_.page = 1;
  EXPECT_EQ(run(onePage()), kSound);
  EXPECT_EQ(out_.str(), kPageLines + kBandLine + kPageSummary);
}

TEST_F(InfoJob, OnePageInShortIsItsSummary) {
  options_.page = 1;
  options_.summary = true;
  EXPECT_EQ(run(onePage()), kSound);
  EXPECT_EQ(out_.str(), kPageSummary);
}

// Each of the colour page's bands is 32 bytes for a row of 16.
TEST_F(InfoJob, AColourPageHasALineForEachPlane) {
  options_.prologueBytes = 0;
  options_.page = 2;
  options_.summary = true;
  EXPECT_EQ(run(twoPages()), kSound);
  EXPECT_EQ(
      out_.str(),
      "page 2: A4, 4.1 x 0.042 mm, 4 planes of 1 bit (Fast), 96 x 1 pixels, rows of 128 bits, not "
      "blank\n"
      "  cyan: 1 band, 1 row, 32 bytes\n"
      "  magenta: 1 band, 1 row, 32 bytes\n"
      "  yellow: 1 band, 1 row, 32 bytes\n"
      "  black: 1 band, 1 row, 32 bytes\n"
      "  compressed: 128 bytes, 200.0 % of 64; the largest is black band 0 with 32 bytes\n");
}

TEST_F(InfoJob, ABlankPageIsToldAndThatItIsFlagged) {
  options_.page = 1;
  options_.summary = true;
  jobtest::SoundPage page;
  page.blank = true;
  EXPECT_EQ(run(jobtest::jobOf(page)), kSound);
  EXPECT_EQ(
      out_.str().find(
          "page 1: A4, 4.1 x 0.085 mm, 1 plane of 1 bit (Fast), 96 x 2 pixels, rows of 128 bits, "
          "blank, flagged as blank\n"),
      0U);
}

TEST_F(InfoJob, APageThatIsNotThereIsToldAndNothingIsPrinted) {
  options_.page = 2;
  EXPECT_EQ(run(onePage()), kUnusable);
  EXPECT_EQ(out_.str(), "");
  EXPECT_EQ(errors_.str(), "gdiview: JOB: there is no page 2; the job has 1\n");
}

TEST_F(InfoJob, AJobThatBreaksOffInABandIsToldUpToThere) {
  JobBuilder job = onePage();
  job.bytes().resize(kBandOffset + 32 + 10);
  EXPECT_EQ(run(job), kFaulty);
  EXPECT_EQ(errors_.str(), "");
  EXPECT_EQ(out_.str(),
            "offset 0: prologue, 6 bytes, as long as Info.plist says\n"
            "  \"\\x1b%P\\\"\\r\\n\"\n" +
                kJobLines + kPageLines +
                "page 1: A4, 4.1 x 0.085 mm, 1 plane of 1 bit (Fast), 96 x 0 pixels, rows of 128 "
                "bits, no "
                "ink in what can be read, broken off\n"
                "  black: 0 bands, 0 rows, 0 bytes\n"
                "  compressed: 0 bytes, of nothing\n"
                "offset 342: the stream ends after 10 of the black band's 64 bytes\n" +
                kJobLine +
                "  384 bytes, of these 0 in bands; 1 violation and 0 notes, which gdiview check "
                "tells\n");
}

// Byte 28 of a band record is zero; that it is not comes ahead of the end in the record.
TEST_F(InfoJob, WhereTheStreamEndsIsToldThoughTheRecordHasAnotherFault) {
  JobBuilder job = onePage();
  job.patch(kBandOffset, 28, {1}).bytes().resize(kBandOffset + 32 + 10);
  EXPECT_EQ(run(job), kFaulty);
  EXPECT_NE(
      out_.str().find("\noffset 342: the stream ends after 10 of the black band's 64 bytes\n"),
      std::string::npos);
}

TEST_F(InfoJob, WithoutTheEndOfJobMarkThePageIsWhole) {
  JobBuilder job = onePage();
  job.bytes().resize(438);
  EXPECT_EQ(run(job), kFaulty);
  EXPECT_NE(out_.str().find(kPageSummary +
                            "offset 438: the stream ends without the end-of-job mark (JIDG)\n" +
                            kJobLine),
            std::string::npos);
}

TEST_F(InfoJob, AnInputThatCannotBeReadOnIsToldWithWhatWasRead) {
  Bytes bytes = onePage().bytes();
  bytes.resize(kBandOffset + 32 + 10);
  test::FailingInput stream(bytes);
  EXPECT_EQ(run(stream), kUnusable);
  EXPECT_EQ(errors_.str(), "gdiview: JOB: the input cannot be read beyond offset 384\n");
  EXPECT_NE(out_.str().find(kPageLines + "page 1: "), std::string::npos);
  EXPECT_NE(out_.str().find("\noffset 342: the input cannot be read on\n"), std::string::npos);
}

TEST_F(InfoJob, AnInputThatCannotBeReadAtAllPrintsNothing) {
  test::FailingInput stream({});
  EXPECT_EQ(run(stream), kUnusable);
  EXPECT_EQ(out_.str(), "");
  EXPECT_EQ(errors_.str(), "gdiview: JOB: the input cannot be read beyond offset 0\n");
}

TEST_F(InfoJob, WhatIsNoJobStreamPrintsNothing) {
  std::istringstream stream("%!PS-Adobe-3.0\n");
  EXPECT_EQ(run(stream), kUnusable);
  EXPECT_EQ(out_.str(), "");
  EXPECT_EQ(errors_.str(),
            "gdiview: JOB: this is no job stream: it begins like a PostScript document\n");
}

}  // namespace
}  // namespace gdi::gdiview
