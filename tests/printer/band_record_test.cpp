// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "printer/band_record.h"

#include <vector>

#include <gtest/gtest.h>

namespace gdi {
namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes record(const BandRecordFields& fields) {
  const auto bytes = bandRecord(fields);
  return {bytes.begin(), bytes.end()};
}

TEST(BandRecord, OfABlackBandHasItsLengthInTheFirstSlot) {
  const Bytes expected{'G',  'D',  'I',  'B',   //  0 tag
                       0,    0,    0,    1,     //  4 flags: first band
                       0x01, 0x02, 0x03, 0x04,  //  8 black
                       0,    0,    0,    0,     // 12 yellow
                       0,    0,    0,    0,     // 16 magenta
                       0,    0,    0,    0,     // 20 cyan
                       0x14, 0x00,              // 24 bits a row
                       0x01, 0x00,              // 26 rows
                       0,    0,                 // 28
                       0,                       // 30 blank
                       0};                      // 31
  EXPECT_EQ(record({.plane = Plane::kBlack,
                    .firstBand = true,
                    .length = 0x01020304,
                    .rowBits = 5120,
                    .rows = 256}),
            expected);
}

TEST(BandRecord, OfTheLastYellowBandOfABlankPageSaysSo) {
  const Bytes expected{'G',  'D',  'I',  'B',   //  0 tag
                       0,    0,    0,    2,     //  4 flags: last band
                       0,    0,    0,    0,     //  8 black
                       0,    0,    0x0A, 0xB0,  // 12 yellow
                       0,    0,    0,    0,     // 16 magenta
                       0,    0,    0,    0,     // 20 cyan
                       0x4E, 0x00,              // 24 bits a row
                       0x00, 0x68,              // 26 rows
                       0,    0,                 // 28
                       1,                       // 30 blank
                       0};                      // 31
  EXPECT_EQ(record({.plane = Plane::kYellow,
                    .lastBand = true,
                    .blankPage = true,
                    .length = 0xAB0,
                    .rowBits = 19968,
                    .rows = 104}),
            expected);
}

TEST(BandRecord, HasTheSlotsOfMagentaAndCyanLast) {
  const Bytes magenta = record({.plane = Plane::kMagenta, .length = 0x10});
  EXPECT_EQ(Bytes(magenta.begin() + 4, magenta.begin() + 24),
            (Bytes{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0x10, 0, 0, 0, 0}));
  const Bytes cyan = record({.plane = Plane::kCyan, .length = 0x10});
  EXPECT_EQ(Bytes(cyan.begin() + 4, cyan.begin() + 24),
            (Bytes{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0x10}));
}

TEST(BandRecord, OfAPlanesOnlyBandHasBothFlags) {
  EXPECT_EQ(record({.firstBand = true, .lastBand = true})[7], 3);
}

TEST(BandRecord, SaysThatThePageIsBlankOnlyInTheLastBand) {
  EXPECT_EQ(record({.lastBand = false, .blankPage = true})[30], 0);
  EXPECT_EQ(record({.lastBand = true, .blankPage = false})[30], 0);
  EXPECT_EQ(record({.lastBand = true, .blankPage = true})[30], 1);
}

TEST(BandRecord, OfABandThatFailedToCompressHasNoLength) {
  const Bytes failed = record({.plane = Plane::kYellow, .length = 0, .rows = 256});
  EXPECT_EQ(Bytes(failed.begin() + 8, failed.begin() + 24), Bytes(16));
}

TEST(PlaneLetter, IsThatOfTheLog) {
  EXPECT_EQ(planeLetter(Plane::kBlack), 'K');
  EXPECT_EQ(planeLetter(Plane::kCyan), 'C');
  EXPECT_EQ(planeLetter(Plane::kMagenta), 'M');
  EXPECT_EQ(planeLetter(Plane::kYellow), 'Y');
}

}  // namespace
}  // namespace gdi
