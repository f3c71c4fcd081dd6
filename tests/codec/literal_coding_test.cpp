// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Pair literals and literal runs, seen through the codes of one-row bands, whose reference is zero.

#include <gtest/gtest.h>

#include "tests/codec/band.h"

namespace gdi::codectest {
namespace {

// One row of `skip` unchanged words and `count` different ones, filled up to whole units.
Words codesAfterSkip(std::size_t skip, std::size_t count) {
  return codesOfLastRow(
      {repeated(0, skip) + distinctWords(count) + repeated(0, (skip + count) % 2)});
}

TEST(LiteralCoding, ABytePairOfTheAlphabetIsOneWord) {
  EXPECT_EQ(codesOfLastRow({{0x00FF, 0x0000}}), (Words{0x803F}));
}

TEST(LiteralCoding, APairLiteralSkipsUpToThreeWords) {
  EXPECT_EQ(codesOfLastRow({{0, 0xFF00}}), (Words{0x9FC0}));
  EXPECT_EQ(codesOfLastRow({{0, 0, 0, 0xFF00}}), (Words{0xBFC0}));
}

TEST(LiteralCoding, AfterASkipOfFourEvenAlphabetWordsAreALiteralRun) {
  EXPECT_EQ(codesOfLastRow({{0, 0, 0, 0, 0xFF00, 0x00F0}}), (Words{0x0401, 0xFF00, 0x00F0}));
}

TEST(LiteralCoding, OnlyTheFirstOfSeveralPairLiteralsHasTheSkip) {
  // Indices: FF 63, 00 0, 0F 7.
  EXPECT_EQ(codesOfLastRow({{0, 0xFF00, 0x000F, 0x0FFF}}), (Words{0x9FC0, 0x8007, 0x81FF}));
}

TEST(LiteralCoding, PairLiteralsStopAtTheFirstWordOutsideTheAlphabet) {
  EXPECT_EQ(codesOfLastRow({{0xFF00, 0x1234, 0x0F0F, 0x8001}}),
            (Words{0x8FC0, 0x0002, 0x1234, 0x0F0F, 0x8001}));
}

TEST(LiteralCoding, AShortSkipBeforeAWordOutsideTheAlphabetGoesToTheLiteralRun) {
  EXPECT_EQ(codesOfLastRow({{0, 0, 0x1234, 0xFF00}}), (Words{0x0201, 0x1234, 0xFF00}));
}

TEST(LiteralCoding, OneByteOutsideTheAlphabetIsEnough) {
  EXPECT_EQ(codesOfLastRow({{0xFF02, 0}}), (Words{0x0000, 0xFF02}));
  EXPECT_EQ(codesOfLastRow({{0x02FF, 0}}), (Words{0x0000, 0x02FF}));
}

TEST(LiteralCoding, ARunOf254WordsHasItsCountInline) {
  EXPECT_EQ(codesAfterSkip(0, 254), (Words{0x00FD} + distinctWords(254)));
}

TEST(LiteralCoding, ARunOf255WordsNeedsTheCountExtension) {
  EXPECT_EQ(codesAfterSkip(0, 255), (Words{0x00FF, 0x00FE} + distinctWords(255)));
}

TEST(LiteralCoding, ASkipOf62IsInlineAndOneOf63NeedsTheExtension) {
  EXPECT_EQ(codesAfterSkip(62, 2), (Words{0x3E01} + distinctWords(2)));
  EXPECT_EQ(codesAfterSkip(63, 2), (Words{0x3F01, 0x003F} + distinctWords(2)));
}

TEST(LiteralCoding, ALongRunAfterASkipOf62HasOnlyTheCountExtension) {
  EXPECT_EQ(codesAfterSkip(62, 255), (Words{0x3EFF, 0x00FE} + distinctWords(255)));
}

TEST(LiteralCoding, ARunOf254WordsAfterASkipOf63IsNotSplit) {
  EXPECT_EQ(codesAfterSkip(63, 254), (Words{0x3FFD, 0x003F} + distinctWords(254)));
}

TEST(LiteralCoding, ARunOf255WordsAfterASkipOf63IsSplitInto254AndTheRest) {
  const Words data = distinctWords(255);
  EXPECT_EQ(codesAfterSkip(63, 255),
            (Words{0x3FFD, 0x003F} + distinctWords(254) + Words{0x0000, data.back()}));
}

TEST(LiteralCoding, TheRestOfASplitRunMayNeedTheCountExtensionItself) {
  const Words data = distinctWords(600);
  const Words rest(data.begin() + 254, data.end());
  EXPECT_EQ(codesAfterSkip(64, 600),
            (Words{0x3FFD, 0x0040} + distinctWords(254) + Words{0x00FF, 345} + rest));
}

TEST(LiteralCoding, ExampleThreeHundredWordsAfterASkipOf70) {
  const Words data = distinctWords(300);
  const Words rest(data.begin() + 254, data.end());
  EXPECT_EQ(codesAfterSkip(70, 300),
            (Words{0x3FFD, 0x0046} + distinctWords(254) + Words{0x002D} + rest));
}

}  // namespace
}  // namespace gdi::codectest
