// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Codes that decode and that this project's writer never writes.

#include <gtest/gtest.h>

#include "tests/reader/band_words.h"

namespace gdi::reader {
namespace {

// A blank first row, a row with these codes, and an unchanged one.
Lines saidOfSecondRow(const Words& codes, std::size_t rowBytes = kRowBytes) {
  const BandDataReport report = examine(recordsOf({blankFirst(), codes, {}}), 3, false, rowBytes);
  EXPECT_TRUE(report.complete);
  return said(report);
}

TEST(CodecHabits, ANopHasOtherBits) {
  EXPECT_EQ(saidOfSecondRow(Words{0x8FFF, 0x01FE} + nops(6)),
            Lines{"22 codec-habit: 1 NOP has other bits than 00FE"});
  EXPECT_EQ(saidOfSecondRow(Words{0x8FFF} + nops(5) + Words{0x3FFE, 0x20FE}),
            Lines{"32 codec-habit: 2 NOPs have other bits than 00FE"});
}

TEST(CodecHabits, AClearRowCommandStandsElsewhere) {
  EXPECT_EQ(saidOfSecondRow(Words{0x3F00, 0xFFFF} + nops(6)),
            Lines{"20 codec-habit: 1 clear-row command stands elsewhere than at the band's start"});
  EXPECT_EQ(saidOfSecondRow(Words{0x8FFF, 0x3F00, 0xFFFF, 0x3F00, 0xFFFF} + nops(3)),
            Lines{"22 codec-habit: 2 clear-row commands stand elsewhere than at the band's start"});
  EXPECT_EQ(said(examine(recordsOf({Words{0x3F00, 0xFFFF, 0x3F00, 0xFFFF} + nops(11)}), 1)),
            Lines{"6 codec-habit: 1 clear-row command stands elsewhere than at the band's start"});
}

TEST(CodecHabits, AClearRowCommandHasAnotherCount) {
  const Lines lines{"2 codec-habit: 1 clear-row command has another code word than 3F00"};
  EXPECT_EQ(said(examine(recordsOf({Words{0x3F05, 0xFFFF} + nops(13)}), 1)), lines);
  EXPECT_EQ(said(examine(recordsOf({Words{0x3FFF, 0x0007, 0xFFFF} + nops(12)}), 1)), lines);
}

TEST(CodecHabits, ALiteralRunHasBothExtensionWords) {
  const Words run = Words{0x3FFF, 0x00FE, 0x003F} + Words(255, 0x1234);
  EXPECT_EQ(saidOfSecondRow(run, 640), Lines{"20 codec-habit: 1 code has both extension words"});
}

TEST(CodecHabits, ACopyHasBothExtensionWords) {
  const Words copy = Words{0x0000, 0x1234, 0xFF80, 0x000F, 0x0007} + nops(3);
  EXPECT_EQ(saidOfSecondRow(copy, 64), Lines{"24 codec-habit: 1 code has both extension words"});
}

TEST(CodecHabits, BothKindsOfCodesWithBothExtensionWordsAreCountedTogether) {
  const Words run = Words{0x3FFF, 0x00FE, 0x003F} + Words(255, 0x1234);
  EXPECT_EQ(saidOfSecondRow(run + Words{0xFF80, 0x000F, 0x0007}, 1024),
            Lines{"20 codec-habit: 2 codes have both extension words"});
}

TEST(CodecHabits, AnExtensionWordHoldsAValueThatFits) {
  const Lines one{"20 codec-habit: 1 extension word holds a value that fits the code's field"};
  EXPECT_EQ(saidOfSecondRow(Words{0x00FF, 0x0001, 0x1234, 0x5678} + nops(4)), one);
  EXPECT_EQ(saidOfSecondRow(Words{0x00FF, 0x00FD} + Words(254, 0x1234), 640), one);
  EXPECT_EQ(saidOfSecondRow(Words{0x3F00, 0x003E, 0x1234} + nops(5), 256), one);
  EXPECT_EQ(saidOfSecondRow(Words{0xC380, 0x0006} + nops(6), 64), one);
  EXPECT_EQ(saidOfSecondRow(Words{0xFC80, 0x000E} + nops(6), 64), one);
}

TEST(CodecHabits, AnExtensionWordHoldsAValueThatDoesNotFit) {
  EXPECT_EQ(saidOfSecondRow(Words{0x00FF, 0x00FE} + Words(255, 0x1234), 640), Lines());
  EXPECT_EQ(saidOfSecondRow(Words{0x3F00, 0x003F, 0x1234} + nops(5), 256), Lines());
  EXPECT_EQ(saidOfSecondRow(Words{0xC380, 0x0007} + nops(6), 64), Lines());
  EXPECT_EQ(saidOfSecondRow(Words{0xFC80, 0x000F} + nops(6), 64), Lines());
}

TEST(CodecHabits, ExtensionWordsThatAreNotNeededAreCountedOneByOne) {
  const Lines lines{
      "20 codec-habit: 1 code has both extension words",
      "20 codec-habit: 3 extension words hold values that fit their codes' fields",
  };
  const Words both = {0x3FFF, 0x0000, 0x0001, 0x1234};
  EXPECT_EQ(saidOfSecondRow(both + Words{0xC380, 0x0000} + nops(2)), lines);
}

TEST(CodecHabits, NopsStandBeforeACode) {
  EXPECT_EQ(saidOfSecondRow(Words{0x8FFF, kNop, 0x8FFF} + nops(5)),
            Lines{"22 codec-habit: 1 NOP stands before a record's last code"});
  EXPECT_EQ(saidOfSecondRow(Words{kNop, kNop, 0x8FFF, kNop, 0x8FFF} + nops(3)),
            Lines{"20 codec-habit: 3 NOPs stand before their records' last codes"});
}

TEST(CodecHabits, ALiteralDataWordIsNoNop) {
  EXPECT_EQ(saidOfSecondRow(Words{0x0001, 0x12FE, 0x00FE, 0x8FFF} + nops(4)), Lines());
}

TEST(CodecHabits, ARecordEndsWithMoreNopsThanItNeeds) {
  const Lines lines{"18 codec-habit: 1 record ends with more NOPs than it needs"};
  EXPECT_EQ(saidOfSecondRow(Words{0x8FFF} + nops(8)), lines);
  EXPECT_EQ(saidOfSecondRow(Words{0x0006, 1, 2, 3, 4, 5, 0, 0} + nops(1)), lines);
  EXPECT_EQ(saidOfSecondRow(nops(8)), lines);
}

TEST(CodecHabits, TheLastRecordEndsWithMoreNopsThanTheBandsLengthTakes) {
  EXPECT_EQ(said(examine(recordsOf({blankFirst() + nops(15)}), 1)),
            Lines{"0 codec-habit: 1 record ends with more NOPs than it needs"});
  EXPECT_EQ(said(examine(recordsOf({blankFirst(), nops(14)}), 2)),
            Lines{"18 codec-habit: 1 record ends with more NOPs than it needs"});
  EXPECT_EQ(said(examine(recordsOf({blankFirst(), nops(10)}) + trailer(), 2, true)),
            Lines{"18 codec-habit: 1 record ends with more NOPs than it needs"});
}

TEST(CodecHabits, TheLastRecordEndsWithJustTheNopsThatTheBandsLengthTakes) {
  EXPECT_EQ(said(examine(recordsOf({blankFirst() + nops(7)}), 1)), Lines());
  EXPECT_EQ(said(examine(recordsOf({blankFirst(), Words{0x8FFF} + nops(13)}), 2)), Lines());
  EXPECT_EQ(said(examine(recordsOf({blankFirst(), Words{0x8FFF} + nops(9)}) + trailer(), 2, true)),
            Lines());
}

TEST(CodecHabits, EachKindIsToldOnceABand) {
  const Words codes = Words{0x8FFF, 0x01FE} + nops(6);
  EXPECT_EQ(said(examine(recordsOf({blankFirst(), codes, codes, codes}), 4)),
            Lines{"22 codec-habit: 3 NOPs have other bits than 00FE"});
}

TEST(CodecHabits, OfARowThatDoesNotDecodeNothingIsTold) {
  const Words codes = Words{0x01FE, kNop, 0xC081} + nops(9);
  EXPECT_EQ(said(examine(recordsOf({blankFirst(), codes, {}}), 3)),
            Lines{"18 band-data: row 1: the copy in code word 3 copies from the left of word 0"});
}

}  // namespace
}  // namespace gdi::reader
