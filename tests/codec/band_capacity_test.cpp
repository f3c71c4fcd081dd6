// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The encoder in buffers that are just large enough, or not, with an unreadable page behind them.

#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include "codec/band_size.h"
#include "codec/pc4sc4.h"
#include "tests/codec/band.h"
#include "tests/codec/guarded_buffer.h"
#include "tests/codec/plain_encoder.h"
#include "tests/codec/random_bands.h"

namespace gdi::codectest {
namespace {

std::uint32_t compressInto(const GuardedBuffer& output, const Band& band, bool finalBand) {
  const GuardedBuffer source(band.bytes);
  const GuardedBuffer seed(band.stride());
  const std::uint32_t size = qbx_Compress_PC4SC4(source.data(), band.byteCount(), output.data(),
                                                 static_cast<std::uint32_t>(output.bytes().size()),
                                                 band.rowBytes, seed.data(), finalBand);
  EXPECT_TRUE(output.frontIsIntact());
  return size;
}

// Whether the check before each row passes for all of them.
bool everyRowHasItsRoom(const Band& band, std::size_t capacity) {
  const std::vector<std::size_t> starts = recordStarts(band);
  return std::all_of(starts.begin(), starts.end(),
                     [&](std::size_t start) { return 2 * start + band.stride() + 8 < capacity; });
}

void expectExactlyWhatFits(const Band& band, bool finalBand, std::size_t capacity) {
  const std::vector<std::uint8_t> expected = plainCompress(band, finalBand);
  const GuardedBuffer output(capacity);
  const std::uint32_t size = compressInto(output, band, finalBand);
  if (expected.size() <= capacity && everyRowHasItsRoom(band, capacity)) {
    ASSERT_EQ(size, expected.size()) << capacity;
    EXPECT_TRUE(std::equal(expected.begin(), expected.end(), output.data())) << capacity;
  } else {
    EXPECT_EQ(size, kCompressionOverflow) << capacity;
  }
}

TEST(BandCapacity, EveryCapacityUpToTheWorstEitherHoldsTheBandOrIsRefused) {
  std::mt19937 random(6101);  // NOLINT(cert-msc51-cpp,cert-msc32-c): the same bands in every run
  for (int kind = 0; kind < kBandKinds; ++kind) {
    for (const std::uint32_t rowBytes : {4U, 7U, 36U}) {
      const Band band = randomBand(static_cast<BandKind>(kind), rowBytes, 3, random);
      for (std::size_t capacity = 0; capacity <= worstCaseBandBytes(3, rowBytes); ++capacity) {
        expectExactlyWhatFits(band, capacity % 2 == 0, capacity);
        expectExactlyWhatFits(band, capacity % 2 != 0, capacity);
      }
    }
  }
}

TEST(BandCapacity, TheRoomForARowIsCheckedWithoutRegardToItsContent) {
  // Eight white rows of 64 bytes take 32 bytes altogether, the last one from byte 30 on.
  const Band band = bandOf(std::vector<Words>(8, repeated(0, 32)));
  EXPECT_EQ(compressInto(GuardedBuffer(30 + 64 + 8), band, false), kCompressionOverflow);
  EXPECT_EQ(compressInto(GuardedBuffer(30 + 64 + 8 + 1), band, false), 32U);
}

TEST(BandCapacity, ARowThatTakesMoreThanItsCheckIsRefusedAndNotWrittenPastTheEnd) {
  const Band band = worstBand(400, 1);
  const std::size_t size = compressed(band).size();
  ASSERT_GT(size, 600U);
  EXPECT_EQ(compressInto(GuardedBuffer(size - 1), band, false), kCompressionOverflow);
  EXPECT_EQ(compressInto(GuardedBuffer(size), band, false), size);
}

TEST(BandCapacity, TheWorstRowTakesOneAndAHalfWordsForEveryPixelWord) {
  for (const std::uint32_t rowBytes : {4U, 8U, 100U, 600U, 57344U}) {
    const Words stream = streamWords(compressed(worstBand(rowBytes, 2)));
    const std::size_t codeWords = std::size_t{stream.at(0)} - 2;
    const std::size_t expected = std::max<std::size_t>(pc4sc4::maxRowCodeWords(rowBytes / 4), 6);
    EXPECT_EQ(codeWords, expected) << rowBytes;
  }
}

TEST(BandCapacity, TheWorstCaseIsAlwaysEnough) {
  std::mt19937 random(6102);  // NOLINT(cert-msc51-cpp,cert-msc32-c): the same bands in every run
  for (const BandKind kind : {BandKind::kWorst, BandKind::kNoise, BandKind::kAlphabetMix}) {
    for (const std::uint32_t rowBytes : {1U, 2U, 3U, 4U, 5U, 6U, 7U, 8U, 12U, 13U, 21U, 600U}) {
      for (const std::uint32_t rows : {1U, 2U, 3U, 4U, 5U, 6U, 7U, 8U, 33U}) {
        const Band band = randomBand(kind, rowBytes, rows, random);
        for (const bool finalBand : {false, true}) {
          const GuardedBuffer output(worstCaseBandBytes(rows, rowBytes));
          EXPECT_NE(compressInto(output, band, finalBand), kCompressionOverflow)
              << nameOf(kind) << ' ' << rows << " x " << rowBytes;
        }
      }
    }
  }
  const Band widest = worstBand(57344, 2);
  EXPECT_NE(compressInto(GuardedBuffer(worstCaseBandBytes(2, 57344)), widest, true),
            kCompressionOverflow);
}

TEST(BandCapacity, TheWorstCaseIsRoundedUp) {
  EXPECT_EQ(worstCaseBandBytes(0, 0), 64U);
  EXPECT_EQ(worstCaseBandBytes(2, 4), 2U * (6 + 18) + 4 + 64);
  EXPECT_EQ(worstCaseBandBytes(1, 3), 23U + 3 + 64);  // 1.5 x 3 + 18 is 22.5
}

TEST(BandCapacity, TheWorstCaseOfHugeArgumentsDoesNotWrapAround) {
  EXPECT_EQ(worstCaseBandBytes(65536, 65536), 65536U * (98304ULL + 18) + 65536 + 64);
  EXPECT_EQ(worstCaseBandBytes(0xFFFFFFFF, 0x80000000), 13835058131517833262ULL);
  EXPECT_EQ(worstCaseBandBytes(0xFFFFFFFF, 0xFFFFFFFF), UINT64_MAX);
}

}  // namespace
}  // namespace gdi::codectest
