// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/reader/breaches.h"

namespace gdi::reader {

namespace {

using jobtest::Bytes;
using jobtest::JobBuilder;
using jobtest::kFirst;
using jobtest::kLast;

constexpr const char* kBandName = "page 1, black band 0";

Bytes jobWith(std::size_t field, const Bytes& bytes) {
  return blackJob().patch(kJobAt, field, bytes).bytes();
}
Bytes hostWith(std::size_t field, const Bytes& bytes) {
  return blackJob().patch(kHostAt, field, bytes).bytes();
}
Bytes pageWith(std::size_t field, const Bytes& bytes) {
  return blackJob().patch(kPageAt, field, bytes).bytes();
}
Bytes bandWith(std::size_t field, const Bytes& bytes) {
  return blackJob().patch(kBandAt, field, bytes).bytes();
}

// Half of the jobs that break it have a page of 4 bits a pixel, for what follows from not knowing.
Bytes jobOf4BitsThatSays(std::uint8_t minus1) {
  return jobtest::jobOf({.rows = 5, .widthPixels = 1000, .bitsPerPixel = 4})
      .patch(kJobAt, 33, {minus1})
      .bytes();
}

Bytes colorPageOf(std::uint8_t channels) {
  return colorJob().patch(kPageAt, 32, {channels}).bytes();
}

// The page record's row bits and its band's.
Bytes rowBits(std::uint8_t low, std::uint8_t lowOfBand) {
  return blackJob().patch(kPageAt, 13, {low}).patch(kBandAt, 25, {lowOfBand}).bytes();
}

JobBuilder pageOf512Rows() {
  return jobtest::jobOf({.rows = 512});
}

JobBuilder bandOf257Rows() {
  return jobtest::jobOf({.rows = 256}).patch(kBandAt, 26, {1, 1});
}

JobBuilder shortBandInTheMiddle() {
  JobBuilder job = headers();
  return job.pageRecord(fieldsOf(456))
      .band(Ink::kBlack, kFirst, inkedRows(200))
      .band(Ink::kBlack, kLast, inkedRows(256))
      .end();
}

JobBuilder twoLastBands() {
  JobBuilder job = headers();
  return job.pageRecord(fieldsOf(512))
      .band(Ink::kBlack, kFirst | kLast, inkedRows(256))
      .band(Ink::kBlack, kLast, inkedRows(256))
      .end();
}

JobBuilder colorPage(std::initializer_list<std::pair<Ink, std::uint32_t>> bands) {
  JobBuilder job = headers();
  job.pageRecord(fieldsOf(2, 4));
  for (const auto& [ink, flags] : bands) {
    job.band(ink, flags, inkedRows(2));
  }
  return job.end();
}

JobBuilder magentaAheadOfCyan() {
  return colorPage({{Ink::kBlack, kFirst},
                    {Ink::kMagenta, kFirst},
                    {Ink::kCyan, kFirst},
                    {Ink::kYellow, kFirst | kLast}});
}

JobBuilder cyanFlaggedLast() {
  return colorPage({{Ink::kBlack, kFirst},
                    {Ink::kCyan, kFirst | kLast},
                    {Ink::kMagenta, kFirst},
                    {Ink::kYellow, kFirst | kLast}});
}

// On a page of black alone.
Bytes cyanBand() {
  return blackJob().patch(kBandAt, 8, {0, 0, 0, 0}).patch(kBandAt, 20, {0, 0, 0, 64}).bytes();
}

Bytes ofTwoPlanes() {
  return colorJob().patch(kMagentaAt, 15, {16}).bytes();
}

// The page record says twice the bits that both its bands have.
Bytes rowBitsOfAllBands() {
  return pageOf512Rows().patch(kPageAt, 12, {1, 0}).bytes();
}

// The last band's length takes in the next page's record and the record of its band.
Bytes lastBandThatSwallowsAPage() {
  JobBuilder job = headers();
  jobtest::addPage(job, {});
  return jobtest::addPage(job, {.number = 1}).end().patch(kBandAt, 11, {64 + 64 + 32 + 64}).bytes();
}

}  // namespace

Breaches jobRecordBreaches() {
  const std::string job = "job record";
  const std::string host = "host record";
  return {
      {Rule::kConstant, "OneHundred", jobWith(8, {0, 101}), 8, job},
      {Rule::kConstant, "TheHostRecordsLength", jobWith(18, {0, 153}), 18, job},
      {Rule::kConstant, "TheJobRecordsOne", jobWith(32, {0}), 32, job},
      {Rule::kConstant, "TheJobRecordsZero", jobWith(34, {1}), 34, job},
      {Rule::kConstant, "TheJobRecordsTwo", jobWith(35, {3}), 35, job},
      {Rule::kZeroField, "BehindTheCopiesAtOnce", jobWith(12, {0, 0, 0, 1}), 15, job},
      {Rule::kZeroField, "AheadOfTheHostRecordsLength", jobWith(17, {1}), 17, job},
      {Rule::kZeroField, "BehindTheColorFlag", jobWith(25, {0x80}), 25, job},
      {Rule::kZeroField, "AheadOfTheJobsName", jobWith(55, {255}), 55, job},
      {Rule::kZeroField, "BehindTheUser", hostWith(136, {1}), kHostAt + 136, host},
      {Rule::kZeroField, "AtTheHostRecordsEnd", hostWith(151, {1}), kHostAt + 151, host},
      {Rule::kTextPadding, "OfTheJob", jobWith(119, {'x'}), 119, job},
      {Rule::kTextPadding, "OfTheHost", hostWith(13, {'x'}), kHostAt + 13, host},
      {Rule::kTextPadding, "OfTheUser", hostWith(135, {'x'}), kHostAt + 135, host},
      {Rule::kBitsPerPixel, "Three", jobWith(33, {2}), 33, job},
      {Rule::kBitsPerPixel, "Five", jobOf4BitsThatSays(4), 33, job},
      {Rule::kBitsPerPixel, "TwoHundredFiftySix", jobOf4BitsThatSays(255), 33, job},
      {Rule::kColorFlag, "One", jobWith(24, {1}), 24, job},
      {Rule::kDate, "The31stOfNovember", jobWith(20, {0xFD}), 20, job},
      {Rule::kDate, "Day0", jobWith(20, {0x05}), 20, job},
      {Rule::kDate, "Month0", jobWith(20, {0x78, 0x2E}), 20, job},
      {Rule::kDate, "BitTwentyTwo", jobWith(21, {0xEE}), 20, job},
      {Rule::kDate, "Second62", jobWith(22, {0xFE}), 20, job},
      {Rule::kDate, "Minute60", jobWith(22, {0x97, 0x95}), 20, job},
      {Rule::kDate, "Hour24", jobWith(23, {0xD8}), 20, job},
  };
}

Breaches pageRecordBreaches() {
  const std::string page = "page 1";
  return {
      {Rule::kConstant, "ThePageRecordsOne", pageWith(33, {0}), kPageAt + 33, page},
      {Rule::kZeroField, "BehindThePaperType", pageWith(11, {1}), kPageAt + 11, page},
      {Rule::kZeroField, "BehindTheRows", pageWith(31, {1}), kPageAt + 31, page},
      {Rule::kZeroField, "BehindThePageNumber", pageWith(36, {1}), kPageAt + 36, page},
      {Rule::kMediaCode, "Zero", pageWith(8, {0}), kPageAt + 8, page},
      {Rule::kMediaCode, "TwoHundredFiftyFour", pageWith(8, {254}), kPageAt + 8, page},
      {Rule::kTrayCode, "Six", pageWith(9, {6}), kPageAt + 9, page},
      {Rule::kPaperCode, "Zero", pageWith(10, {0}), kPageAt + 10, page},
      {Rule::kPaperCode, "Ten", pageWith(10, {10}), kPageAt + 10, page},
      {Rule::kChannels, "NoneOnABlackPage", pageWith(32, {0}), kPageAt + 32, page},
      {Rule::kChannels, "TwoOnABlackPage", pageWith(32, {2}), kPageAt + 32, page},
      {Rule::kChannels, "ThreeOnAColorPage", colorPageOf(3), kPageAt + 32, page},
      {Rule::kChannels, "NoneOnAColorPage", colorPageOf(0), kPageAt + 32, page},
      {Rule::kPageRowBits, "OneTooMany", rowBits(129, 129), kPageAt + 12, page},
      {Rule::kPageRowBits, "OneTooManyInThePageRecordAlone", rowBits(129, 128), kPageAt + 12, page},
  };
}

Breaches bandRecordBreaches() {
  return {
      {Rule::kZeroField, "BehindTheBandsRows", bandWith(29, {1}), kBandAt + 29, kBandName},
      {Rule::kZeroField, "AtTheBandRecordsEnd", bandWith(31, {1}), kBandAt + 31, kBandName},
      {Rule::kBandFlags, "Four", bandWith(7, {7}), kBandAt + 4, kBandName},
      {Rule::kBandFlags, "TheHighestBit", bandWith(4, {0x80}), kBandAt + 4, kBandName},
      {Rule::kBandPlane, "CyanOnABlackPage", cyanBand(), kBandAt + 20, "page 1, band record"},
      {Rule::kBandPlane, "AColorPageSaysThatItIsBlack", colorJob().patch(kPageAt, 32, {1}).bytes(),
       kPageAt + 32, "page 1"},
      {Rule::kBandPlane, "TwoPlanesOfABlackPage", bandWith(15, {16}), kBandAt + 8, kBandName},
      {Rule::kBandPlane, "TwoPlanesOfAColorPage", ofTwoPlanes(), kMagentaAt + 8,
       "page 1, magenta band 0"},
      {Rule::kBandRows, "None", bandWith(27, {0}), kBandAt + 26, kBandName},
      {Rule::kBandRows, "TwoHundredFiftySeven", bandOf257Rows().bytes(), kBandAt + 26, kBandName},
      {Rule::kBandRows, "AllThatTheFieldHolds", bandWith(26, {255, 255}), kBandAt + 26, kBandName},
      {Rule::kBandRows, "NoneInABandThatIsNotTheLast",
       pageOf512Rows().patch(kBandAt, 26, {0}).bytes(), kBandAt + 26, kBandName},
      {Rule::kBandLength, "OneTooMany", bandWith(11, {65}), kBandAt + 8, kBandName},
      {Rule::kBandLength, "OneTooManyAheadOfAnotherBand",
       colorJob().patch(kCyanAt, 23, {49}).bytes(), kCyanAt + 20, "page 1, cyan band 0"},
      {Rule::kBandLength, "SixteenTooMany", bandWith(11, {80}), kBandAt + 8, kBandName},
      {Rule::kBandLength, "FourTooManyUpToTheStreamsEnd", bandWith(11, {68}), kBandAt + 8,
       kBandName},
      {Rule::kBandLength, "OneTooFew", bandWith(11, {63}), kBandAt + 8, kBandName},
      {Rule::kBandLength, "OneTooFewAheadOfAnotherBand",
       colorJob().patch(kCyanAt, 23, {47}).bytes(), kCyanAt + 20, "page 1, cyan band 0"},
      {Rule::kBandLength, "SixteenTooFew", bandWith(11, {48}), kBandAt + 8, kBandName},
      {Rule::kBandLength, "SixteenTooFewAheadOfAnotherBand",
       colorJob().patch(kCyanAt, 23, {32}).bytes(), kCyanAt + 20, "page 1, cyan band 0"},
      {Rule::kBandLength, "TheNextBandsToo", colorJob().patch(kCyanAt, 23, {48 + 32 + 48}).bytes(),
       kCyanAt + 20, "page 1, cyan band 0"},
      {Rule::kBandLength, "OfTheLastBandTheNextPagesToo", lastBandThatSwallowsAPage(), kBandAt + 8,
       kBandName},
      {Rule::kBandLength, "AMegabyteTooMany", bandWith(9, {0x10}), kBandAt + 8, kBandName},
      {Rule::kBandLength, "AllThatTheFieldHolds", bandWith(8, {255, 255, 255, 255}), kBandAt + 8,
       kBandName},
      {Rule::kBandLength, "MoreThanAnyBand", bandWith(8, {0x10, 0, 0, 0}), kBandAt + 8, kBandName},
      {Rule::kBlankFlag, "Two", bandWith(30, {2}), kBandAt + 30, kBandName},
      {Rule::kBlankFlag, "InABandThatIsNotTheLast", pageOf512Rows().patch(kBandAt, 30, {1}).bytes(),
       kBandAt + 30, kBandName},
      {Rule::kBandRowBits, "TwiceAsMany", bandWith(24, {1, 0}), kBandAt + 24, kBandName},
      {Rule::kBandRowBits, "OfAllBandsOtherThanThePages", rowBitsOfAllBands(), kPageAt + 12,
       "page 1"},
      {Rule::kBandRowBits, "OfTheSecondBand",
       pageOf512Rows().patch(kSecondBandAt, 24, {1, 0}).bytes(), kSecondBandAt + 24,
       "page 1, black band 1"},
      {Rule::kBandOrder, "MagentaAheadOfCyan", magentaAheadOfCyan().bytes(), kCyanAt,
       "page 1, magenta band 0"},
      {Rule::kFirstFlag, "Missing", bandWith(7, {2}), kBandAt + 4, kBandName},
      {Rule::kFirstFlag, "OfTheSecondBand", pageOf512Rows().patch(kSecondBandAt, 7, {3}).bytes(),
       kSecondBandAt + 4, "page 1, black band 1"},
      {Rule::kLastFlag, "OfCyan", cyanFlaggedLast().bytes(), kCyanAt + 4, "page 1, cyan band 0"},
      {Rule::kLastFlag, "OfCyanWithoutTrailer", colorJob().patch(kCyanAt, 7, {3}).bytes(),
       kCyanAt + 4, "page 1, cyan band 0"},
      {Rule::kLastFlag, "OfABandAheadOfTheLast", twoLastBands().bytes(), kBandAt + 4, kBandName},
      {Rule::kLastFlag, "OfABandAheadOfTheLastWithoutTrailer",
       pageOf512Rows().patch(kBandAt, 7, {3}).bytes(), kBandAt + 4, kBandName},
      {Rule::kBandHeight, "TwoHundredRowsInTheMiddle", shortBandInTheMiddle().bytes(), kBandAt + 26,
       kBandName},
  };
}

}  // namespace gdi::reader
