// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/jobs/read_job.h"
#include "tests/jobs/sound_page.h"

namespace gdi::reader {
namespace {

using jobtest::JobBuilder;
using jobtest::ReadJob;
using jobtest::readJob;
using jobtest::SoundPage;

JobBuilder jobOfPages(const std::vector<SoundPage>& pages) {
  JobBuilder job;
  job.jobRecord(1).hostRecord();
  for (const SoundPage& page : pages) {
    jobtest::addPage(job, page);
  }
  return job.end();
}

// Reads a job of one page of which nothing must be said.
void expectSound(const SoundPage& page) {
  const ReadJob read = readJob(jobtest::jobOf(page));
  EXPECT_EQ(read.told(), "") << page.rows << " rows";
  ASSERT_EQ(read.pages.size(), 1U);
  EXPECT_EQ(read.pages[0].rows(), page.rows);
  EXPECT_EQ(read.pages[0].isColor(), page.color);
  EXPECT_EQ(read.pages[0].bitsPerPixel, page.bitsPerPixel);
  EXPECT_EQ(read.pages[0].widthPixels(), page.widthPixels);
  EXPECT_EQ(read.pages[0].flaggedBlank, page.blank);
  EXPECT_EQ(read.pages[0].inked, !page.blank);
  EXPECT_EQ(read.totals.violations, 0U);
  EXPECT_EQ(read.totals.remarks, 0U);
}

TEST(SoundJob, AMonoOrColourPageOfEveryDepthHasNoFinding) {
  for (const unsigned bits : {1U, 2U, 4U}) {
    for (const bool color : {false, true}) {
      expectSound({.bitsPerPixel = bits, .color = color});
      expectSound({.rows = 300, .widthPixels = 1000, .bitsPerPixel = bits, .color = color});
    }
  }
}

TEST(SoundJob, EveryPlaneHasTheRowsThatWereSent) {
  const SoundPage page{.rows = 300, .color = true, .ink = 0x5A};
  const ReadJob read = readJob(jobtest::jobOf(page));
  ASSERT_EQ(read.pages.size(), 1U);
  // 96 pixels of ink are 12 bytes, and 32 bits of padding follow.
  jobtest::Bytes expected;
  for (int row = 0; row < 300; ++row) {
    expected.insert(expected.end(), 12, 0x5A);
    expected.insert(expected.end(), 4, 0x00);
  }
  for (const Ink ink : kInks) {
    EXPECT_EQ(jobtest::rowsOf(read.pages[0].plane(ink)), expected) << nameOf(ink);
  }
}

TEST(SoundJob, ABlankPageWithItsFlagHasNoFinding) {
  for (const bool color : {false, true}) {
    expectSound({.color = color, .blank = true});
    expectSound({.rows = 600, .color = color, .blank = true});
  }
}

TEST(SoundJob, AFillerPageAtTheEndMayLeaveANumberOut) {
  const ReadJob three = readJob(jobOfPages({{}, {.number = 1}, {.number = 3, .blank = true}}));
  EXPECT_EQ(three.told(), "");
  EXPECT_EQ(three.pages.size(), 3U);
  const ReadJob five = readJob(
      jobOfPages({{}, {.number = 1}, {.number = 2}, {.number = 3}, {.number = 5, .blank = true}}));
  EXPECT_EQ(five.told(), "");
  EXPECT_EQ(five.pages.size(), 5U);
}

// Its last band, which would have said that it is blank, is not sent.
TEST(SoundJob, AFillerPageOf257RowsMayHaveTheInkOfItsScreen) {
  const ReadJob read = readJob(jobOfPages({{.rows = 257, .steps = 1},
                                           {.rows = 257, .number = 1, .steps = 1},
                                           {.rows = 257, .number = 3, .steps = 1}}));
  EXPECT_EQ(read.rules(), "steps-left-out steps-left-out steps-left-out") << read.told();
}

TEST(SoundJob, AFillerPageMayAlsoCountOn) {
  EXPECT_EQ(readJob(jobOfPages({{}, {.number = 1}, {.number = 2, .blank = true}})).told(), "");
}

TEST(SoundJob, PagesOfOneRowAndAroundABandsHeightHaveNoFinding) {
  for (const std::uint32_t rows : {1U, 2U, 255U, 256U, 258U, 511U, 512U, 768U, 767U}) {
    expectSound({.rows = rows});
    expectSound({.rows = rows, .color = true});
  }
}

TEST(SoundJob, APageOf257RowsWithAllItsBandsHasNoFinding) {
  expectSound({.rows = 257});
  expectSound({.rows = 257, .color = true});
}

TEST(SoundJob, APageOf257RowsThatEndsAfterItsFirstStepIsARemark) {
  for (const bool color : {false, true}) {
    const ReadJob read = readJob(jobtest::jobOf({.rows = 257, .color = color, .steps = 1}));
    EXPECT_EQ(read.rules(), "steps-left-out") << read.told();
    EXPECT_EQ(read.totals.violations, 0U);
    EXPECT_EQ(read.totals.remarks, 1U);
    ASSERT_EQ(read.pages.size(), 1U);
    EXPECT_EQ(read.pages[0].rows(), 256U);
  }
}

TEST(SoundJob, APageOf65537RowsWithAllItsBandsHasNoFinding) {
  expectSound({.rows = 65537});
}

TEST(SoundJob, APageOfMoreThan65536RowsHasNoFinding) {
  expectSound({.rows = 65536});
  expectSound({.rows = 65536 + 300});
}

TEST(SoundJob, AColourPageInWhichAllPlanesAreSentInOneStepHasNoFinding) {
  // 20 bands: yellow's first one is sent in step 18, with the last but one of black.
  expectSound({.rows = 20 * 256, .color = true});
  expectSound({.rows = 19 * 256 + 255, .color = true});
}

TEST(SoundJob, AJobWithoutPagesIsARemark) {
  for (const char* prologue : {"", "@a prologue\n"}) {
    JobBuilder endAlone;
    EXPECT_EQ(readJob(endAlone.text(prologue).end()).rules(), "no-pages");
    JobBuilder withHeaders;
    const ReadJob read = readJob(withHeaders.text(prologue).jobRecord(1).hostRecord().end());
    EXPECT_EQ(read.rules(), "no-pages");
    EXPECT_EQ(read.totals.violations, 0U);
    EXPECT_TRUE(read.pages.empty());
    EXPECT_TRUE(read.foundRecord);
    EXPECT_EQ(read.prologueBytes, std::string(prologue).size());
  }
}

TEST(SoundJob, PagesOfDifferentSizesAndPlanesMayFollowEachOther) {
  const ReadJob read = readJob(jobOfPages({{.rows = 300, .color = true},
                                           {.rows = 1, .widthPixels = 4000, .number = 1},
                                           {.rows = 513, .color = true, .number = 2, .blank = true},
                                           {.rows = 7, .widthPixels = 8, .number = 3}}));
  EXPECT_EQ(read.told(), "");
  ASSERT_EQ(read.pages.size(), 4U);
  EXPECT_TRUE(read.pages[0].isColor());
  EXPECT_FALSE(read.pages[1].isColor());
  EXPECT_EQ(read.pages[1].widthPixels(), 4000U);
  EXPECT_EQ(read.pages[2].rows(), 513U);
  EXPECT_TRUE(read.pages[2].flaggedBlank);
  EXPECT_EQ(read.pages[3].widthPixels(), 8U);
}

TEST(SoundJob, NamesMayFillTheir64Bytes) {
  JobBuilder job;
  job.jobRecord(1, std::string(64, 'j'));
  job.hostRecord(std::string(64, 'h'), std::string(64, 'u'));
  const ReadJob read = readJob(jobtest::addPage(job, {}).end());
  EXPECT_EQ(read.told(), "");
  EXPECT_EQ(parseJobRecord(read.totals.job).name, std::string(64, 'j'));
  EXPECT_EQ(parseHostRecord(read.totals.host).hostName, std::string(64, 'h'));
  EXPECT_EQ(parseHostRecord(read.totals.host).userName, std::string(64, 'u'));
}

TEST(SoundJob, NamesMayBeEmpty) {
  JobBuilder job;
  job.jobRecord(1, "").hostRecord("", "");
  EXPECT_EQ(readJob(jobtest::addPage(job, {}).end()).told(), "");
}

}  // namespace
}  // namespace gdi::reader
