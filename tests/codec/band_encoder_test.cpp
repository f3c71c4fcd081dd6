// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Records, padding and trailer of whole bands, and what the encoder refuses.

#include <algorithm>
#include <array>

#include <gtest/gtest.h>

#include "codec/pc4sc4.h"
#include "tests/codec/band.h"
#include "tests/codec/random_bands.h"

namespace gdi::codectest {
namespace {

constexpr std::uint16_t kNop = 0x00FE;

Words wordsOf(const std::vector<Words>& rows, bool finalBand = false) {
  return streamWords(compressed(bandOf(rows), finalBand));
}

TEST(BandEncoder, ExampleOnePairLiteral) {
  EXPECT_EQ(wordsOf({{0x00FF, 0x0000}}),
            (Words{0x000F, 0x3F00, 0xFFFF, 0x803F} + repeated(kNop, 12)));
}

TEST(BandEncoder, ExampleBytesAreLowByteFirst) {
  const std::vector<std::uint8_t> bytes = compressed(bandOf({{0x00FF, 0x0000}}));
  ASSERT_EQ(bytes.size(), 32U);
  const std::array<std::uint8_t, 12> start{0x0F, 0x00, 0x00, 0x3F, 0xFF, 0xFF,
                                           0x3F, 0x80, 0xFE, 0x00, 0xFE, 0x00};
  EXPECT_TRUE(std::equal(start.begin(), start.end(), bytes.begin()));
}

TEST(BandEncoder, LiteralDataStandsSwappedOnTheWire) {
  const std::vector<std::uint8_t> bytes = compressed(bandOf({{0x1234, 0}}));
  EXPECT_EQ(bytes.at(8), 0x34);
  EXPECT_EQ(bytes.at(9), 0x12);
}

TEST(BandEncoder, ExampleOneLiteralAndOneCopy) {
  EXPECT_EQ(wordsOf({{0x1234, 0x1234, 0x1234, 0x1234}}),
            (Words{0x000F, 0x3F00, 0xFFFF, 0x0000, 0x1234, 0xC800} + repeated(kNop, 10)));
}

TEST(BandEncoder, ExampleOneDoubleCopy) {
  EXPECT_EQ(
      wordsOf({{0x1234, 0x5678, 0x9ABC, 0x1234, 0x9ABC, 0x0000}}),
      (Words{0x000F, 0x3F00, 0xFFFF, 0x0002, 0x1234, 0x5678, 0x9ABC, 0x4101} + repeated(kNop, 8)));
}

TEST(BandEncoder, ExampleABlackFinalBand) {
  EXPECT_EQ(wordsOf({repeated(0xFFFF, 4), repeated(0xFFFF, 4)}, true),
            (Words{0x0008, 0x3F00, 0xFFFF, 0x8FFF, 0xC800, kNop, kNop, kNop, kNop, 0x0002, kNop,
                   kNop, 0x0002, 0x3F00, 0xFFFF, 0x0000}));
}

TEST(BandEncoder, ExampleTwoRowsOfWhichTheSecondChangesHalf) {
  EXPECT_EQ(wordsOf({repeated(0x1212, 4), {0x1212, 0x1212, 0x3434, 0x3434}}),
            (Words{0x0008, 0x3F00, 0xFFFF, 0x0000, 0x1212, 0xC800, kNop, kNop, kNop, 0x000E, 0x0200,
                   0x3434, 0xC000} +
             repeated(kNop, 11)));
}

TEST(BandEncoder, TheExampleOfTheDocumentationIsTrue) {
  const Words second{0xFFFF, 0xFFFF, 0xFFFF, 0xA55A, 0xFFFF, 0xA55A, 0xA55A, 0x0000};
  EXPECT_EQ(
      compressed(bandOf({{0xFFFF, 0xFFFF, 0xFFFF, 0xA55A, 0x0001, 0, 0, 0}, second, second}), true),
      (std::vector<std::uint8_t>{0x08, 0x00, 0x00, 0x3F, 0xFF, 0xFF, 0xFF, 0x8F, 0x00, 0xC4,
                                 0x01, 0x00, 0x5A, 0xA5, 0x01, 0x00, 0xFE, 0x00, 0x08, 0x00,
                                 0x01, 0xC6, 0x02, 0xC0, 0xFE, 0x00, 0xFE, 0x00, 0xFE, 0x00,
                                 0xFE, 0x00, 0xFE, 0x00, 0xFE, 0x00, 0x01, 0x00, 0xFE, 0x00,
                                 0x02, 0x00, 0x00, 0x3F, 0xFF, 0xFF, 0x00, 0x00}));
}

TEST(BandEncoder, ARowLikeItsReferenceIsOneZeroWord) {
  EXPECT_EQ(
      wordsOf({{0xFF00, 0},
               {0xFF00, 0},
               {0xFF00, 0},
               {0xFF00, 0},
               {0xFF00, 0},
               {0xFF00, 0},
               {0xFF00, 0},
               {0xFF00, 0}}),
      (Words{0x0008, 0x3F00, 0xFFFF, 0x8FC0, kNop, kNop, kNop, kNop, kNop} + repeated(0x0000, 7)));
}

TEST(BandEncoder, ABandOfWhiteRowsStillBeginsWithARecordOfEightCodeWords) {
  EXPECT_EQ(wordsOf(std::vector<Words>(8, repeated(0, 6))),
            (Words{0x0008, 0x3F00, 0xFFFF} + repeated(kNop, 6) + repeated(0x0000, 7)));
}

TEST(BandEncoder, ARecordOfMoreThanEightCodeWordsIsNotPadded) {
  const Words row = distinctWords(6);
  EXPECT_EQ(wordsOf({row, row, row, row, row, row}), (Words{0x0009, 0x3F00, 0xFFFF, 0x0005} + row +
                                                      repeated(0x0000, 4) + Words{0x0001, kNop}));
}

TEST(BandEncoder, FinalPaddingIsCountedInTheLastRecordEvenIfThatWasEmpty) {
  EXPECT_EQ(wordsOf({{0xFF00, 0}, {0xFF00, 0}}),
            (Words{0x0008, 0x3F00, 0xFFFF, 0x8FC0} + repeated(kNop, 5) + Words{0x0006} +
             repeated(kNop, 6)));
}

TEST(BandEncoder, TheTrailerOfAFinalBandEndsOnASixteenByteBoundary) {
  const Words trailer{0x0002, 0x3F00, 0xFFFF, 0x0000};
  for (std::size_t rows = 1; rows < 20; ++rows) {
    const Words words = wordsOf(std::vector<Words>(rows, repeated(0x5555, 4)), true);
    ASSERT_EQ(words.size() % 8, 0U) << rows;
    EXPECT_TRUE(std::equal(trailer.rbegin(), trailer.rend(), words.rbegin())) << rows;
  }
}

TEST(BandEncoder, EveryLengthIsAMultipleOfSixteenBytes) {
  for (std::uint32_t rowBytes = 4; rowBytes < 80; rowBytes += 4) {
    const Band band = worstBand(rowBytes, 3);
    EXPECT_EQ(compressed(band, false).size() % 16, 0U) << rowBytes;
    EXPECT_EQ(compressed(band, true).size() % 16, 0U) << rowBytes;
  }
}

TEST(BandEncoder, NothingCarriesOverFromOneBandToTheNext) {
  const Band band = worstBand(40, 4);
  const std::vector<std::uint8_t> alone = compressed(band);
  compressed(worstBand(400, 7), true);
  EXPECT_EQ(compressed(band), alone);
}

// A call with one 4-byte row and room in plenty, to be spoilt in one place.
struct Call {
  std::array<std::uint8_t, 64> source{0x12, 0x34, 0x56, 0x78};
  std::array<std::uint8_t, 256> destination{};
  std::array<std::uint8_t, 64> seed{};
  std::uint32_t byteCount = 4;
  std::uint32_t rowBytes = 4;
  bool finalBand = false;

  std::uint32_t run() {
    destination.fill(0xEE);
    return qbx_Compress_PC4SC4(source.data(), byteCount, destination.data(), 256, rowBytes,
                               seed.data(), finalBand);
  }
  [[nodiscard]] bool nothingWritten() const {
    return std::all_of(destination.begin(), destination.end(),
                       [](std::uint8_t byte) { return byte == 0xEE; });
  }
};

TEST(BandEncoder, ABandOfNoRowsIsOfLengthZero) {
  Call call;
  call.byteCount = 3;
  EXPECT_EQ(call.run(), 0U);
  EXPECT_TRUE(call.nothingWritten());
}

TEST(BandEncoder, AFinalBandOfNoRowsIsRefused) {
  Call call;
  call.byteCount = 0;
  call.finalBand = true;
  EXPECT_EQ(call.run(), 0xFFFFFFFFU);
  EXPECT_TRUE(call.nothingWritten());
}

TEST(BandEncoder, ARowCountWithItsSixteenthBitSetCountsAsNoRows) {
  Call call;
  call.byteCount = 4 * 32768U;
  EXPECT_EQ(call.run(), 0U);
  call.byteCount = 4 * 65535U;
  EXPECT_EQ(call.run(), 0U);
  call.finalBand = true;
  EXPECT_EQ(call.run(), 0xFFFFFFFFU);
}

TEST(BandEncoder, OfARowCountOnlySixteenBitsAreSeen) {
  Call call;
  const std::uint32_t size = call.run();
  const auto once = call.destination;
  call.byteCount = 4 * 65537U;
  EXPECT_EQ(call.run(), size);
  EXPECT_EQ(call.destination, once);
}

TEST(BandEncoder, RowsOfNoBytesAreRefused) {
  Call call;
  call.rowBytes = 0;
  EXPECT_EQ(call.run(), 0xFFFFFFFFU);
}

TEST(BandEncoder, NullPointersAreRefused) {
  std::array<std::uint8_t, 64> bytes{};
  std::uint8_t* const some = bytes.data();
  EXPECT_EQ(qbx_Compress_PC4SC4(nullptr, 4, some, 64, 4, some, false), 0xFFFFFFFFU);
  EXPECT_EQ(qbx_Compress_PC4SC4(some, 4, nullptr, 64, 4, some, false), 0xFFFFFFFFU);
  EXPECT_EQ(qbx_Compress_PC4SC4(some, 4, some, 64, 4, nullptr, false), 0xFFFFFFFFU);
}

TEST(BandEncoder, TheWidestRowIsCodedAndAWiderOneRefused) {
  const Band widest = worstBand(57344, 1);
  EXPECT_FALSE(compressed(widest).empty());
  EXPECT_TRUE(compressed(worstBand(57345, 1)).empty());
  EXPECT_TRUE(compressed(worstBand(57348, 1)).empty());
}

TEST(BandEncoder, TheSeedIsZeroedUpToTheRoundedRow) {
  Call call;
  call.byteCount = call.rowBytes = 5;
  call.seed.fill(0xAA);
  call.run();
  EXPECT_TRUE(std::all_of(call.seed.begin(), call.seed.begin() + 8,
                          [](std::uint8_t byte) { return byte == 0; }));
  EXPECT_EQ(call.seed[8], 0xAA);
}

TEST(BandEncoder, RowsStandAtARoundedStrideAndTheirFillingIsCodedToo) {
  Call call;
  call.source = {0x11, 0x22, 0x33, 0x44, 0x55, 0, 0, 0x66, 0x11, 0x22, 0x33, 0x44, 0x55, 0, 0, 0};
  call.rowBytes = 5;
  call.byteCount = 10;
  ASSERT_EQ(call.run(), 48U);
  // The second row changes word 3 to zero: a copy of no earlier word, a pair literal.
  EXPECT_EQ(streamWords({call.destination.begin(), call.destination.begin() + 48}),
            (Words{0x0008, 0x3F00, 0xFFFF, 0x0003, 0x1122, 0x3344, 0x5500, 0x0066, kNop} +
             Words{0x000E, 0xB000} + repeated(kNop, 13)));
}

}  // namespace
}  // namespace gdi::codectest
