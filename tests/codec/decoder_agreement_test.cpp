// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Bands of every kind, sound and spoilt: two decoders make the same of them.

#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include "codec/pc4sc4.h"
#include "tests/codec/band.h"
#include "tests/codec/plain_decoder.h"
#include "tests/codec/random_bands.h"

namespace gdi::codectest {
namespace {

using Bytes = std::vector<std::uint8_t>;

// Whether the stream decodes.
bool expectAgreement(const Bytes& stream, std::uint32_t rows, std::uint32_t rowBytes) {
  const std::size_t stride = (std::size_t{rowBytes} + 3) / 4 * 4;
  const PlainRecords plain = plainDecompress(stream, rows, stride / 2);
  Bytes decoded(stride * rows);
  Bytes rowBuffer(stride);
  const auto words =
      qbx_DeCompress_PC4SC4(stream, decoded, rowBytes, static_cast<std::int32_t>(rows), rowBuffer);
  EXPECT_EQ(words.has_value(), plain.sound());
  EXPECT_EQ(2 * words.value_or(plain.bytes / 2), plain.bytes);
  EXPECT_TRUE(std::equal(plain.rows.begin(), plain.rows.end(), decoded.begin()));
  return words.has_value();
}

class SpoiltBand : public testing::TestWithParam<int> {};

TEST_P(SpoiltBand, OfEveryKindIsDecodedByBothDecodersAlike) {
  std::mt19937 random(static_cast<unsigned>(6400 + GetParam()));
  int sound = 0;
  for (int i = 0; i < 1500; ++i) {
    const std::uint32_t rowBytes = 1 + static_cast<std::uint32_t>(random()) % 900;
    const Band band = randomBand(static_cast<BandKind>(GetParam()), rowBytes, 4, random);
    Bytes stream = compressed(band, i % 2 == 0);
    for (int spoilt = 0; spoilt < i % 4; ++spoilt) {
      std::uint8_t& byte = stream[random() % std::min<std::size_t>(stream.size(), 200)];
      byte = static_cast<std::uint8_t>(byte ^ (1U << (random() % 8)));
    }
    sound += expectAgreement(stream, band.rows, rowBytes) ? 1 : 0;
    ASSERT_FALSE(HasFailure()) << nameOf(static_cast<BandKind>(GetParam())) << ", band " << i;
  }
  EXPECT_GE(sound, 375) << "those that were left as they are";
  EXPECT_LT(sound, 1500);
}

INSTANTIATE_TEST_SUITE_P(DecoderAgreement, SpoiltBand, testing::Range(0, kBandKinds));

// Codes of small fields, with up to three clear-row commands among them.
Words randomCodes(std::mt19937& random) {
  constexpr std::uint16_t kMasks[] = {0x0703, 0x4183, 0x8FFF, 0xC783};
  Words codes = {0xB000, 0x8FFF};
  for (std::uint32_t part = 0; part < 3; ++part) {
    for (auto left = random() % 3; left > 0; --left) {
      codes.push_back(static_cast<std::uint16_t>(random() & kMasks[random() % 4]));
    }
    if (random() % 2 == 0) {
      codes = codes + (random() % 4 == 0 ? Words{0x3FFF, 0x1234, 0xFFFF} : Words{0x3F00, 0xFFFF});
      codes.push_back(static_cast<std::uint16_t>(0x8000 | (random() & 0x3FFF)));
    }
  }
  return codes;
}

TEST(DecoderAgreement, RandomCodesAreDecodedByBothDecodersAlike) {
  std::mt19937 random(6499);  // NOLINT(cert-msc51-cpp,cert-msc32-c): the same ones in every run
  int sound = 0;
  for (int i = 0; i < 20000; ++i) {
    Words stream;
    for (int r = 0; r < 3; ++r) {
      const Words codes = randomCodes(random);
      stream.push_back(static_cast<std::uint16_t>(codes.size()));
      stream = stream + codes;
    }
    sound += expectAgreement(streamBytes(stream), 3, i % 2 == 0 ? 64 : 1024) ? 1 : 0;
    ASSERT_FALSE(HasFailure()) << i;
  }
  EXPECT_GT(sound, 500);
  EXPECT_LT(sound, 19000);
}

TEST(DecoderAgreement, TheLastOfSeveralClearRowCommandsClearsWhatWasStoredBeforeIt) {
  // Word 0 before the first, words 1 and 2 before the second, word 4 behind it.
  const Words codes = {0x8FFF, 0x3F00, 0xFFFF, 0x8FFF, 0x8FFF, 0x3F00, 0xFFFF, 0x9FFF};
  const Words stream = Words{8} + codes;
  EXPECT_TRUE(expectAgreement(streamBytes(stream), 1, 12));
  EXPECT_EQ(plainDecompress(streamBytes(stream), 1, 6).rows,
            (Bytes{0, 0, 0, 0, 0, 0, 0, 0, 0xFF, 0xFF, 0, 0}));
}

TEST(DecoderAgreement, ThePlainDecoderJudgesEachRecordByItself) {
  const Words stream = {1, 0x8FFF, 1, 0xC000, 1, 0x4000, 2, 0x8000, 0x803F, 9, 0x8FFF};
  const PlainRecords records = plainDecompress(streamBytes(stream), 5, 4);
  EXPECT_EQ(records.faults, (std::vector<std::size_t>{4, 8, 18}));
  EXPECT_FALSE(records.framed);
  EXPECT_EQ(records.rows, (Bytes{0xFF, 0xFF, 0, 0, 0, 0, 0, 0}));
}

}  // namespace
}  // namespace gdi::codectest
