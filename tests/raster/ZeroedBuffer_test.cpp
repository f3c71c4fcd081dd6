// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "raster/ZeroedBuffer.h"

#include <algorithm>
#include <limits>
#include <span>
#include <vector>

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

namespace gdi {
namespace {

constexpr std::size_t kMebibyte = 1 << 20;

// Bytes of the buffer that memory is taken for, in whole pages.
std::size_t residentBytes(const ZeroedBuffer& buffer, std::size_t size) {
  const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
  std::vector<unsigned char> pages((size + page - 1) / page);
  EXPECT_EQ(mincore(buffer.data(), size, pages.data()), 0);
  return page * static_cast<std::size_t>(
                    std::ranges::count_if(pages, [](unsigned char p) { return (p & 1) != 0; }));
}

TEST(ZeroedBuffer, IsAllZerosAgainEachTime) {
  ZeroedBuffer buffer;
  for (const std::size_t size : {std::size_t{1}, std::size_t{20000}, kMebibyte, std::size_t{300}}) {
    for (int time = 0; time < 3; ++time) {
      ASSERT_TRUE(buffer.allocate(size));
      const std::span bytes(buffer.data(), size);
      EXPECT_TRUE(std::ranges::all_of(bytes, [](std::uint8_t byte) { return byte == 0; }));
      std::ranges::fill(bytes, std::uint8_t{0xFF});
    }
  }
}

TEST(ZeroedBuffer, OfManyMebibytesTakesNoMemoryUntouchedOnLaterPagesNeither) {
  ZeroedBuffer buffer;
  for (int page = 0; page < 4; ++page) {
    ASSERT_TRUE(buffer.allocate(16 * kMebibyte));
    EXPECT_EQ(residentBytes(buffer, 16 * kMebibyte), 0U);
    *buffer.data() = 1;
    EXPECT_LE(residentBytes(buffer, 16 * kMebibyte), kMebibyte * 2);
    buffer.release();
    EXPECT_EQ(buffer.data(), nullptr);
  }
}

TEST(ZeroedBuffer, OfMoreThanThereIsIsAnAnswer) {
  ZeroedBuffer buffer;
  EXPECT_FALSE(buffer.allocate(std::numeric_limits<std::size_t>::max() / 2));
  EXPECT_EQ(buffer.data(), nullptr);
  EXPECT_TRUE(buffer.allocate(0));
}

}  // namespace
}  // namespace gdi
