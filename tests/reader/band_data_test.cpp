// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <gtest/gtest.h>

#include "tests/reader/band_words.h"

namespace gdi::reader {
namespace {

// A blank row and one with these code words; nothing is set right behind them.
BandDataReport examineSecondRow(const Words& codes, std::size_t rowBytes = kRowBytes) {
  return examine(recordsOf({blankFirst(), codes}), 2, false, rowBytes);
}

TEST(BandData, OneRowIsSound) {
  const BandDataReport report = examine(Words{0x000F, 0x3F00, 0xFFFF, 0x803F} + nops(12), 1);
  EXPECT_EQ(said(report), Lines());
  EXPECT_TRUE(report.complete);
  EXPECT_TRUE(report.inked);
  EXPECT_EQ(report.consumed, 32U);
}

TEST(BandData, TwoHundredFiftySixBlankRowsOfTheWidestPageAreSound) {
  const BandDataReport report =
      examine(recordsOf({blankFirst()}) + Words(255, 0), 256, false, 28672);
  EXPECT_EQ(said(report), Lines());
  EXPECT_TRUE(report.complete);
  EXPECT_FALSE(report.inked);
  EXPECT_EQ(report.consumed, 528U);
}

TEST(BandData, ABandWithItsTrailerIsSoundAndTheTrailerNoPartOfItsRecords) {
  const BandDataReport report =
      examine(recordsOf({Words{0x3F00, 0xFFFF, 0x8FFF} + nops(5), nops(2)}) + trailer(), 2, true);
  EXPECT_EQ(said(report), Lines());
  EXPECT_TRUE(report.complete);
  EXPECT_EQ(report.consumed, 24U);
}

TEST(BandData, AnUnchangedLastRowMayHaveTheFewNopsThatBringTheBandToItsLength) {
  EXPECT_EQ(said(examine(recordsOf({blankFirst(), nops(6)}), 2)), Lines());
}

TEST(BandData, AFewNopsOfALastRowThatBringTheBandToNoLengthAreTooFew) {
  EXPECT_EQ(said(examine(recordsOf({blankFirst(), nops(5)}), 2)),
            Lines{"18 record-minimum: row 1 has 5 code words"});
}

TEST(BandData, ALengthThatIsNoMultipleOf16IsNotLookedAt) {
  EXPECT_EQ(said(examine(recordsOf({blankFirst()}), 1)), Lines());
}

TEST(BandData, TheDataEndBeforeARow) {
  const BandDataReport report = examine(recordsOf({blankFirst()}), 2);
  EXPECT_EQ(said(report), Lines{"18 band-data: the data end before row 1"});
  EXPECT_FALSE(report.complete);
  EXPECT_EQ(report.consumed, 0U);
}

TEST(BandData, TheDataEndInsideARow) {
  Words words = recordsOf({blankFirst()}) + Words{9, 0x8FFF};
  EXPECT_EQ(said(examine(words, 2)),
            Lines{"18 band-data: row 1 has 9 code words, of which 1 is there"});
  words.pop_back();
  EXPECT_EQ(said(examine(words, 2)),
            Lines{"18 band-data: row 1 has 9 code words, of which 0 are there"});
}

TEST(BandData, MoreRowsThanTheDataHaveWordsAreToldAtOnce) {
  const BandDataReport report = examine(nops(16), 17);
  EXPECT_EQ(said(report), Lines{"0 band-data: 17 rows cannot stand in 32 bytes"});
  EXPECT_FALSE(report.complete);
  EXPECT_EQ(said(examineBandData(Bytes(1), 1, kRowBytes, false)),
            Lines{"0 band-data: 1 row cannot stand in 1 byte"});
}

TEST(BandData, CodesThatLeaveTheRowOnTheRight) {
  const Lines literal = said(examineSecondRow(Words{0x0701, 0x1234, 0x5678} + nops(5)));
  EXPECT_EQ(
      literal,
      Lines{"18 band-data: row 1: the literal run in code word 1 leaves the row on the right"});
  const Words toWord7 = {0x0600, 0x1234};
  EXPECT_EQ(
      said(examineSecondRow(toWord7 + Words{0x9FFF} + nops(5))),
      Lines{"18 band-data: row 1: the pair literal in code word 3 leaves the row on the right"});
  EXPECT_EQ(said(examineSecondRow(toWord7 + Words{0xC480} + nops(5))),
            Lines{"18 band-data: row 1: the copy in code word 3 leaves the row on the right"});
  EXPECT_EQ(
      said(examineSecondRow(toWord7 + Words{0x4000} + nops(5))),
      Lines{"18 band-data: row 1: the double copy in code word 3 leaves the row on the right"});
}

TEST(BandData, ACodeThatLeavesTheRowFitsIntoAWiderOne) {
  const Words codes = Words{0x0701, 0x1234, 0x5678} + nops(5);
  EXPECT_FALSE(examineSecondRow(codes).complete);
  EXPECT_EQ(said(examineSecondRow(codes, 32)), Lines());
}

TEST(BandData, CopiesFromTheLeftOfWordZero) {
  EXPECT_EQ(said(examineSecondRow(Words{0xC081} + nops(7))),
            Lines{"18 band-data: row 1: the copy in code word 1 copies from the left of word 0"});
  const Words toWord1 = {0x0000, 0x1234};
  EXPECT_EQ(
      said(examineSecondRow(toWord1 + Words{0x4080} + nops(5))),
      Lines{"18 band-data: row 1: the double copy in code word 3 copies from the left of word 0"});
  EXPECT_EQ(
      said(examineSecondRow(toWord1 + Words{0x4002} + nops(5))),
      Lines{"18 band-data: row 1: the double copy in code word 3 copies from the left of word 0"});
}

TEST(BandData, WordsBehindTheRecordsEndThoughTheDataGoOn) {
  const std::string literal =
      "18 band-data: row 1: the literal run in code word 8 has words behind the record's end";
  const std::string copy =
      "18 band-data: row 1: the copy in code word 8 has words behind the record's end";
  const std::string rest = "36 band-end: 14 bytes follow the last row";
  for (const std::uint16_t code : Words{0x00FF, 0x3F00, 0x0000}) {
    const Words words = recordsOf({blankFirst(), nops(7) + Words{code}}) + nops(7);
    EXPECT_EQ(said(examine(words, 2)), (Lines{literal, rest})) << code;
  }
  for (const std::uint16_t code : Words{0xFC00, 0xC380}) {
    const Words words = recordsOf({blankFirst(), nops(7) + Words{code}}) + nops(7);
    EXPECT_EQ(said(examine(words, 2)), (Lines{copy, rest})) << code;
  }
}

TEST(BandData, BehindARowThatDoesNotDecodeTheNumbersOfCodeWordsAndTheEndAreStillLookedAt) {
  const BandDataReport report = examine(
      recordsOf({blankFirst(), Words{0xC000} + nops(7), {}, {0x8FFF}, blankFirst()}), 5, true);
  const Lines lines{
      "18 band-data: row 1: the copy in code word 1 copies from the left of word 0",
      "38 record-minimum: row 3 has 1 code word",
      "60 trailer: nothing follows the last row",
  };
  EXPECT_EQ(said(report), lines);
  EXPECT_FALSE(report.complete);
  EXPECT_EQ(report.consumed, 60U) << "all records are there";
}

TEST(BandData, EveryRowThatDoesNotDecodeIsToldByItsOwnCodes) {
  const Words left = Words{0xC000} + nops(7);
  const Words right = Words{0x0701, 0x1234, 0x5678} + nops(5);
  const Lines lines{
      "18 band-data: row 1: the copy in code word 1 copies from the left of word 0",
      "54 band-data: row 3: the literal run in code word 1 leaves the row on the right",
      "72 band-data: row 4: the copy in code word 1 copies from the left of word 0",
  };
  const Words sound = Words{0x8FFF} + nops(7);
  EXPECT_EQ(said(examine(recordsOf({blankFirst(), left, sound, right, left, nops(2)}), 6)), lines);
}

TEST(BandData, WhatARowThatIsLostLooksLikeIsNotTold) {
  const Words left = Words{0xC000} + nops(7);
  const Words slackAndHabit = Words{kNop, 0x0700, 0x0001} + nops(5);
  EXPECT_EQ(said(examine(recordsOf({blankFirst(), left, slackAndHabit}), 3)),
            Lines{"18 band-data: row 1: the copy in code word 1 copies from the left of word 0"});
}

TEST(BandData, WhatStandsBeforeARowThatDoesNotDecodeIsTold) {
  const Words slackAndHabit = Words{kNop, 0x0700, 0x0001} + nops(5);
  const Lines lines{"18 row-slack: 1 row has a bit set in its last 32: row 1",
                    "20 codec-habit: 1 NOP stands before a record's last code",
                    "36 band-data: row 2: the copy in code word 1 copies from the left of word 0"};
  EXPECT_EQ(said(examine(recordsOf({blankFirst(), slackAndHabit, Words{0xC000} + nops(7)}), 3)),
            lines);
}

TEST(BandData, ARecordThatIsCutOffEndsTheExaminationAlsoBehindALostRow) {
  const BandDataReport report =
      examine(recordsOf({blankFirst(), Words{0xC000} + nops(7)}) + Words{9, 0x8FFF}, 5);
  const Lines lines{
      "18 band-data: row 1: the copy in code word 1 copies from the left of word 0",
      "36 band-data: row 2 has 9 code words, of which 1 is there",
  };
  EXPECT_EQ(said(report), lines);
  EXPECT_EQ(report.consumed, 0U);
}

TEST(BandData, ARowOfNopsAloneIsTheRowAbove) {
  const Words slack = Words{0x3F00, 0xFFFF, 0x0700, 0x0001} + nops(4);
  EXPECT_EQ(said(examine(recordsOf({slack, nops(8), nops(8), nops(4)}), 4)),
            (Lines{"0 row-slack: 4 rows have a bit set in their last 32, the first being row 0",
                   "18 codec-habit: 2 records end with more NOPs than they need"}));
}

TEST(BandData, TheFirstRowDoesNotBeginWithTheClearRowCommand) {
  EXPECT_EQ(said(examine(recordsOf({Words{0x0000, 0x1234} + nops(13)}), 1)),
            Lines{"0 clear-row: row 0 does not begin with the clear-row command"});
}

TEST(BandData, AMissingClearRowCommandIsToldAlsoWhenItIsWhyTheRowDoesNotDecode) {
  const Lines lines{"0 clear-row: row 0 does not begin with the clear-row command",
                    "0 band-data: row 0: the copy in code word 3 leaves the row on the right"};
  EXPECT_EQ(said(examine(recordsOf({Words{0x0000, 0xFFFF, 0xDC00} + nops(12)}), 1)), lines);
}

TEST(BandData, ARecordOfLessThanEightCodeWords) {
  EXPECT_EQ(said(examine(recordsOf({blankFirst(), {0x8FFF, 0x8FFF, 0x8FFF}, nops(2)}), 3)),
            Lines{"18 record-minimum: row 1 has 3 code words"});
  EXPECT_EQ(said(examine(recordsOf({blankFirst(), {0x8FFF}, nops(4)}), 3)),
            Lines{"18 record-minimum: row 1 has 1 code word"});
  EXPECT_EQ(said(examine(recordsOf({blankFirst(), nops(3), nops(2)}), 3)),
            Lines{"18 record-minimum: row 1 has 3 code words"});
  EXPECT_EQ(said(examine(recordsOf({{0x3F00, 0xFFFF, kNop, kNop, kNop, kNop, kNop}}), 1)),
            Lines{"0 record-minimum: row 0 has 7 code words"});
}

TEST(BandData, AChangedLastRowHasEightCodeWordsWhateverThePadding) {
  EXPECT_EQ(said(examine(recordsOf({blankFirst(), Words{0x8FFF} + nops(5)}), 2)),
            Lines{"18 record-minimum: row 1 has 6 code words"});
}

TEST(BandData, AnEmptyFirstRecordLacksItsCodeWordsAndTheClearRowCommand) {
  const Lines lines{"0 clear-row: row 0 does not begin with the clear-row command",
                    "0 record-minimum: row 0 has no code words"};
  EXPECT_EQ(said(examine(recordsOf({{}, Words{0x8FFF} + nops(13)}), 2)), lines);
}

TEST(BandData, TheTrailerIsMissing) {
  EXPECT_EQ(said(examine(recordsOf({blankFirst(), nops(6)}), 2, true)),
            Lines{"32 trailer: nothing follows the last row"});
}

TEST(BandData, WhatFollowsTheLastRowOfThePageIsNotTheTrailer) {
  const Words rows = recordsOf({blankFirst(), nops(2)});
  EXPECT_EQ(said(examine(rows + Words{0x0002, 0x3F00, 0xFFFF, 0x0001}, 2, true)),
            Lines{"24 trailer: 8 bytes that are not the trailer follow the last row"});
  EXPECT_EQ(said(examine(rows + trailer() + nops(8), 2, true)),
            Lines{"24 trailer: 24 bytes that are not the trailer follow the last row"});
  Bytes oneByte = bytesOf(rows);
  oneByte.push_back(2);
  EXPECT_EQ(said(examineBandData(oneByte, 2, kRowBytes, true)),
            Lines{"24 trailer: 1 byte that is not the trailer follows the last row"});
}

TEST(BandData, SomethingFollowsTheLastRowThoughItIsNotThePagesLast) {
  const Words rows = recordsOf({blankFirst(), nops(6)});
  EXPECT_EQ(said(examine(rows + Words(8, 0), 2)),
            Lines{"32 band-end: 16 bytes follow the last row"});
  EXPECT_EQ(said(examine(recordsOf({blankFirst(), nops(2)}) + trailer(), 2)),
            Lines{"24 band-end: 8 bytes follow the last row: the trailer"});
  Bytes oneByte = bytesOf(rows);
  oneByte.push_back(0);
  EXPECT_EQ(said(examineBandData(oneByte, 2, kRowBytes, false)),
            Lines{"32 band-end: 1 byte follows the last row"});
}

TEST(BandData, ABitInTheLast32OfARow) {
  const Words first = Words{0x3F00, 0xFFFF, 0x0600, 0x0100} + nops(4);  // word 6
  EXPECT_EQ(said(examine(recordsOf({first, Words{0x0600, 0x0000} + nops(12)}), 2)),
            Lines{"0 row-slack: 1 row has a bit set in its last 32: row 0"});
}

TEST(BandData, RowsWithBitsInTheirLast32AreCountedAndTheFirstIsTold) {
  const Words last = Words{0x0700, 0x0001} + nops(6);  // word 7
  const BandDataReport report = examine(recordsOf({blankFirst(), last, {}, nops(4)}), 4);
  EXPECT_EQ(said(report),
            Lines{"18 row-slack: 3 rows have a bit set in their last 32, the first being row 1"});
  EXPECT_TRUE(report.inked);
}

TEST(BandData, ABitJustBeforeTheLast32IsNoFlaw) {
  EXPECT_EQ(said(examine(recordsOf({Words{0x3F00, 0xFFFF, 0x0500, 0x0001} + nops(11)}), 1)),
            Lines());
}

TEST(BandData, FlawsAreToldFromFrontToBack) {
  const Words within = Words{kNop, 0x0700, 0x0001} + nops(5);
  const Lines lines{"18 row-slack: 2 rows have a bit set in their last 32, the first being row 1",
                    "20 codec-habit: 1 NOP stands before a record's last code",
                    "36 record-minimum: row 2 has 1 code word",
                    "40 band-end: 2 bytes follow the last row"};
  EXPECT_EQ(said(examine(recordsOf({blankFirst(), within, {0x8FFF}}) + Words{7}, 3)), lines);
}

TEST(BandData, ARowOfNoBytesIsSurvived) {
  EXPECT_EQ(said(examine(recordsOf({nops(15)}), 1, false, 0)).size(), 1U);
  EXPECT_FALSE(
      examine(recordsOf({Words{0x3F00, 0xFFFF, 0x8FFF} + nops(12)}), 1, false, 0).complete);
}

}  // namespace
}  // namespace gdi::reader
