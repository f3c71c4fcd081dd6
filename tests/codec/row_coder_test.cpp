// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "codec/row_coder.h"

#include <array>

#include <gtest/gtest.h>

#include "codec/search_chains.h"
#include "tests/codec/band.h"

namespace gdi::codectest {
namespace {

constexpr std::uint16_t A = 0x2121;
constexpr std::uint16_t B = 0x2222;
constexpr std::uint16_t C = 0x2424;
constexpr std::uint16_t D = 0x2525;

TEST(RowCoder, WordsBehindTheLastChangedUnitAreNotCoded) {
  EXPECT_EQ(codesOfLastRow({{A, B, C, D}, {A, D, C, D}}), (Words{0x0100, D}));
}

TEST(RowCoder, AChangeInTheFirstWordOfAUnitTakesInTheUnchangedSecondOne) {
  // A B is found at word 0, and the copy runs to the end of the unit and no farther.
  EXPECT_EQ(codesOfLastRow({{A, B, C, B, A, B}, {A, B, A, B, A, B}}), (Words{0xC501}));
}

TEST(RowCoder, AnUnchangedSecondWordOfTheLastUnitIsPassedOver) {
  EXPECT_EQ(codesOfLastRow({{A, B, C, B, A, B}, {A, B, D, B, A, B}}), (Words{0x0200, D}));
}

TEST(RowCoder, ASingleUnchangedWordSplitsASegment) {
  EXPECT_EQ(codesOfLastRow({{0x1111, 0x1111, 0x1111, 0x1111}, {A, B, 0x1111, D}}),
            (Words{0x0001, A, B, 0x0100, D}));
}

TEST(RowCoder, TheWalkGoesOnBehindACopyThatRanPastItsSegment) {
  // Only word 3 opens the segment; its copy takes words 3 to 5, and word 6 is looked at next.
  EXPECT_EQ(codesOfLastRow({{A, B, C, 0x1111, B, C, 0x1111, D}, {A, B, C, A, B, C, D, D}}),
            (Words{0xC982, 0x0000, D}));
}

TEST(RowCoder, TheWordBehindACopyMayBeUnchanged) {
  // The copy of words 2 to 4 ends on a word that is as above, and so is the one behind it.
  EXPECT_EQ(codesOfLastRow({{A, B, C, B, A, D, 0x1111, D}, {A, B, A, B, A, D, C, D}}),
            (Words{0xC901, 0x0100, C}));
}

TEST(RowCoder, ReturnsTheOutputPositionAndLeavesTheAnchorBehindTheLastCode) {
  const std::array<std::uint8_t, 8> reference{};
  const std::array<std::uint8_t, 8> row{0, 0, 0x12, 0x34, 0, 0, 0, 0};
  std::array<std::uint8_t, 8> output{};
  pc4sc4::pCurRowEnd = 1;
  pc4sc4::buildSearchChains(row.data(), 1);
  std::uint8_t* const end = pc4sc4::cmpCompressRow(reference.data(), row.data(), output.data());
  EXPECT_EQ(end, output.data() + 4);
  EXPECT_EQ(pc4sc4::cmpBuf, end);
  EXPECT_EQ(pc4sc4::cmpAnchor, 2);
  EXPECT_EQ(pc4sc4::pCurRowHead, row.data());
  EXPECT_EQ(output, (std::array<std::uint8_t, 8>{0x00, 0x01, 0x34, 0x12}));
}

TEST(RowCoder, WithoutAnyChangedWordNothingIsWritten) {
  const std::array<std::uint8_t, 4> row{1, 2, 3, 4};
  std::array<std::uint8_t, 2> output{0xEE, 0xEE};
  pc4sc4::pCurRowEnd = -1;
  EXPECT_EQ(pc4sc4::cmpCompressRow(row.data(), row.data(), output.data()), output.data());
  EXPECT_EQ(output[0], 0xEE);
}

TEST(SearchChains, EachChainListsItsPositionsInAscendingOrder) {
  const std::array<std::uint8_t, 12> row{1, 4, 2, 3, 9, 9, 5, 0, 1, 1, 0, 5};
  pc4sc4::buildSearchChains(row.data(), 5);
  const pc4sc4::SearchNode* node = pc4sc4::pSearchHead[5];
  for (const pc4sc4::Position position : {0, 1, 3, 5}) {
    EXPECT_EQ(node->position, position);
    node = node->next;
  }
  EXPECT_EQ(pc4sc4::pSearchHead[18]->position, 2);
  EXPECT_EQ(pc4sc4::searchIdx[0].position, 5);
}

}  // namespace
}  // namespace gdi::codectest
