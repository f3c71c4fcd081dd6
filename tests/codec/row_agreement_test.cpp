// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Random rows of every kind: the row coder gives the plain one's bytes with every instruction set.

#include <algorithm>
#include <random>
#include <span>

#include <gtest/gtest.h>

#include "codec/band_size.h"
#include "codec/row_coder.h"
#include "tests/codec/band.h"
#include "tests/codec/guarded_buffer.h"
#include "tests/codec/plain_row_coder.h"
#include "tests/codec/random_bands.h"
#include "tests/support/instruction_sets.h"

namespace gdi::codectest {
namespace {

#ifdef GDI_SLOW_BUILD
constexpr int kRowsOfAKind = 3000;
#else
constexpr int kRowsOfAKind = 120000;  // more than a million of all kinds
#endif

using RowCoder = std::uint8_t* (*)(const std::uint8_t*, const std::uint8_t*, std::size_t,
                                   std::uint8_t*);

// The codes of all rows of the band, one after the other; each row's output is where the last
// one's ends.
std::vector<std::uint8_t> codesOf(const Band& band, RowCoder code) {
  std::vector<std::uint8_t> output(2 * band.rows * pc4sc4::maxRowCodeWords(band.stride() / 4));
  const std::vector<std::uint8_t> blank(band.stride());
  const std::uint8_t* reference = blank.data();
  std::uint8_t* end = output.data();
  for (std::size_t r = 0; r < band.rows; ++r) {
    const std::uint8_t* row = &band.bytes[r * band.stride()];
    end = code(reference, row, band.stride() / 4, end);
    reference = row;
  }
  output.resize(static_cast<std::size_t>(end - output.data()));
  return output;
}

class RowsOfEveryKind : public testing::TestWithParam<int> {};

TEST_P(RowsOfEveryKind, AreCodedAsByThePlainCoderWithEveryInstructionSet) {
  const auto kind = static_cast<BandKind>(GetParam());
  const std::vector<test::InstructionSet> sets = test::instructionSets();
  ASSERT_FALSE(sets.empty());
  std::mt19937 random(static_cast<unsigned>(7300 + GetParam()));
  for (int rows = 0; rows < kRowsOfAKind;) {
    const std::uint32_t most = random() % 16 == 0 ? 320 : 24;
    const std::uint32_t words = 2 + 2 * (static_cast<std::uint32_t>(random()) % most);
    const std::uint32_t bandRows = words > 60 ? 16 : 256;
    const Band band = randomBand(kind, 2 * words, bandRows, random);
    const std::vector<std::uint8_t> plain = codesOf(band, plainCompressRow);
    for (const test::InstructionSet& set : sets) {
      const test::WithInstructions only(set);
      ASSERT_EQ(codesOf(band, pc4sc4::cmpCompressRow), plain)
          << set.name << ", " << nameOf(kind) << ", " << words << " words";
    }
    rows += static_cast<int>(bandRows);
  }
}

INSTANTIATE_TEST_SUITE_P(Random, RowsOfEveryKind, testing::Range(0, kBandKinds));

TEST(WidestRows, AreCodedAsByThePlainCoderWithEveryInstructionSet) {
  std::mt19937 random(7399);  // NOLINT(cert-msc51-cpp,cert-msc32-c): the same rows in every run
  for (const BandKind kind : {BandKind::kSparse, BandKind::kRuns, BandKind::kPeriodic}) {
    const Band band = randomBand(kind, kMaxEncodableRowBytes, 3, random);
    const std::vector<std::uint8_t> plain = codesOf(band, plainCompressRow);
    for (const test::InstructionSet& set : test::instructionSets()) {
      const test::WithInstructions only(set);
      EXPECT_EQ(codesOf(band, pc4sc4::cmpCompressRow), plain) << set.name << ", " << nameOf(kind);
    }
  }
}

TEST(RowsInExactBuffers, AreReadToTheirEndAndNoFarther) {
  std::mt19937 random(7398);  // NOLINT(cert-msc51-cpp,cert-msc32-c): the same rows in every run
  for (std::uint32_t words = 2; words <= 200; words += 2) {
    const Band band = randomBand(BandKind::kRuns, 2 * words, 2, random);
    const auto rowOf = [&](std::size_t r) {
      const auto first = band.bytes.begin() + static_cast<std::ptrdiff_t>(r * band.stride());
      return std::vector<std::uint8_t>(first, first + static_cast<std::ptrdiff_t>(band.stride()));
    };
    const GuardedBuffer reference(rowOf(0));
    const GuardedBuffer row(rowOf(1));
    for (const test::InstructionSet& set : test::instructionSets()) {
      const test::WithInstructions only(set);
      std::vector<std::uint8_t> output(2 * pc4sc4::maxRowCodeWords(band.stride() / 4));
      std::vector<std::uint8_t> plain(output.size());
      const auto size =
          pc4sc4::cmpCompressRow(reference.data(), row.data(), band.stride() / 4, output.data()) -
          output.data();
      ASSERT_EQ(plainCompressRow(reference.data(), row.data(), band.stride() / 4, plain.data()) -
                    plain.data(),
                size);
      EXPECT_TRUE(std::ranges::equal(std::span(output).first(static_cast<std::size_t>(size)),
                                     std::span(plain).first(static_cast<std::size_t>(size))))
          << set.name << ", " << words << " words";
    }
  }
}

}  // namespace
}  // namespace gdi::codectest
