// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Streams with more than one fault, of which none may hide another, and with faults from which much
// follows, which is not told.

#include <string>

#include <gtest/gtest.h>

#include "tests/jobs/read_job.h"
#include "tests/reader/breaches.h"

namespace gdi::reader {
namespace {

using jobtest::Bytes;
using jobtest::JobBuilder;
using jobtest::kFirst;
using jobtest::kLast;
using jobtest::ReadJob;
using jobtest::readJob;

// A black page of so many bands of 256 rows.
JobBuilder blackPageOf(std::uint32_t bands) {
  return jobtest::jobOf({.rows = bands * 256});
}

// The same without one of its bands.
JobBuilder withoutBand(std::uint32_t bands, std::size_t index) {
  JobBuilder job = blackPageOf(bands);
  const std::size_t begin = kBandAt + index * (32 + kFullBandBytes);
  const auto at = job.bytes().begin() + static_cast<std::ptrdiff_t>(begin);
  job.bytes().erase(at, at + 32 + kFullBandBytes);
  return job;
}

JobBuilder threePages() {
  JobBuilder job = headers();
  for (std::uint16_t number = 0; number < 3; ++number) {
    jobtest::addPage(job, {.number = number});
  }
  return job.end();
}
constexpr std::size_t kSecondPageAt = kEndAt;

TEST(ManyFaults, AStrangeNumberOfPlanesDoesNotHideTheBandCount) {
  const ReadJob read = readJob(blackJob().patch(kPageAt, 32, {5}).patch(kPageAt, 54, {0, 99}));
  EXPECT_EQ(read.rules(), "channels band-count") << read.told();
}

TEST(ManyFaults, AStrangeNumberOfPlanesDoesNotHideThatBlackIsShort) {
  JobBuilder job = headers();
  job.pageRecord(fieldsOf(512)).band(Ink::kBlack, kFirst | kLast, inkedRows(256));
  const ReadJob read = readJob(job.end().patch(kPageAt, 32, {2}));
  EXPECT_EQ(read.rules(), "channels page-rows") << read.told();
}

TEST(ManyFaults, AnotherRowWidthDoesNotHideDamagedData) {
  JobBuilder job = blackPageOf(2).patch(kSecondBandAt, 24, {1, 0});
  // The second row's number of code words.
  job.patch(kSecondBandAt + 32, 24, {0xFF, 0xFF});
  const ReadJob read = readJob(job);
  EXPECT_EQ(read.rules(), "band-row-bits band-data") << read.told();
}

TEST(ManyFaults, AnIllegalRowWidthDoesNotHideAMissingTrailer) {
  JobBuilder job = headers();
  job.pageRecord(fieldsOf(2))
      .band({.flags = kFirst | kLast, .rows = 2}, jobtest::literalBand(inkedRows(2), false))
      .end();
  EXPECT_EQ(readJob(job.patch(kPageAt, 13, {129})).rules(), "page-row-bits trailer");
}

TEST(ManyFaults, AForeignBandStandsForOneMissingBandAndNoMore) {
  for (const std::uint16_t rows : std::initializer_list<std::uint16_t>{512, 768}) {
    JobBuilder job = headers();
    job.pageRecord(fieldsOf(rows))
        .band(Ink::kBlack, kFirst, inkedRows(256))
        .band(Ink::kCyan, kLast, inkedRows(256))
        .end();
    EXPECT_EQ(readJob(job).rules(), rows == 512 ? "band-plane" : "band-plane page-rows");
  }
}

TEST(ManyFaults, ABandOfNoRowsDoesNotHideAMissingBand) {
  const ReadJob read = readJob(withoutBand(3, 1).patch(kBandAt, 26, {0, 0}));
  EXPECT_EQ(read.rules(), "band-rows page-rows") << read.told();
}

TEST(ManyFaults, AGapHidesAsManyMissingBandsAsMayBeInIt) {
  for (const std::size_t bytes : std::initializer_list<std::size_t>{4, 47, 49}) {
    JobBuilder job = withoutBand(3, 1);
    const auto at = job.bytes().begin() + static_cast<std::ptrdiff_t>(kSecondBandAt);
    job.bytes().insert(at, bytes, std::uint8_t{'x'});
    const ReadJob read = readJob(job);
    EXPECT_EQ(read.rules(), bytes < 48 ? "tag page-rows" : "tag") << read.told();
  }
}

TEST(ManyFaults, AStreamThatBreaksOffDoesNotHideAnImpossibleBandCount) {
  Bytes bytes = blackJob().patch(kPageAt, 54, {0, 9}).bytes();
  bytes.resize(kBandAt + 10);
  const ReadJob read = readJob(bytes);
  EXPECT_EQ(read.rules(), "band-count truncated") << read.told();
  EXPECT_EQ(read.findings.at(0).offset, kPageAt + 54);
}

TEST(ManyFaults, ADamagedTagOfAPageCostsThatPageOnly) {
  const ReadJob read = readJob(threePages().patch(kSecondPageAt, 3, {'Q'}));
  EXPECT_EQ(read.rules(), "tag") << read.told();
  ASSERT_EQ(read.pages.size(), 2U);
  EXPECT_EQ(read.pages[0].bandCount, 1U);
  EXPECT_EQ(read.pages[1].record.number, 2U);
}

TEST(ManyFaults, AMissingPageRecordIsToldOnce) {
  JobBuilder job = threePages();
  const auto page = job.bytes().begin() + static_cast<std::ptrdiff_t>(kSecondPageAt);
  job.bytes().erase(page, page + 64);
  const ReadJob read = readJob(job);
  ASSERT_EQ(read.rules(), "record-order") << read.told();
  EXPECT_EQ(read.findings[0].offset, kSecondPageAt);
  EXPECT_EQ(read.findings[0].text,
            "a band record (GDIB) follows a page's last band: no page record (GDIP)");
  EXPECT_EQ(read.pages.size(), 2U);
}

TEST(ManyFaults, ALastFlagThatIsTooEarlyDoesNotHideThatTheRightOneIsMissing) {
  JobBuilder job = headers();
  job.pageRecord(fieldsOf(512))
      .band(Ink::kBlack, kFirst | kLast, inkedRows(256))
      .band(Ink::kBlack, 0, inkedRows(256))
      .end();
  const ReadJob read = readJob(job);
  EXPECT_EQ(read.rules(), "last-flag page-end") << read.told();
  EXPECT_EQ(read.findings.at(0).offset, kBandAt + 4);
}

TEST(ManyFaults, AMissingBandDoesNotMakeTheLastFlagTooEarly) {
  EXPECT_EQ(readJob(withoutBand(3, 1)).rules(), "page-rows");
}

TEST(ManyFaults, AMissingBandDoesNotHideAMissingTrailer) {
  JobBuilder job = headers();
  job.pageRecord(fieldsOf(512))
      .band({.flags = kFirst | kLast, .rows = 256}, jobtest::literalBand(inkedRows(256), false))
      .end();
  EXPECT_EQ(readJob(job).rules(), "trailer page-rows");
}

TEST(ManyFaults, SomeBandsOfAnotherRowWidthAreToldOneByOne) {
  JobBuilder job = blackPageOf(4);
  for (const std::size_t band : std::initializer_list<std::size_t>{0, 1, 3}) {
    job.patch(kBandAt + band * (32 + kFullBandBytes), 24, {1, 0});
  }
  const ReadJob read = readJob(job);
  EXPECT_EQ(read.rules(), "band-row-bits band-row-bits band-row-bits") << read.told();
}

TEST(ManyFaults, ForeignBandsThatMakeNoColorPageAreToldOneByOne) {
  JobBuilder job = headers();
  job.pageRecord(fieldsOf(2))
      .band(Ink::kCyan, kFirst, inkedRows(2))
      .band(Ink::kMagenta, kFirst, inkedRows(2))
      .band(Ink::kBlack, kFirst | kLast, inkedRows(2))
      .end();
  EXPECT_EQ(readJob(job).rules(), "band-plane band-plane");
}

// A colour page whose planes have so many bands of 256 rows.
JobBuilder colorPageOf(std::uint32_t bands) {
  return jobtest::jobOf({.rows = bands * 256, .color = true});
}

TEST(ManyFaults, AColorPageThatSaysItIsBlackIsToldOnceHoweverItEnds) {
  const JobBuilder color = colorPageOf(4).patch(kPageAt, 32, {1});
  EXPECT_EQ(readJob(color).rules(), "band-plane");
  Bytes cut = color.bytes();
  cut.resize(cut.size() - 1000);
  const ReadJob read = readJob(cut);
  EXPECT_EQ(read.rules(), "band-plane truncated") << read.told();
  EXPECT_EQ(read.findings[0].text, "the page is of black alone and has 11 bands of other planes");
  const ReadJob early = readJob(
      jobtest::jobOf({.rows = 12 * 256 + 1, .color = true, .steps = 12}).patch(kPageAt, 32, {1}));
  EXPECT_EQ(early.rules(), "band-plane") << early.told();
}

TEST(ManyFaults, ABlackPageThatSaysItHasFourPlanesIsToldOnce) {
  const ReadJob read = readJob(blackPageOf(8).patch(kPageAt, 32, {4}));
  ASSERT_EQ(read.rules(), "band-plane") << read.told();
  EXPECT_EQ(read.findings[0].offset, kPageAt + 32);
  EXPECT_EQ(read.findings[0].text, "the page is of four planes and has bands of black alone");
}

TEST(ManyFaults, BandsInOrderForOtherRowsThanToldAreNotOutOfOrder) {
  // 10 bands a plane, and 256 bands more or 3 less.
  const ReadJob more = readJob(colorPageOf(10).patch(kPageAt, 54, {1, 11}));
  EXPECT_EQ(more.rules(), "band-count") << more.told();
  const ReadJob less =
      readJob(colorPageOf(10).patch(kPageAt, 14, {7, 0}).patch(kPageAt, 54, {0, 8}));
  EXPECT_EQ(less.rules(), "page-rows") << less.told();
}

TEST(ManyFaults, BandsOfPlanesThatAreUnknownAreShown) {
  for (const std::uint8_t planes : std::initializer_list<std::uint8_t>{0, 2, 5}) {
    const ReadJob read = readJob(colorJob().patch(kPageAt, 32, {planes}));
    EXPECT_EQ(read.rules(), "channels") << read.told();
    EXPECT_EQ(read.pages.at(0).inks().size(), 4U) << int{planes};
    EXPECT_EQ(readJob(blackJob().patch(kPageAt, 32, {planes})).pages.at(0).inks().size(), 1U);
  }
}

TEST(ManyFaults, AWrongPageNumberDoesNotMakeTheNextOneWrong) {
  for (const std::uint16_t wrong : std::initializer_list<std::uint16_t>{0, 3, 7, 0xFFFF}) {
    JobBuilder job = headers();
    for (const std::uint16_t number : std::initializer_list<std::uint16_t>{0, 1, wrong, 3, 4}) {
      jobtest::addPage(job, {.number = number});
    }
    const ReadJob read = readJob(job.end());
    ASSERT_EQ(read.rules(), "page-number") << read.told();
    EXPECT_EQ(read.findings[0].record, "page 3");
  }
}

TEST(ManyFaults, TheFirstPagesDamagedTagIsToldOnce) {
  EXPECT_EQ(readJob(threePages().patch(kPageAt, 0, {'g'})).rules(), "tag");
  JobBuilder missing = threePages();
  const auto page = missing.bytes().begin() + static_cast<std::ptrdiff_t>(kPageAt);
  missing.bytes().erase(page, page + 64);
  EXPECT_EQ(readJob(missing).rules(), "record-order");
}

TEST(ManyFaults, ADamagedTagOfABandIsToldOnce) {
  EXPECT_EQ(readJob(blackPageOf(2).patch(kBandAt, 0, {'g'})).rules(), "tag");
  const std::size_t black = 32 + kFullBandBytes;
  for (std::size_t band = 0; band < 10; ++band) {  // 10 of black, cyan's first being the seventh
    const ReadJob read = readJob(colorPageOf(10).patch(kBandAt + band * black, 0, {'g'}));
    EXPECT_EQ(read.rules(), "tag") << band << ": " << read.told();
  }
}

TEST(ManyFaults, ADamagedEndMarkIsToldOnce) {
  EXPECT_EQ(readJob(blackJob().patch(kEndAt, 3, {'X'})).rules(), "tag");
  EXPECT_EQ(readJob(blackJob().patch(kEndAt, 0, {0, 0, 0, 0})).rules(), "tag");
}

TEST(ManyFaults, ATrailerThatIsReadAsRowsIsToldAsTrailer) {
  for (const std::uint8_t rows : std::initializer_list<std::uint8_t>{3, 4}) {
    const ReadJob read = readJob(blackJob().patch(kBandAt, 27, {rows}));
    EXPECT_EQ(read.rules(), "trailer page-rows") << read.told();
    EXPECT_EQ(read.findings[0].text, "the trailer stands where row 2 should be");
  }
}

TEST(ManyFaults, GarbageBetweenJobsIsToldOnceAsWhatFollowsTheEnd) {
  JobBuilder job = blackJob();
  job.raw(Bytes(20, 'x')).raw(blackJob().bytes()).raw(Bytes(20, 'x'));
  EXPECT_EQ(readJob(job).rules(), "after-end");
}

TEST(ManyFaults, AFieldThatIsToBeZeroTellsHowManyBytesAreNot) {
  const ReadJob read = readJob(blackJob().patch(kJobAt, 12, {1, 0, 2, 3}).patch(kJobAt, 16, {4}));
  ASSERT_EQ(read.rules(), "zero-field zero-field") << read.told();
  EXPECT_EQ(read.findings[0].text, "byte 12 is 1, not 0, nor 2 more bytes");
  EXPECT_EQ(read.findings[1].text, "byte 16 is 4, not 0");
}

TEST(ManyFaults, AStreamThatEndsInsideAnyTagDoesNotSayWhichRecordItIs) {
  for (const std::size_t bytes : std::initializer_list<std::size_t>{1, 2, 3}) {
    Bytes job = blackPageOf(2).bytes();
    job.resize(kSecondBandAt + bytes);
    const ReadJob read = readJob(job);
    ASSERT_EQ(read.rules(), "truncated") << read.told();
    EXPECT_EQ(read.findings[0].text, "the stream ends after " + std::to_string(bytes) +
                                         (bytes == 1 ? " byte" : " bytes") + " of a record's tag");
  }
}

}  // namespace
}  // namespace gdi::reader
