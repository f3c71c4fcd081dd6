// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <string>

#include <gtest/gtest.h>

#include "tests/gdiview/png_job_fixture.h"

namespace gdi::gdiview {
namespace {

using jobtest::Bytes;
using jobtest::JobBuilder;
using jobtest::kFirst;
using jobtest::kLast;
using reader::Ink;

// Nine code words a row record without and eleven with the clear-row command, a word ahead of each:
// 22 words and the trailer's 4 are filled up to 32, 64 bytes; 12 words to 16, 32 bytes.
TEST_F(PngJob, EveryPageIsAPictureAndALine) {
  EXPECT_EQ(run(twoPages()), kSound);
  EXPECT_EQ(errors_.str(), "");
  EXPECT_EQ(lines_.str(),
            "page 1: 1 plane (K), 2 rows of 128 bits, 96 pixels of 1 bit, 1 band, 64 compressed "
            "bytes: " +
                pathOf("page-1") +
                "\npage 2: 4 planes (CMYK), 1 row of 128 bits, 96 pixels of 1 bit, 4 bands, 128 "
                "compressed bytes: " +
                pathOf("page-2") + "\n");
  const PngPicture mono = picture("page-1");
  EXPECT_EQ(mono.width, 96U);
  EXPECT_EQ(mono.height, 2U);
  EXPECT_EQ(mono.channels, 1);
  EXPECT_EQ(mono.samplesPerMetre, 23622U);  // 600 / 0.0254
  Bytes expected(192, 255);
  std::fill(expected.begin() + 4, expected.begin() + 8, std::uint8_t{0});
  std::fill(expected.begin() + 96, expected.end(), std::uint8_t{0});
  EXPECT_EQ(mono.samples, expected);
  const PngPicture color = picture("page-2");
  EXPECT_EQ(color.channels, 3);
  EXPECT_EQ(Bytes(color.samples.begin(), color.samples.begin() + 3), (Bytes{0, 160, 225}));
}

TEST_F(PngJob, AReducedPictureSaysItsResolution) {
  options_.reduction = 8;
  EXPECT_EQ(run(twoPages()), kSound);
  const PngPicture mono = picture("page-1");
  EXPECT_EQ(mono.width, 12U);
  EXPECT_EQ(mono.height, 1U);
  EXPECT_EQ(mono.samplesPerMetre, 2953U);
  // Of the first cell's 16 pixels 4 are white, of the others 8.
  Bytes expected(12, 128);
  expected[0] = 64;
  EXPECT_EQ(mono.samples, expected);
}

TEST_F(PngJob, EachPlaneIsAPictureInGreyOfItsOwn) {
  options_.planes = true;
  EXPECT_EQ(run(twoPages()), kSound);
  EXPECT_EQ(picture("page-1-black").samples, picture("page-1").samples);
  EXPECT_EQ(picture("page-1-cyan").width, 0U);
  EXPECT_EQ(picture("page-2-cyan").channels, 1);
  EXPECT_EQ(picture("page-2-cyan").samples, Bytes(96, 0));
  for (const char* plane : {"page-2-magenta", "page-2-yellow", "page-2-black"}) {
    EXPECT_EQ(picture(plane).samples, Bytes(96, 255)) << plane;
  }
  EXPECT_NE(lines_.str().find("\npage 2, yellow: " + pathOf("page-2-yellow") + "\n"),
            std::string::npos);
}

// Two black pages, whose numbers are 0 and 1, with eight pixels at their top left.
class TurnedPngJob : public PngJob {
 protected:
  static JobBuilder sheet() {
    JobBuilder job;
    job.jobRecord(1).hostRecord();
    for (const std::uint16_t number : std::initializer_list<std::uint16_t>{0, 1}) {
      job.pageRecord({.rows = 2, .number = number, .heightMicrometres = 85});
      job.band(Ink::kBlack, kFirst | kLast, {rowOf(0xFF), rowOf(0)});
    }
    return job.end();
  }
  [[nodiscard]] bool isTurned(int page) const {
    const Bytes samples = picture("page-" + std::to_string(page)).samples;
    EXPECT_EQ(samples.size(), 192U);
    EXPECT_NE(samples.front(), samples.back());
    return samples.front() == 255;
  }
};

TEST_F(TurnedPngJob, NoPageIsTurnedUnlessAskedFor) {
  EXPECT_EQ(run(sheet()), kSound);
  EXPECT_FALSE(isTurned(1));
  EXPECT_FALSE(isTurned(2));
}

TEST_F(TurnedPngJob, BacksAreThePagesWithOddNumbers) {
  options_.turned = Turned::kBacks;
  EXPECT_EQ(run(sheet()), kSound);
  EXPECT_FALSE(isTurned(1));
  EXPECT_TRUE(isTurned(2));
}

TEST_F(TurnedPngJob, FrontsAreTheOthers) {
  options_.turned = Turned::kFronts;
  EXPECT_EQ(run(sheet()), kSound);
  EXPECT_TRUE(isTurned(1));
  EXPECT_FALSE(isTurned(2));
}

TEST_F(TurnedPngJob, AllIsBoth) {
  options_.turned = Turned::kAll;
  EXPECT_EQ(run(sheet()), kSound);
  EXPECT_TRUE(isTurned(1));
  EXPECT_TRUE(isTurned(2));
}

TEST_F(PngJob, OnePageAloneKeepsItsNumber) {
  options_.page = 2;
  EXPECT_EQ(run(twoPages()), kSound);
  EXPECT_EQ(picture("page-1").width, 0U);
  EXPECT_EQ(picture("page-2").width, 96U);
}

TEST_F(PngJob, APageWithoutRowsHasNoPicture) {
  JobBuilder job;
  job.jobRecord(1).hostRecord().pageRecord({}).end();
  EXPECT_EQ(run(job), kSound);
  EXPECT_NE(lines_.str().find("0 bands, 0 compressed bytes, no picture\n"), std::string::npos);
  EXPECT_EQ(picture("page-1").width, 0U);
}

// The paper is 0.32 inches wide and 0.8 long: 96 x 240 pixels at 300 dots an inch, 11811 a metre.
TEST_F(PngJob, APageOfAnotherResolutionSaysItsOwn) {
  JobBuilder job;
  job.jobRecord(1).hostRecord();
  job.pageRecord({.rows = 240, .widthMicrometres = 8128, .heightMicrometres = 20320});
  job.band(Ink::kBlack, kFirst | kLast, jobtest::Rows(240, rowOf(0xFF)));
  EXPECT_EQ(run(job.end()), kSound);
  EXPECT_EQ(picture("page-1").samplesPerMetre, 11811U);
}

TEST_F(PngJob, APictureSaysAtLeastOneSampleAMetre) {
  options_.reduction = 100000;
  EXPECT_EQ(run(twoPages()), kSound);
  EXPECT_EQ(picture("page-1").samplesPerMetre, 1U);
}

}  // namespace
}  // namespace gdi::gdiview
