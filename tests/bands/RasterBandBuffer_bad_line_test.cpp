// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "bands/RasterBandBuffer.h"
#include "tests/bands/band_buffer_test.h"

namespace gdi {
namespace {

using BandBufferDeathTest = BandBuffer;

TEST_F(BandBufferDeathTest, OnePastTheLastLineEndsTheProcessWithStatus1) {
  const auto buffer = makePage(false);
  ASSERT_NE(buffer, nullptr);
  EXPECT_EXIT((void)buffer->rasterLine(100), testing::ExitedWithCode(1), "");
}

TEST_F(BandBufferDeathTest, FlippedLineMinus1EndsTheProcessWithStatus1) {
  const auto buffer = makePage(true);
  ASSERT_NE(buffer, nullptr);
  EXPECT_EXIT((void)buffer->rasterLine(-1), testing::ExitedWithCode(1), "");
}

TEST_F(BandBufferDeathTest, LinesFarOutsideEndTheProcessToo) {
  const auto buffer = make(100, 65536, 32);
  ASSERT_NE(buffer, nullptr);
  EXPECT_EXIT((void)buffer->rasterLine(-1), testing::ExitedWithCode(1), "");
  // 65,536 rows of 65,536 bytes: the low 32 bits of the offset are those of row 0.
  EXPECT_EXIT((void)buffer->rasterLine(65536), testing::ExitedWithCode(1), "");
  buffer->setFlipped(true);
  EXPECT_EXIT((void)buffer->rasterLine(100), testing::ExitedWithCode(1), "");
  EXPECT_EXIT((void)buffer->rasterLine(std::numeric_limits<int>::min()), testing::ExitedWithCode(1),
              "");
}

TEST_F(BandBufferDeathTest, APlaneOfNoRowsHasNoLine0) {
  const auto buffer = make(0, kRowBytes, 256);
  ASSERT_NE(buffer, nullptr);
  EXPECT_EXIT((void)buffer->rasterLine(0), testing::ExitedWithCode(1), "");
}

TEST_F(BandBufferDeathTest, ABadLineIsLoggedInThreeMessagesTheLastWithShiftedFields) {
  const auto buffer = makePage(false);
  ASSERT_NE(buffer, nullptr);
  const auto start = reinterpret_cast<std::uintptr_t>(buffer->rasterLine(0));
  EXPECT_EXIT((void)buffer->rasterLine(100), testing::ExitedWithCode(1), "");
  const auto low = [](std::uintptr_t address) {
    std::array<char, 16> text{};
    (void)std::snprintf(text.data(), text.size(), "0x%08lx", address & 0xFFFFFFFFU);
    return std::string(text.data());
  };
  const std::vector<std::string> logged = messages();
  ASSERT_GE(logged.size(), 3U);
  const auto* last = &logged[logged.size() - 3];
  EXPECT_EQ(last[0], "RasterBandBuffer rasterLine: returning bad pointer for line: 100");
  EXPECT_EQ(last[1], "dest: " + low(start + 1600) + ", memory: " + low(start) +
                         ", memory end: " + low(start + 1599));
  EXPECT_EQ(last[2],
            "flipped: " + low(start + 1600) + ", rowBytes: NO, pixelHeight: 16, lineNumber: 100");
}

}  // namespace
}  // namespace gdi
