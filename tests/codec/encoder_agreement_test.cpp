// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Random bands of every kind: two encoders give the same bytes, and the decoder gives the band.

#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include "codec/pc4sc4.h"
#include "tests/codec/band.h"
#include "tests/codec/guarded_buffer.h"
#include "tests/codec/plain_encoder.h"
#include "tests/codec/random_bands.h"

namespace gdi::codectest {
namespace {

void expectRoundTrip(const Band& band, const std::vector<std::uint8_t>& stream, bool finalBand,
                     std::mt19937& random) {
  const GuardedBuffer source(stream);
  const GuardedBuffer rows(band.bytes.size());
  const GuardedBuffer rowBuffer(band.stride());
  for (std::uint8_t& byte : rowBuffer.bytes()) {
    byte = static_cast<std::uint8_t>(random());
  }
  const auto consumed =
      qbx_DeCompress_PC4SC4(source.bytes(), rows.bytes(), band.rowBytes,
                            static_cast<std::int32_t>(band.rows), rowBuffer.bytes());
  ASSERT_TRUE(consumed.has_value());
  EXPECT_EQ(*consumed, stream.size() / 2 - (finalBand ? 4 : 0));
  EXPECT_TRUE(std::equal(band.bytes.begin(), band.bytes.end(), rows.data()));
}

void expectAgreement(const Band& band, std::mt19937& random) {
  for (const bool finalBand : {false, true}) {
    const std::vector<std::uint8_t> stream = compressed(band, finalBand);
    ASSERT_EQ(stream.size() % 16, 0U);
    ASSERT_EQ(stream, plainCompress(band, finalBand));
    expectRoundTrip(band, stream, finalBand, random);
  }
}

class EveryKind : public testing::TestWithParam<int> {};

TEST_P(EveryKind, OfBandIsCodedByBothEncodersAlikeAndDecodesToItself) {
  const auto kind = static_cast<BandKind>(GetParam());
  std::mt19937 random(static_cast<unsigned>(6200 + GetParam()));
  for (int i = 0; i < 60; ++i) {
    const std::uint32_t words = 1 + static_cast<std::uint32_t>(random()) % (i % 4 == 0 ? 600 : 80);
    const std::uint32_t rowBytes = 2 * words - static_cast<std::uint32_t>(random()) % 2;
    const std::uint32_t rows = 1 + static_cast<std::uint32_t>(random()) % (words > 80 ? 8 : 20);
    SCOPED_TRACE(nameOf(kind) + " " + std::to_string(rows) + " x " + std::to_string(rowBytes));
    expectAgreement(randomBand(kind, rowBytes, rows, random), random);
    if (HasFatalFailure()) {
      return;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Bands, EveryKind, testing::Range(0, kBandKinds));

TEST(WideRows, AreCodedByBothEncodersAlikeAndDecodeToThemselves) {
  std::mt19937 random(6299);  // NOLINT(cert-msc51-cpp,cert-msc32-c): the same bands in every run
  expectAgreement(randomBand(BandKind::kSparse, 57344, 1, random), random);
  expectAgreement(randomBand(BandKind::kRuns, 57344, 1, random), random);
  expectAgreement(randomBand(BandKind::kNoise, 57344, 1, random), random);
}

}  // namespace
}  // namespace gdi::codectest
