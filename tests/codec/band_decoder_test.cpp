// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What every code does to a row, and every bound that a code can break.

#include <algorithm>
#include <optional>

#include <gtest/gtest.h>

#include "codec/pc4sc4.h"
#include "tests/codec/band.h"
#include "tests/codec/guarded_buffer.h"

namespace gdi::codectest {
namespace {

struct Decoded {
  std::optional<std::size_t> consumed;
  std::vector<Words> rows;  // as they stand in the destination, high half first
};

Words pixelWords(std::span<const std::uint8_t> bytes) {
  Words words;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    words.push_back(static_cast<std::uint16_t>(bytes[i] * 256 + bytes[i + 1]));
  }
  return words;
}

// Decodes `rows` records of `stream` with a reference row of `reference`.
Decoded decode(const Words& stream, const Words& reference, std::int32_t rows = 1) {
  const GuardedBuffer source(streamBytes(stream));
  const GuardedBuffer rowBuffer(bandOf({reference}).bytes);
  const std::size_t rowBytes = 2 * reference.size();
  const GuardedBuffer destination(rowBytes * static_cast<std::size_t>(rows));
  Decoded result;
  result.consumed =
      qbx_DeCompress_PC4SC4(source.bytes(), destination.bytes(),
                            static_cast<std::uint32_t>(rowBytes), rows, rowBuffer.bytes());
  for (std::size_t r = 0; r < static_cast<std::size_t>(rows); ++r) {
    result.rows.push_back(pixelWords(destination.bytes().subspan(r * rowBytes, rowBytes)));
  }
  return result;
}

// One row from one record of `codes`; empty when the decoder refuses.
Words rowFrom(const Words& codes, const Words& reference) {
  const Decoded result = decode(Words{static_cast<std::uint16_t>(codes.size())} + codes, reference);
  if (!result.consumed) {
    return {};
  }
  EXPECT_EQ(*result.consumed, codes.size() + 1);
  return result.rows.front();
}

const Words kReference{0xA0A0, 0xA1A1, 0xA2A2, 0xA3A3, 0xA4A4, 0xA5A5, 0xA6A6, 0xA7A7};
const Words kRefused;

TEST(BandDecoder, AnEmptyRecordReproducesThePreviousRow) {
  const Decoded result = decode({0x0002, 0x0000, 0x1234, 0x0000}, {0x5555, 0x6666}, 2);
  EXPECT_EQ(result.consumed, 4U);
  EXPECT_EQ(result.rows[0], (Words{0x1234, 0x6666}));
  EXPECT_EQ(result.rows[1], result.rows[0]);
}

TEST(BandDecoder, ALiteralRunSkipsAndStoresWithItsHighHalfFirst) {
  EXPECT_EQ(rowFrom({0x0201, 0x1234, 0x5678}, {1, 2, 3, 4, 5, 6}),
            (Words{1, 2, 0x1234, 0x5678, 5, 6}));
}

TEST(BandDecoder, ALiteralRunMayHaveBothExtensionWordsCountFirst) {
  EXPECT_EQ(rowFrom({0x3FFF, 0x0001, 0x0003, 0x1234, 0x5678}, {1, 2, 3, 4, 5, 6}),
            (Words{1, 2, 3, 0x1234, 0x5678, 6}));
}

TEST(BandDecoder, APairLiteralSkipsAndStoresTwoAlphabetBytes) {
  EXPECT_EQ(rowFrom({0xA03F, 0x8FC8}, {1, 2, 3, 4}), (Words{1, 2, 0x00FF, 0xFF10}));
}

TEST(BandDecoder, ADoubleCopyWithSecondDistanceOneRepeatsTheWordItHasJustStored) {
  EXPECT_EQ(rowFrom({0x0001, 0x1111, 0x2222, 0x4080}, {0, 0, 0, 0}),
            (Words{0x1111, 0x2222, 0x1111, 0x1111}));
}

TEST(BandDecoder, ADoubleCopyCountsItsSecondDistanceFromTheSecondWord) {
  EXPECT_EQ(rowFrom({0x0002, 0x1111, 0x2222, 0x3333, 0x4102}, {0, 0, 0, 0, 0, 9}),
            (Words{0x1111, 0x2222, 0x3333, 0x1111, 0x2222, 9}));
}

TEST(BandDecoder, ACopyWithDistanceOneRepeatsThePrecedingWord) {
  EXPECT_EQ(rowFrom({0x0000, 0x1234, 0xD000}, {0, 0, 0, 0, 0, 0, 7, 8}),
            (Words{0x1234, 0x1234, 0x1234, 0x1234, 0x1234, 0x1234, 7, 8}));
}

TEST(BandDecoder, ACopyMayTakeItsSourceFromTheReference) {
  EXPECT_EQ(rowFrom({0xC501}, {1, 2, 3, 4}), (Words{1, 2, 1, 2}));
}

TEST(BandDecoder, ACopyMayHaveBothExtensionWordsCountFirst) {
  EXPECT_EQ(rowFrom({0xFF81, 0x0002, 0x0003}, {1, 2, 3, 4, 5, 6}), (Words{1, 2, 3, 2, 3, 2}));
}

TEST(BandDecoder, ANopIsOneWhateverItsSkipBits) {
  EXPECT_EQ(rowFrom({0x00FE, 0x3FFE, 0x15FE, 0x0000, 0x1234}, {1, 2}), (Words{0x1234, 2}));
}

TEST(BandDecoder, AClearRowCommandInTheMiddleZeroesWhatWasDecodedAndLeavesTheCursor) {
  EXPECT_EQ(rowFrom({0x0001, 0x1111, 0x2222, 0x3F00, 0xFFFF, 0x0000, 0x3333}, {1, 2, 3, 4}),
            (Words{0, 0, 0x3333, 0}));
}

TEST(BandDecoder, AClearRowCommandIgnoresItsCount) {
  EXPECT_EQ(rowFrom({0x3F07, 0xFFFF, 0x0000, 0x1234}, {1, 2}), (Words{0x1234, 0}));
  EXPECT_EQ(rowFrom({0x3FFF, 0x0100, 0xFFFF, 0x0000, 0x1234}, {1, 2}), (Words{0x1234, 0}));
}

TEST(BandDecoder, AClearRowCommandClearsTheFillingOfAnOddRowToo) {
  const GuardedBuffer source(streamBytes({0x0002, 0x3F00, 0xFFFF}));
  const GuardedBuffer rowBuffer(std::vector<std::uint8_t>(8, 0x77));
  const GuardedBuffer destination(8);
  EXPECT_TRUE(qbx_DeCompress_PC4SC4(source.bytes(), destination.bytes(), 5, 1, rowBuffer.bytes()));
  EXPECT_EQ(pixelWords(destination.bytes()), repeated(0, 4));
}

TEST(BandDecoder, WordsBehindTheLastRecordAreNotRead) {
  const Decoded result = decode({0x0002, 0x3F00, 0xFFFF, 0xFFFF, 0x4000}, {1, 2});
  EXPECT_EQ(result.consumed, 3U);
}

TEST(BandDecoder, ABandMayBeDecodedInPieces) {
  const std::vector<std::uint8_t> bytes =
      streamBytes({0x0004, 0x3F00, 0xFFFF, 0x0000, 0x1234, 0x0002, 0x0100, 0x5678});
  std::vector<std::uint8_t> rowBuffer(4, 0x77);
  std::vector<std::uint8_t> row(4);
  const auto first = qbx_DeCompress_PC4SC4(bytes, row, 4, 1, rowBuffer);
  ASSERT_EQ(first, 5U);
  EXPECT_EQ(pixelWords(row), (Words{0x1234, 0}));
  const auto rest = std::span(bytes).subspan(2 * *first);
  EXPECT_EQ(qbx_DeCompress_PC4SC4(rest, row, 4, 1, rowBuffer), 3U);
  EXPECT_EQ(pixelWords(row), (Words{0x1234, 0x5678}));
}

// The words consumed from `records` empty records when asked for `rows` of them.
std::optional<std::size_t> consumedOfEmptyRecords(std::size_t records, std::int32_t rows) {
  const std::vector<std::uint8_t> source(2 * records, 0);
  std::vector<std::uint8_t> destination(4 * records);
  std::vector<std::uint8_t> rowBuffer(4);
  return qbx_DeCompress_PC4SC4(source, destination, 4, rows, rowBuffer);
}

TEST(BandDecoder, ARowCountWhoseLowSixteenBitsAreZeroDecodesNothing) {
  EXPECT_EQ(consumedOfEmptyRecords(3, 0), 0U);
  EXPECT_EQ(consumedOfEmptyRecords(3, 0x10000), 0U);
  EXPECT_EQ(consumedOfEmptyRecords(3, 0x7FFF0000), 0U);
}

TEST(BandDecoder, ANegativeRowCountDecodesNothing) {
  EXPECT_EQ(consumedOfEmptyRecords(3, -1), 0U);
  EXPECT_EQ(consumedOfEmptyRecords(3, INT32_MIN + 1), 0U);
}

TEST(BandDecoder, NoMoreThan32767RowsAreDecoded) {
  EXPECT_EQ(consumedOfEmptyRecords(40000, 32767), 32767U);
  EXPECT_EQ(consumedOfEmptyRecords(40000, 32768), 32767U);
  EXPECT_EQ(consumedOfEmptyRecords(40000, 65537), 32767U);
}

TEST(BandDecoder, RowsOf32768UnitsAndMoreAreDecodedButNotPutOut) {
  constexpr std::uint32_t kRowBytes = 4 * 32768;
  const std::vector<std::uint8_t> source = streamBytes({0x0002, 0x0000, 0x1234});
  std::vector<std::uint8_t> rowBuffer(kRowBytes);
  EXPECT_EQ(qbx_DeCompress_PC4SC4(source, {}, kRowBytes, 1, rowBuffer), 3U);
  EXPECT_EQ(rowBuffer[0], 0x12);
}

TEST(BandDecoder, RefusesAStreamThatEndsBeforeARecord) {
  EXPECT_FALSE(decode({}, {1, 2}).consumed);
  EXPECT_FALSE(decode({0x0000}, {1, 2}, 2).consumed);
}

TEST(BandDecoder, RefusesARecordThatEndsBehindTheStream) {
  EXPECT_FALSE(decode({0x0003, 0x00FE, 0x00FE}, {1, 2}).consumed);
  EXPECT_FALSE(decode({0x0001}, {1, 2}).consumed);
}

TEST(BandDecoder, NeverReadsAnOddLastByte) {
  const std::vector<std::uint8_t> source{0x01, 0x00, 0xFE};
  std::vector<std::uint8_t> row(4);
  std::vector<std::uint8_t> rowBuffer(4);
  EXPECT_FALSE(qbx_DeCompress_PC4SC4(source, row, 4, 1, rowBuffer));
}

TEST(BandDecoder, RefusesAnExtensionWordBehindTheRecordThoughTheStreamGoesOn) {
  EXPECT_FALSE(decode({0x0001, 0x00FF, 0x0000, 0x0000}, kReference).consumed);
  EXPECT_FALSE(decode({0x0001, 0x3F00, 0x0000, 0x0000}, kReference).consumed);
  EXPECT_FALSE(decode({0x0002, 0x3FFF, 0x0000, 0x0000, 0x0000}, kReference).consumed);
  EXPECT_FALSE(decode({0x0003, 0x0000, 0x1234, 0xFC00, 0x0000}, kReference).consumed);
  EXPECT_FALSE(decode({0x0003, 0x0000, 0x1234, 0xC380, 0x0000}, kReference).consumed);
  EXPECT_FALSE(decode({0x0004, 0x0000, 0x1234, 0xFF80, 0x0000, 0x0000}, kReference).consumed);
  EXPECT_TRUE(decode({0x0005, 0x0000, 0x1234, 0xFF80, 0x0000, 0x0000}, kReference).consumed);
}

TEST(BandDecoder, RefusesDataWordsBehindTheRecordThoughTheStreamGoesOn) {
  EXPECT_FALSE(decode({0x0002, 0x0001, 0x1111, 0x2222}, kReference).consumed);
  EXPECT_TRUE(decode({0x0003, 0x0001, 0x1111, 0x2222}, kReference).consumed);
}

TEST(BandDecoder, RefusesACodeThatLeavesTheRow) {
  const Words eight = Words{0x0007} + kReference;  // a literal run that fills the row
  EXPECT_NE(rowFrom(eight, kReference), kRefused);
  EXPECT_EQ(rowFrom(Words{0x0008} + kReference + Words{1}, kReference), kRefused);
  EXPECT_EQ(rowFrom(eight + Words{0x8000}, kReference), kRefused);
  EXPECT_EQ(rowFrom(eight + Words{0xC000}, kReference), kRefused);
  EXPECT_EQ(rowFrom(eight + Words{0x0000, 0x1234}, kReference), kRefused);
}

TEST(BandDecoder, RefusesADoubleCopyOfWhichOneWordIsOutsideTheRow) {
  EXPECT_EQ(rowFrom({0x0006, 1, 2, 3, 4, 5, 6, 7, 0x4000}, kReference), kRefused);
  EXPECT_NE(rowFrom({0x0005, 1, 2, 3, 4, 5, 6, 0x4000}, kReference), kRefused);
}

TEST(BandDecoder, RefusesASkipThatLeavesTheRow) {
  EXPECT_NE(rowFrom({0x0700, 0x1234}, kReference), kRefused);
  EXPECT_EQ(rowFrom({0x0800, 0x1234}, kReference), kRefused);
  EXPECT_EQ(rowFrom({0x3F00, 0xFFFE, 0x1234}, kReference), kRefused);
  EXPECT_NE(rowFrom({0xC380, 0x0007}, kReference), kRefused);
  EXPECT_EQ(rowFrom({0xC380, 0x0008}, kReference), kRefused);
  EXPECT_EQ(rowFrom({0xC380, 0xFFFF}, kReference), kRefused);
  EXPECT_EQ(rowFrom({0x0500, 0x1234, 0xA000}, kReference), kRefused);
}

TEST(BandDecoder, RefusesACountThatLeavesTheRow) {
  EXPECT_NE(rowFrom({0x0000, 0x1234, 0xD800}, kReference), kRefused);
  EXPECT_EQ(rowFrom({0x0000, 0x1234, 0xDC00}, kReference), kRefused);
  EXPECT_EQ(rowFrom({0x0000, 0x1234, 0xFC00, 0xFFFF}, kReference), kRefused);
}

TEST(BandDecoder, RefusesACopyFromBeforeTheRow) {
  EXPECT_EQ(rowFrom({0xC000}, kReference), kRefused);
  EXPECT_EQ(rowFrom({0xC081}, kReference), kRefused);
  EXPECT_EQ(rowFrom({0xC080}, kReference).size(), 8U);
}

TEST(BandDecoder, RefusesADoubleCopyFromBeforeTheRow) {
  EXPECT_EQ(rowFrom({0x0000, 0x1234, 0x4001}, kReference).size(), 8U);
  EXPECT_EQ(rowFrom({0x0000, 0x1234, 0x4080}, kReference), kRefused);
  EXPECT_EQ(rowFrom({0x0000, 0x1234, 0x4002}, kReference), kRefused);
  EXPECT_EQ(rowFrom({0x4000}, kReference), kRefused);
}

TEST(BandDecoder, RefusesBuffersThatAreTooSmall) {
  const std::vector<std::uint8_t> source = streamBytes({0x0000, 0x0000});
  std::vector<std::uint8_t> eight(8);
  std::vector<std::uint8_t> seven(7);
  EXPECT_EQ(qbx_DeCompress_PC4SC4(source, eight, 4, 2, eight), 2U);
  EXPECT_FALSE(qbx_DeCompress_PC4SC4(source, seven, 4, 2, eight));
  EXPECT_FALSE(qbx_DeCompress_PC4SC4(source, eight, 5, 1, seven));
  EXPECT_FALSE(qbx_DeCompress_PC4SC4(source, eight, 0xFFFFFFFF, 1, eight));
}

TEST(BandDecoder, RowsBeforeABrokenOneAreThere) {
  const Decoded result = decode({0x0002, 0x0000, 0x1234, 0x0001, 0xC000}, {1, 2}, 2);
  EXPECT_FALSE(result.consumed);
  EXPECT_EQ(result.rows[0], (Words{0x1234, 2}));
  EXPECT_EQ(result.rows[1], (Words{0, 0}));
}

TEST(BandDecoder, RowsOfNoBytesHaveRecordsButNoWords) {
  const std::vector<std::uint8_t> nop = streamBytes({0x0003, 0x00FE, 0x3F00, 0xFFFF});
  EXPECT_EQ(qbx_DeCompress_PC4SC4(nop, {}, 0, 1, {}), 4U);
  const std::vector<std::uint8_t> pair = streamBytes({0x0001, 0x8000});
  EXPECT_FALSE(qbx_DeCompress_PC4SC4(pair, {}, 0, 1, {}));
}

}  // namespace
}  // namespace gdi::codectest
