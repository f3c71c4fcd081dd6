// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What holds for every band that the encoder makes, and for every way to spoil one.

#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include "tests/codec/random_bands.h"
#include "tests/reader/band_twin.h"
#include "tests/reader/band_words.h"

namespace gdi::reader {
namespace {

using codectest::Band;
using codectest::BandKind;

// As page rows are: no bit is set in the last 32.
Band withoutSlack(Band band) {
  for (std::size_t end = band.rowBytes; end <= band.bytes.size(); end += band.rowBytes) {
    std::fill_n(band.bytes.begin() + static_cast<std::ptrdiff_t>(end) - 4, 4, std::uint8_t{0});
  }
  return band;
}

void expectSound(const Band& band, bool last) {
  const Bytes data = codectest::compressed(band, last);
  const BandDataReport report = examineBandData(data, band.rows, band.rowBytes, last);
  ASSERT_EQ(said(report), Lines());
  EXPECT_TRUE(report.complete);
  EXPECT_EQ(report.consumed, data.size() - (last ? 8 : 0));
  EXPECT_EQ(report.inked, std::ranges::any_of(band.bytes, [](auto byte) { return byte != 0; }));
}

class EncodedBand : public testing::TestWithParam<int> {};

TEST_P(EncodedBand, OfEveryKindAndWidthIsSoundWithoutARemark) {
  const auto kind = static_cast<BandKind>(GetParam());
  std::mt19937 random(static_cast<unsigned>(4100 + GetParam()));
  for (int i = 0; i < 40; ++i) {
    const std::uint32_t rowBytes =
        16 * (1 + static_cast<std::uint32_t>(random()) % (i % 4 == 0 ? 120 : 8));
    const std::uint32_t rows = 1 + static_cast<std::uint32_t>(random()) % 24;
    SCOPED_TRACE(nameOf(kind) + " " + std::to_string(rows) + " x " + std::to_string(rowBytes));
    const Band band = withoutSlack(randomBand(kind, rowBytes, rows, random));
    expectSound(band, false);
    expectSound(band, true);
  }
}

INSTANTIATE_TEST_SUITE_P(AnyBandData, EncodedBand, testing::Range(0, codectest::kBandKinds));

TEST(AnyBandData, EncodedBlankBandsOfEveryHeightAreSound) {
  for (std::uint32_t rows = 1; rows <= 256; ++rows) {
    const Band band{64, rows, Bytes(std::size_t{64} * rows)};
    expectSound(band, false);
    expectSound(band, true);
  }
}

TEST(AnyBandData, ALastRowThatIsLikeTheOneAboveIsSoundWhereverItStands) {
  for (std::uint32_t rows = 1; rows <= 20; ++rows) {
    Band band{32, rows, Bytes(std::size_t{32} * rows)};
    for (std::size_t row = 0; row < rows; ++row) {
      band.bytes[32 * row + 3] = 0x5A;
    }
    expectSound(band, false);
    expectSound(band, true);
  }
}

Band smallBand() {
  std::mt19937 random(99);  // NOLINT(cert-msc51-cpp,cert-msc32-c): the same bands in every run
  return withoutSlack(randomBand(BandKind::kEditedRows, 48, 4, random));
}

TEST(AnyBandData, EveryByteMayBeAnyOther) {
  for (const bool last : {false, true}) {
    Bytes data = codectest::compressed(smallBand(), last);
    for (std::uint8_t& byte : data) {
      const std::uint8_t sound = byte;
      for (int value = 0; value < 256; ++value) {
        byte = static_cast<std::uint8_t>(value);
        ASSERT_EQ(disagreementOn(data, 4, 48, last), "") << value;
      }
      byte = sound;
    }
  }
}

TEST(AnyBandData, TheDataMayEndAnywhere) {
  const Bytes data = codectest::compressed(smallBand(), true);
  for (std::size_t size = 0; size < data.size(); ++size) {
    const Bytes cut(data.begin(), data.begin() + static_cast<std::ptrdiff_t>(size));
    ASSERT_EQ(disagreementOn(cut, 4, 48, true), "") << size;
    ASSERT_FALSE(examineBandData(cut, 4, 48, true).flaws.empty()) << size;
  }
}

TEST(AnyBandData, TheDataMayBeNoise) {
  std::mt19937 random(7);  // NOLINT(cert-msc51-cpp,cert-msc32-c): the same bands in every run
  for (int i = 0; i < 10000; ++i) {
    Words words;
    for (std::size_t record = 0; record < 3; ++record) {
      Words codes(1 + random() % 12);
      for (std::uint16_t& code : codes) {
        code = static_cast<std::uint16_t>(random());
        code = static_cast<std::uint16_t>(random() % 4 == 0 ? code & 0x3F03 : code);
      }
      words.push_back(static_cast<std::uint16_t>(codes.size()));
      words = words + codes;
    }
    ASSERT_EQ(disagreementOn(bytesOf(words), 3, i % 2 == 0 ? 256 : 4096, i % 3 == 0), "") << i;
  }
}

}  // namespace
}  // namespace gdi::reader
