// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "printer/format/big_endian.h"

#include <array>

#include <gtest/gtest.h>

namespace gdi {
namespace {

TEST(BigEndian, StoresTheMostSignificantByteFirst) {
  std::array<std::uint8_t, 8> record{};
  putBigEndian32(record, 1, 0x89ABCDEF);
  putBigEndian16(record, 6, 0xFE01);
  EXPECT_EQ(record, (std::array<std::uint8_t, 8>{0, 0x89, 0xAB, 0xCD, 0xEF, 0, 0xFE, 0x01}));
}

TEST(BigEndian, LoadsWhatItStored) {
  constexpr std::array<std::uint8_t, 6> kRecord{0x89, 0xAB, 0xCD, 0xEF, 0xFE, 0x01};
  EXPECT_EQ(bigEndian32(kRecord, 0), 0x89ABCDEFU);
  EXPECT_EQ(bigEndian16(kRecord, 4), 0xFE01);
}

}  // namespace
}  // namespace gdi
