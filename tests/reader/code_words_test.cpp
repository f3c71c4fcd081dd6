// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/code_words.h"

#include <gtest/gtest.h>

#include "tests/reader/band_words.h"

namespace gdi::reader {
namespace {

std::vector<Code> codesOf(const Words& words) {
  const Bytes bytes = bytesOf(words);
  CodeWords codeWords(bytes);
  std::vector<Code> codes;
  for (Code code; codeWords.next(code);) {
    codes.push_back(code);
  }
  return codes;
}

TEST(CodeWords, OfACopyTheCountWordComesBeforeTheSkipWord) {
  const std::vector<Code> codes = codesOf({0xFF81, 0x0020, 0x0041, kNop});
  ASSERT_EQ(codes.size(), 2U);
  EXPECT_EQ(codes[0].kind, CodeKind::kCopy);
  EXPECT_EQ(codes[0].count, 33U);
  EXPECT_EQ(codes[0].skip, 65U);
  EXPECT_EQ(codes[0].distance, 2U);
  EXPECT_EQ(codes[1].kind, CodeKind::kNop);
  EXPECT_EQ(codes[1].at, 3U);
}

TEST(CodeWords, OfALiteralRunTheCountWordComesBeforeTheSkipWordAndTheDataWordsLast) {
  const std::vector<Code> codes = codesOf({0x3FFF, 0x0001, 0x0041, 0xC000, 0xC000, 0x6B7F});
  ASSERT_EQ(codes.size(), 2U);
  EXPECT_EQ(codes[0].kind, CodeKind::kLiteralRun);
  EXPECT_EQ(codes[0].count, 2U);
  EXPECT_EQ(codes[0].skip, 65U);
  EXPECT_TRUE(codes[0].whole);
  EXPECT_EQ(codes[1].kind, CodeKind::kDoubleCopy);
  EXPECT_EQ(codes[1].at, 5U);
  EXPECT_EQ(codes[1].distance, 87U);  // 0x6B7F: 1010110 1111111
  EXPECT_EQ(codes[1].distanceTwo, 128U);
}

TEST(CodeWords, AClearRowCommandHasNoDataWordsWhateverItsCount) {
  const std::vector<Code> codes = codesOf({0x3FFF, 0x0100, 0xFFFF, 0xB000});
  ASSERT_EQ(codes.size(), 2U);
  EXPECT_EQ(codes[0].kind, CodeKind::kClearRow);
  EXPECT_EQ(codes[0].count, 0U);
  EXPECT_EQ(codes[1].kind, CodeKind::kPairLiteral);
  EXPECT_EQ(codes[1].skip, 3U);
}

TEST(CodeWords, OfARecordThatDecodesNoTroubleIsTold) {
  EXPECT_EQ(troubleOf(bytesOf({0x8FFF, 0xC800, 0x01FE}), 4), "");
  EXPECT_EQ(troubleOf(bytesOf({0x8FFF, 0xC800, 0x01FE}), 3),
            "the copy in code word 2 leaves the row on the right");
  EXPECT_EQ(troubleOf({}, 0), "");
}

TEST(CodeWords, OfSeveralTroublesTheFirstIsTold) {
  EXPECT_EQ(troubleOf(bytesOf({0x8FFF, 0xC001, 0x4000}), 4),
            "the copy in code word 2 copies from the left of word 0");
}

}  // namespace
}  // namespace gdi::reader
