// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Which copies the encoder chooses and how it writes them.

#include <gtest/gtest.h>

#include "tests/codec/band.h"

namespace gdi::codectest {
namespace {

// Words outside the alphabet, so that what is not copied is a literal run.
constexpr std::uint16_t A = 0x2121;
constexpr std::uint16_t B = 0x2222;
constexpr std::uint16_t C = 0x2424;
constexpr std::uint16_t D = 0x2525;
constexpr std::uint16_t E = 0x2626;

TEST(SegmentCoding, AWordSeen128WordsBeforeIsAOneWordCopyAndNotALiteral) {
  const Words row = distinctWords(128) + Words{0x4000, 0};
  EXPECT_EQ(codesOfLastRow({row}), (Words{0x007F} + distinctWords(128) + Words{0xC07F}));
}

TEST(SegmentCoding, AWordSeen129WordsBeforeIsALiteral) {
  const Words row = distinctWords(129) + Words{0x4000};
  EXPECT_EQ(codesOfLastRow({row}), (Words{0x0081} + row));
}

TEST(SegmentCoding, ASingleRepeatedWordEndsALiteralRun) {
  EXPECT_EQ(codesOfLastRow({{A, B, C, A, D, 0}}), (Words{0x0002, A, B, C, 0xC002, 0x0000, D}));
}

TEST(SegmentCoding, WordsWithTheSameSumButOtherBytesAreNoMatch) {
  EXPECT_EQ(codesOfLastRow({{0x2122, 0x2221, 0x2023, 0}}), (Words{0x0002, 0x2122, 0x2221, 0x2023}));
}

TEST(SegmentCoding, TwoOneWordCopiesInARowMergeIntoADoubleCopy) {
  EXPECT_EQ(codesOfLastRow({{A, B, C, D, C, A}}), (Words{0x0003, A, B, C, D, 0x4084}));
}

TEST(SegmentCoding, AThirdOneWordCopyAfterADoubleCopyStartsANewCopy) {
  EXPECT_EQ(codesOfLastRow({{A, B, C, D, C, A, D, 0}}),
            (Words{0x0003, A, B, C, D, 0x4084, 0xC002}));
}

TEST(SegmentCoding, FourOneWordCopiesInARowAreTwoDoubleCopies) {
  EXPECT_EQ(codesOfLastRow({{A, B, C, D, C, A, D, B}}),
            (Words{0x0003, A, B, C, D, 0x4084, 0x4105}));
}

TEST(SegmentCoding, ACopyWithASkipDoesNotMergeWithTheNext) {
  EXPECT_EQ(codesOfLastRow({{A, B, 0, B, A, 0}}), (Words{0x0001, A, B, 0xC081, 0xC003}));
}

TEST(SegmentCoding, ALiteralBetweenTwoOneWordCopiesKeepsThemApart) {
  EXPECT_EQ(codesOfLastRow({{A, B, C, A, D, B}}),
            (Words{0x0002, A, B, C, 0xC002, 0x0000, D, 0xC003}));
}

TEST(SegmentCoding, AnUnchangedWordBetweenTwoOneWordCopiesKeepsThemApart) {
  EXPECT_EQ(codesOfLastRow({{A, B, C, A, 0, B}}), (Words{0x0002, A, B, C, 0xC002, 0xC083}));
}

TEST(SegmentCoding, ALongerCopyBetweenTwoOneWordCopiesKeepsThemApart) {
  EXPECT_EQ(codesOfLastRow({{A, B, C, D, E, B, D, E, A, 0}}),
            (Words{0x0004, A, B, C, D, E, 0xC003, 0xC402, 0xC007}));
}

TEST(SegmentCoding, EqualLengthsKeepTheFartherSource) {
  EXPECT_EQ(codesOfLastRow({{A, B, C, A, B, D, A, B, E, 0}}),
            (Words{0x0002, A, B, C, 0xC402, 0x0000, D, 0xC405, 0x0000, E}));
}

TEST(SegmentCoding, AStrictlyLongerNearerSourceIsTaken) {
  EXPECT_EQ(codesOfLastRow({{A, B, C, A, B, D, A, B, D, 0}}),
            (Words{0x0002, A, B, C, 0xC402, 0x0000, D, 0xC802}));
}

// `far` words, then the same and more of them, then all of those again.
Words codesWithAFarSourceOf(std::size_t far) {
  const Words twelve = distinctWords(12);
  const Words start(twelve.begin(), twelve.begin() + static_cast<std::ptrdiff_t>(far));
  Words row = start + Words{A} + twelve + Words{B} + twelve + Words{C};
  return codesOfLastRow({row + repeated(0, row.size() % 2)});
}

TEST(SegmentCoding, AMatchOfTenWordsIsTakenThoughANearerOneIsLonger) {
  const Words w = distinctWords(12);
  // The third time, ten words from 24 before and then the last two from 13 before.
  EXPECT_EQ(codesWithAFarSourceOf(10),
            (Words{0x000A} + distinctWords(10) +
             Words{A, 0xE40A, 0x0002, w[10], w[11], B, 0xE417, 0xC40C, 0x0000, C}));
}

TEST(SegmentCoding, AMatchOfNineWordsStillGivesWayToALongerOne) {
  const Words w = distinctWords(12);
  EXPECT_EQ(codesWithAFarSourceOf(9),
            (Words{0x0009} + distinctWords(9) +
             Words{A, 0xE009, 0x0003, w[9], w[10], w[11], B, 0xEC0C, 0x0000, C}));
}

TEST(SegmentCoding, ACopyOverlapsItsSource) {
  EXPECT_EQ(codesOfLastRow({{A, B, A, B, A, B, A, B}}), (Words{0x0001, A, B, 0xD401}));
}

// The second of two rows: `skip` words A as above, then `length` more in place of others.
Words codesOfACopy(std::size_t skip, std::size_t length) {
  const Words tail = repeated(B, 2 - (skip + length) % 2);
  return codesOfLastRow(
      {repeated(A, skip) + repeated(C, length) + tail, repeated(A, skip + length) + tail});
}

TEST(SegmentCoding, ACopyOf15WordsHasItsCountInline) {
  EXPECT_EQ(codesOfACopy(6, 15), (Words{0xFB05}));
}

TEST(SegmentCoding, ACopyOf16WordsAfterASkipOf6HasTheCountExtensionOnly) {
  EXPECT_EQ(codesOfACopy(6, 16), (Words{0xFF05, 0x000F}));
}

TEST(SegmentCoding, ACopyOf15WordsAfterASkipOf7HasTheSkipExtensionOnly) {
  EXPECT_EQ(codesOfACopy(7, 15), (Words{0xFB86, 0x0007}));
}

TEST(SegmentCoding, ACopyLongerThan15WordsWithASkipOver6IsCutTo15) {
  EXPECT_EQ(codesOfACopy(7, 16), (Words{0xFB86, 0x0007, 0xC015}));
}

TEST(SegmentCoding, ExampleAPeriodOfTenWordsAfterTenUnchangedOnes) {
  const Words period = distinctWords(10);
  const Words tail = {B, C, D};
  const Words above = period + repeated(E, 31) + tail;
  const Words row = period + period + period + period + Words{period[0]} + tail;
  EXPECT_EQ(codesOfLastRow({above, row}), (Words{0xFB89, 0x000A, 0xFC13, 0x000F}));
}

}  // namespace
}  // namespace gdi::codectest
