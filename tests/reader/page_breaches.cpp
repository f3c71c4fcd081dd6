// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/reader/breaches.h"

namespace gdi::reader {

namespace {

using jobtest::Bytes;
using jobtest::JobBuilder;
using jobtest::kFirst;
using jobtest::kLast;
using jobtest::SoundPage;
using Words = std::vector<std::uint16_t>;

// A page of some rows that has one band of these words.
Bytes pageOfWords(std::uint16_t rows, const Words& words) {
  JobBuilder job = headers();
  return job.pageRecord(fieldsOf(rows))
      .band({.flags = kFirst | kLast, .rows = rows}, jobtest::bandOfWords(words))
      .end()
      .bytes();
}

Bytes pageWithSlack() {
  JobBuilder job = headers();
  return job.pageRecord(fieldsOf(2))
      .band(Ink::kBlack, kFirst | kLast, jobtest::solidRows(2, 16, 0x01))
      .end()
      .bytes();
}

Bytes pageOfBand(std::uint32_t flags, bool trailer) {
  JobBuilder job = headers();
  return job.pageRecord(fieldsOf(2))
      .band({.flags = flags, .rows = 2}, jobtest::literalBand(inkedRows(2), trailer))
      .end()
      .bytes();
}

// The trailer in the first of two bands.
Bytes trailerAheadOfTheLastBand() {
  JobBuilder job = headers();
  return job.pageRecord(fieldsOf(512))
      .band({.flags = kFirst, .rows = 256}, jobtest::literalBand(inkedRows(256), true))
      .band(Ink::kBlack, kLast, inkedRows(256))
      .end()
      .bytes();
}

Bytes job(std::initializer_list<SoundPage> pages) {
  JobBuilder builder = headers();
  for (const SoundPage& page : pages) {
    jobtest::addPage(builder, page);
  }
  return builder.end().bytes();
}

Bytes withoutItsLastBand() {
  JobBuilder builder = headers();
  return builder.pageRecord(fieldsOf(300)).band(Ink::kBlack, kFirst, inkedRows(256)).end().bytes();
}

Bytes withoutYellow() {
  Bytes bytes = colorJob().bytes();
  bytes.erase(bytes.begin() + kYellowAt, bytes.begin() + kColorEndAt);
  return bytes;
}

Bytes pageWith(std::size_t field, const Bytes& bytes, bool color = false) {
  return (color ? colorJob() : blackJob()).patch(kPageAt, field, bytes).bytes();
}

Bytes notCompressed(std::uint32_t channels) {
  JobBuilder builder = headers();
  if (channels == 1) {
    return builder.pageRecord(fieldsOf(512))
        .bandRecord({.flags = kFirst, .rows = 256}, 0)
        .band(Ink::kBlack, kLast, inkedRows(256))
        .end()
        .bytes();
  }
  return builder.pageRecord(fieldsOf(2, 4))
      .band(Ink::kBlack, kFirst, inkedRows(2))
      .bandRecord({.flags = kFirst, .rows = 2}, 0)
      .band(Ink::kMagenta, kFirst, inkedRows(2))
      .band(Ink::kYellow, kFirst | kLast, inkedRows(2))
      .end()
      .bytes();
}

Bytes blankFlag(bool blank, std::uint8_t flag) {
  return jobtest::jobOf({.blank = blank}).patch(kBandAt, 30, {flag}).bytes();
}

// 17,000 pixels of 4 bits, of whose 68,096 bits 2,560 are told, on paper of no width.
Bytes wideRows() {
  return jobtest::jobOf({.widthPixels = 17000, .bitsPerPixel = 4})
      .patch(kPageAt, 56, {0, 0, 0, 0})
      .bytes();
}

constexpr const char* kBandName = "page 1, black band 0";
constexpr std::size_t kSecondPageAt = kEndAt;
constexpr std::size_t kThirdPageAt = kSecondPageAt + 64 + 32 + 64;

}  // namespace

Breaches bandDataBreaches() {
  // Row 1 stands behind n, the clear-row command's two words, a literal run's word and 8 of data.
  const std::size_t rowOneAt = kDataAt + 24;
  const Words trailer{0x0002, 0x3F00, 0xFFFF, 0x0000};
  const Words withoutClearRow{11,     0x0005, 0x1234, 0x1234, 0x1234, 0x1234, 0x1234, 0x1234,
                              0x00FE, 0x00FE, 0x00FE, 0x00FE, 0x0002, 0x3F00, 0xFFFF, 0x0000};
  const Words oneCodeWord{8,      0x3F00, 0xFFFF, 0x00FE, 0x00FE, 0x00FE, 0x00FE, 0x00FE,
                          0x00FE, 1,      0x8FFF, 0,      0x0002, 0x3F00, 0xFFFF, 0x0000};
  return {
      {Rule::kBandData, "ACopyFromTheLeftOfTheRow",
       blackJob().patch(kDataAt, 26, {0xFF, 0xC0}).bytes(), rowOneAt, kBandName},
      {Rule::kBandData, "ARecordBeyondTheBand", blackJob().patch(kDataAt, 24, {0x00, 0x10}).bytes(),
       rowOneAt, kBandName},
      {Rule::kBandData, "ABandThatIsTooShort",
       colorJob().patch(kCyanAt + 32, 0, {0xFF, 0xFF}).bytes(), kCyanAt + 32,
       "page 1, cyan band 0"},
      {Rule::kClearRow, "Missing", pageOfWords(1, withoutClearRow), kDataAt, kBandName},
      {Rule::kRecordMinimum, "OneCodeWord", pageOfWords(3, oneCodeWord), kDataAt + 18, kBandName},
      {Rule::kTrailer, "Another", blackJob().patch(kDataAt, 62, {1}).bytes(), kDataAt + 56,
       kBandName},
      {Rule::kTrailer, "Missing", pageOfBand(kFirst | kLast, false), kDataAt + 48, kBandName},
      {Rule::kBandEnd, "TheTrailerInTheFirstOfTwoBands", trailerAheadOfTheLastBand(),
       kDataAt + kFullBandBytes - 8, kBandName},
      {Rule::kBandEnd, "TheTrailerWithoutTheFlag", pageOfBand(kFirst, true), kDataAt + 56,
       kBandName},
      {Rule::kRowSlack, "InAllRows", pageWithSlack(), kDataAt, kBandName},
  };
}

Breaches pageBreaches() {
  const std::string page = "page 1";
  return {
      {Rule::kPageNumber, "TheFirstIsOne", job({{.number = 1}}), kPageAt + 34, page},
      {Rule::kPageNumber, "TwoPagesLeaveOneOut", job({{}, {.number = 2}}), kSecondPageAt + 34,
       "page 2"},
      {Rule::kPageNumber, "TwoPagesAreAlike", job({{}, {}}), kSecondPageAt + 34, "page 2"},
      {Rule::kPageNumber, "AnInkedThirdPageLeavesOneOut", job({{}, {.number = 1}, {.number = 3}}),
       kThirdPageAt + 34, "page 3"},
      {Rule::kPageNumber, "ABlankPageThatIsNotTheLastLeavesOneOut",
       job({{}, {.number = 1}, {.number = 3, .blank = true}, {.number = 4}}), kThirdPageAt + 34,
       "page 3"},
      {Rule::kPageNumber, "ABlankPageLeavesTwoOut",
       job({{}, {.number = 1}, {.number = 4, .blank = true}}), kThirdPageAt + 34, "page 3"},
      {Rule::kBandCount, "OneTooMany", pageWith(54, {0, 2}), kPageAt + 54, page},
      {Rule::kBandCount, "FourTooManyOfAColorPage", pageWith(54, {0, 5}, true), kPageAt + 54, page},
      {Rule::kBandCount, "TwoHundredFiftySixTooMany", pageWith(54, {1, 1}), kPageAt + 54, page},
      {Rule::kPageRows, "OneMoreThanTheBandsHave", pageWith(14, {0, 3}), kPageAt + 14, page},
      {Rule::kPageRows, "ManyMoreThanTheBandsHave", pageWith(14, {0x80, 2}), kPageAt + 14, page},
      {Rule::kPageRows, "ManyMoreThanTheBandsOfAColorPageHave", pageWith(14, {0x80, 2}, true),
       kPageAt + 14, page},
      {Rule::kPageRows, "TheLastBandIsMissing", withoutItsLastBand(), kPageAt + 14, page},
      {Rule::kPageRows, "YellowIsMissing", withoutYellow(), kPageAt + 14, page},
      {Rule::kPageRows, "AllBandsAreMissing", headers().pageRecord(fieldsOf(2)).end().bytes(),
       kPageAt + 14, page},
      {Rule::kPageEnd, "NeitherFlagNorTrailer", pageOfBand(kFirst, false), kPageAt, page},
  };
}

Breaches remarks() {
  const std::string page = "page 1";
  return {
      {Rule::kNoPages, "BehindTheHeaders", headers().end().bytes(), kPageAt, "end-of-job mark"},
      {Rule::kNoPages, "BehindAPrologue", JobBuilder().text("wake up").end().bytes(), 7,
       "end-of-job mark"},
      {Rule::kNotCompressed, "OnABlackPage", notCompressed(1), kBandAt, kBandName},
      {Rule::kNotCompressed, "OnAColorPage", notCompressed(4), kCyanAt, "page 1, cyan band 0"},
      // The first of six NOPs behind row 1 stands behind 22 words.
      {Rule::kCodecHabit, "ANopWithOtherBits", blackJob().patch(kDataAt, 45, {0x01}).bytes(),
       kDataAt + 44, kBandName},
      {Rule::kWideRows, "OnPaperOfNoWidth", wideRows(), kPageAt + 12, page},
      {Rule::kStepsLeftOut, "OfAPageOf257Rows", jobtest::jobOf({.rows = 257, .steps = 1}).bytes(),
       kPageAt, page},
      {Rule::kStepsLeftOut, "OfAColorPageOf3329Rows",
       jobtest::jobOf({.rows = 3329, .color = true, .steps = 13}).bytes(), kPageAt, page},
      {Rule::kStepsLeftOut, "OfAPageOf65537Rows",
       jobtest::jobOf({.rows = 65537, .steps = 256}).bytes(), kPageAt, page},
      {Rule::kBlankContent, "AFlaggedPageHasInk", blankFlag(false, 1), kPageAt, page},
      {Rule::kBlankContent, "APageWithoutInkIsNotFlagged", blankFlag(true, 0), kPageAt, page},
      {Rule::kPaperSize, "TenPixelsTooLong", pageWith(60, {0, 0, 0x02, 0x00}), kPageAt + 56, page},
      {Rule::kPaperSize, "AnotherWidth", pageWith(56, {0, 1, 0, 0}), kPageAt + 56, page},
  };
}

}  // namespace gdi::reader
