// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "codec/row_coder.h"

#include <array>

#include <gtest/gtest.h>

#include "codec/code_writer.h"
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

TEST(RowCoder, ReturnsTheOutputPosition) {
  const std::array<std::uint8_t, 8> reference{};
  const std::array<std::uint8_t, 8> row{0, 0, 0x12, 0x34, 0, 0, 0, 0};
  std::array<std::uint8_t, 12> output{};
  EXPECT_EQ(pc4sc4::cmpCompressRow(reference.data(), row.data(), 2, output.data()),
            output.data() + 4);
  EXPECT_EQ(output, (std::array<std::uint8_t, 12>{0x00, 0x01, 0x34, 0x12}));
}

TEST(RowCoder, WithoutAnyChangedWordNothingIsWritten) {
  const std::array<std::uint8_t, 4> row{1, 2, 3, 4};
  std::array<std::uint8_t, 2> output{0xEE, 0xEE};
  EXPECT_EQ(pc4sc4::cmpCompressRow(row.data(), row.data(), 1, output.data()), output.data());
  EXPECT_EQ(output[0], 0xEE);
}

TEST(CodeWriter, SkipsCountFromTheEndOfTheLastCode) {
  const std::array<std::uint8_t, 8> row{0, 0, 0x12, 0x34, 0, 0, 0x56, 0x78};
  std::array<std::uint8_t, 16> output{};
  pc4sc4::CodeWriter writer(row.data(), output.data());
  EXPECT_EQ(writer.anchor(), 0);
  writer.cmpEncodeLiteral(1, 1);
  EXPECT_EQ(writer.anchor(), 2);
  writer.cmpEncodeLiteral(3, 3);
  EXPECT_EQ(writer.anchor(), 4);
  EXPECT_EQ(writer.output(), output.data() + 8);
  EXPECT_EQ(output, (std::array<std::uint8_t, 16>{0x00, 0x01, 0x34, 0x12, 0x00, 0x01, 0x78, 0x56}));
}

}  // namespace
}  // namespace gdi::codectest
