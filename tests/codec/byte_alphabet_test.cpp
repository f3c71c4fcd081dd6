// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "codec/byte_alphabet.h"

#include <algorithm>
#include <string_view>

#include <gtest/gtest.h>

namespace gdi::pc4sc4 {
namespace {

TEST(ByteAlphabet, IndicesFollowTheNibblesHighOneFirst) {
  EXPECT_EQ(MapIdToLiteral[0], 0x00);
  EXPECT_EQ(MapIdToLiteral[1], 0x01);
  EXPECT_EQ(MapIdToLiteral[2], 0x03);
  EXPECT_EQ(MapIdToLiteral[7], 0x0F);
  EXPECT_EQ(MapIdToLiteral[8], 0x10);
  EXPECT_EQ(MapIdToLiteral[16], 0x30);
  EXPECT_EQ(MapIdToLiteral[37], 0x8C);
  EXPECT_EQ(MapIdToLiteral[63], 0xFF);
}

TEST(ByteAlphabet, ABytesIndexLeadsBackToTheByte) {
  for (std::size_t id = 0; id < MapIdToLiteral.size(); ++id) {
    EXPECT_EQ(MapLiteralToId.at(MapIdToLiteral.at(id)), id);
  }
}

TEST(ByteAlphabet, AByteWithANibbleOutsideTheListHasNoIndex) {
  constexpr std::string_view kListed = "yynynnnyynnnynyy";  // nibbles 0x0 to 0xF
  for (std::size_t byte = 0; byte < 256; ++byte) {
    const bool inside = kListed.at(byte / 16) == 'y' && kListed.at(byte % 16) == 'y';
    EXPECT_EQ(MapLiteralToId.at(byte) != 0xFFFF, inside) << byte;
  }
  EXPECT_EQ(std::count(MapLiteralToId.begin(), MapLiteralToId.end(), 0xFFFF), 192);
}

}  // namespace
}  // namespace gdi::pc4sc4
