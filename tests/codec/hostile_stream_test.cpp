// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Streams that no encoder wrote, decoded between unreadable pages.

#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include "codec/pc4sc4.h"
#include "tests/codec/band.h"
#include "tests/codec/guarded_buffer.h"
#include "tests/codec/random_bands.h"

namespace gdi::codectest {
namespace {

// Buffers for one shape of band, made once: their pages are what takes time.
class Decoding {
 public:
  Decoding(std::uint32_t rowBytes, std::uint32_t rows)
      : rowBytes_(rowBytes), rows_(rows), stride_((std::size_t{rowBytes} + 3) / 4 * 4) {}

  std::optional<std::size_t> run(std::span<const std::uint8_t> stream) {
    std::copy(stream.begin(), stream.end(), source_.bytes().end() - size(stream));
    const auto consumed =
        qbx_DeCompress_PC4SC4(source_.bytes().last(stream.size()), destination_.bytes(), rowBytes_,
                              static_cast<std::int32_t>(rows_), rowBuffer_.bytes());
    EXPECT_TRUE(destination_.frontIsIntact() && rowBuffer_.frontIsIntact());
    if (consumed) {
      EXPECT_LE(*consumed, stream.size() / 2);
    }
    return consumed;
  }
  [[nodiscard]] std::span<const std::uint8_t> rows() const { return destination_.bytes(); }

 private:
  static std::ptrdiff_t size(std::span<const std::uint8_t> stream) {
    return static_cast<std::ptrdiff_t>(stream.size());
  }
  std::uint32_t rowBytes_;
  std::uint32_t rows_;
  std::size_t stride_;
  GuardedBuffer source_{std::size_t{8192}};
  GuardedBuffer destination_{stride_ * rows_};
  GuardedBuffer rowBuffer_{stride_};
};

TEST(HostileStreams, RandomWordsNeverLeaveTheBuffers) {
  std::mt19937 random(6301);  // NOLINT(cert-msc51-cpp,cert-msc32-c): the same ones in every run
  Decoding decoding(26, 2);
  int accepted = 0;
  for (int i = 0; i < 20000; ++i) {
    Words stream;
    for (int r = 0; r < 2; ++r) {
      // Mostly records of a length that fits, so that their codes are reached.
      const std::size_t words = static_cast<std::size_t>(random()) % 5;
      stream.push_back(static_cast<std::uint16_t>(random() % 16 == 0 ? random() : words));
      for (std::size_t k = 0; k < words; ++k) {
        // Small fields more often than they would come by themselves.
        const auto word = static_cast<std::uint16_t>(random());
        stream.push_back(random() % 2 == 0 ? word : static_cast<std::uint16_t>(word & 0xC783));
      }
    }
    accepted += decoding.run(streamBytes(stream)).has_value() ? 1 : 0;
  }
  // Some of both, or this would test nothing.
  EXPECT_GT(accepted, 200);
  EXPECT_LT(accepted, 19000);
}

TEST(HostileStreams, ABandWithSomeBitsTurnedNeverLeavesTheBuffers) {
  std::mt19937 random(6302);  // NOLINT(cert-msc51-cpp,cert-msc32-c): the same ones in every run
  int refused = 0;
  for (int kind = 0; kind < kBandKinds; ++kind) {
    const Band band = randomBand(static_cast<BandKind>(kind), 150, 6, random);
    const std::vector<std::uint8_t> sound = compressed(band);
    Decoding decoding(band.rowBytes, band.rows);
    for (int i = 0; i < 1500; ++i) {
      std::vector<std::uint8_t> stream = sound;
      for (int turned = 0; turned <= i % 3; ++turned) {
        std::uint8_t& byte = stream[random() % stream.size()];
        byte = static_cast<std::uint8_t>(byte ^ (1U << (random() % 8)));
      }
      refused += decoding.run(stream).has_value() ? 0 : 1;
    }
  }
  EXPECT_GT(refused, 500);
}

TEST(HostileStreams, ATruncatedBandIsRefusedAtEveryLengthAndItsWholeRowsAreThere) {
  std::mt19937 random(6303);  // NOLINT(cert-msc51-cpp,cert-msc32-c): the same ones in every run
  for (int kind = 0; kind < kBandKinds; ++kind) {
    const Band band = randomBand(static_cast<BandKind>(kind), 60, 5, random);
    const std::vector<std::uint8_t> whole = compressed(band);
    const Words words = streamWords(whole);
    for (std::size_t length = 0; length < whole.size(); ++length) {
      Decoding decoding(band.rowBytes, band.rows);
      EXPECT_FALSE(decoding.run(std::span(whole).first(length))) << length;
      std::size_t wholeRows = 0;
      for (std::size_t at = 0; 2 * (at + 1 + words[at]) <= length;
           at += std::size_t{1} + words[at]) {
        ++wholeRows;
      }
      EXPECT_TRUE(
          std::equal(band.bytes.begin(),
                     band.bytes.begin() + static_cast<std::ptrdiff_t>(wholeRows * band.stride()),
                     decoding.rows().begin()))
          << length;
    }
    Decoding decoding(band.rowBytes, band.rows);
    EXPECT_EQ(decoding.run(whole), whole.size() / 2);
  }
}

}  // namespace
}  // namespace gdi::codectest
