// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "halftone/screens/HalftoneScreen.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

#include <gtest/gtest.h>

#include "tests/screens/PixelByPixel.h"
#include "tests/screens/screen_bytes.h"
#include "tests/support/instruction_sets.h"

namespace gdi {
namespace {

std::unique_ptr<HalftoneScreen> screenOf(std::string_view header, const Bytes& table) {
  return HalftoneScreen::loadFromData(screenFile(header, table));
}

// The whole output row; the memory beyond it cannot be written.
Bytes screened(const HalftoneScreen& screen, const Bytes& input, int row, int outputDepth) {
  const auto width = static_cast<int>(input.size());
  const GuardedBytes output((input.size() * static_cast<std::size_t>(outputDepth) + 7) / 8);
  EXPECT_TRUE(screen.processScanline(input.data(), width, 1, row, output.data(), outputDepth));
  EXPECT_TRUE(output.untouchedBefore());
  return output.bytes();
}

// The table of a 1 x 1 tile of 8 bits in and out: level v gives 255 - v.
Bytes invertingTable() {
  Bytes table;
  for (unsigned level = 0; level < 256; ++level) {
    table.push_back(static_cast<std::uint8_t>(255 - level));
  }
  return table;
}

TEST(Screening, ASampleChoosesTheEntryOfItsLevel) {
  const auto screen = screenOf("1 1 1 8 8", invertingTable());
  ASSERT_NE(screen, nullptr);
  EXPECT_EQ(screened(*screen, {0x00, 0x01, 0x80, 0xFF}, 0, 8), (Bytes{0xFF, 0xFE, 0x7F, 0x00}));
}

TEST(Screening, AtInputDepth4ASampleOf0xB7UsesLevel11) {
  // Sixteen 4-bit entries, level 11 (in the low half of the sixth byte) alone is 9.
  const auto screen = screenOf("1 1 1 4 4", {0, 0, 0, 0, 0, 0x09, 0, 0});
  ASSERT_NE(screen, nullptr);
  EXPECT_EQ(screened(*screen, {0xB7, 0xA7, 0xC7, 0xB0}, 0, 4), (Bytes{0x90, 0x09}));
}

TEST(Screening, Width10AtOneBitWrites2BytesAndZerosBelowTheLastPixels) {
  const auto screen = screenOf("1 1 1 1 1", {0x40});  // level 0 gives 0, level 1 gives 1
  ASSERT_NE(screen, nullptr);
  EXPECT_EQ(screened(*screen, Bytes(10, 0xFF), 0, 1), (Bytes{0xFF, 0xC0}));
  EXPECT_EQ(screened(*screen, {0xFF, 0, 0, 0, 0, 0, 0, 0, 0, 0xFF}, 0, 1), (Bytes{0x80, 0x40}));
}

TEST(Screening, TheFirstPixelIsInTheMostSignificantBits) {
  const auto two = screenOf("1 1 1 2 2", {0x1B});  // level v gives v
  ASSERT_NE(two, nullptr);
  EXPECT_EQ(screened(*two, {0x40, 0x80, 0xC0, 0x00, 0xC0}, 0, 2), (Bytes{0x6C, 0xC0}));
}

TEST(Screening, Scanline17OfATileOfHeight16UsesTileRow1) {
  // 1 x 16 cells of 2 levels: only row 1 (entries 2 and 3) gives 1.
  const auto screen = screenOf("1 1 16 1 1", {0x30, 0, 0, 0});
  ASSERT_NE(screen, nullptr);
  for (int row = 0; row < 64; ++row) {
    const int expected = row % 16 == 1 ? 0x80 : 0;
    EXPECT_EQ(screened(*screen, {0}, row, 1), Bytes{static_cast<std::uint8_t>(expected)}) << row;
  }
}

TEST(Screening, Pixel16OfATileOfWidth16UsesTileColumn0) {
  // 16 x 1 cells of 2 levels: only column 0 gives 1.
  const auto screen = screenOf("1 16 1 1 1", {0xC0, 0, 0, 0});
  ASSERT_NE(screen, nullptr);
  EXPECT_EQ(screened(*screen, Bytes(18, 0x12), 5, 1), (Bytes{0x80, 0x00, 0x80}));
}

TEST(Screening, AtHalfTheStoredDepthAnEntryGivesItsHighBit) {
  const auto screen = screenOf("1 1 1 2 2", {0x1B});  // entries 0, 1, 2, 3
  ASSERT_NE(screen, nullptr);
  EXPECT_EQ(screened(*screen, {0x00, 0x40, 0x80, 0xC0}, 0, 1), Bytes{0x30});
}

TEST(Screening, EntriesShallowerThanTheOutputAreNotScaledUp) {
  const auto screen = screenOf("1 1 1 1 1", {0x40});
  ASSERT_NE(screen, nullptr);
  EXPECT_EQ(screened(*screen, {0xFF, 0x00, 0xFF}, 0, 4), (Bytes{0x10, 0x10}));
  EXPECT_EQ(screened(*screen, {0xFF, 0x00}, 0, 8), (Bytes{1, 0}));
}

TEST(Screening, ASampleIsTakenEveryInputStrideBytesAndNothingElseIsRead) {
  const auto screen = screenOf("1 1 1 8 8", invertingTable());
  ASSERT_NE(screen, nullptr);
  const GuardedBytes input(12);
  for (std::size_t i = 0; i < 12; ++i) {
    input.data()[i] = static_cast<std::uint8_t>(i);
  }
  const GuardedBytes output(3);
  EXPECT_TRUE(screen->processScanline(input.data() + 3, 3, 4, 0, output.data(), 8));
  EXPECT_EQ(output.bytes(), (Bytes{252, 248, 244}));
}

TEST(Screening, AWidthBelow1WritesNothing) {
  const auto screen = screenOf("1 1 1 1 1", {0x40});
  ASSERT_NE(screen, nullptr);
  std::uint8_t output = 0xA5;
  EXPECT_TRUE(screen->processScanline(&output, 0, 1, 0, &output, 1));
  EXPECT_TRUE(screen->processScanline(&output, -8, 1, 0, &output, 1));
  EXPECT_EQ(output, 0xA5);
}

TEST(Screening, ADepthThatDoesNotDivideAByteIsRefused) {
  const auto screen = screenOf("1 1 1 1 1", {0x40});
  ASSERT_NE(screen, nullptr);
  std::uint8_t output = 0xA5;
  testing::internal::CaptureStderr();
  EXPECT_FALSE(screen->processScanline(&output, 1, 1, 0, &output, 3));
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "ERROR: outputDepth out of range - 3\n");
  EXPECT_EQ(output, 0xA5);
}

TEST(Screening, ANegativeRowStaysWithinTheTile) {
  const auto screen = screenOf("1 1 3 1 1", {0xC0});  // row 0 gives 1, rows 1 and 2 give 0
  ASSERT_NE(screen, nullptr);
  EXPECT_EQ(screened(*screen, {0}, -3, 1), Bytes{0x80});
  EXPECT_EQ(screened(*screen, {0}, -1, 1), Bytes{0});
  EXPECT_EQ(screened(*screen, {0}, std::numeric_limits<int>::min(), 1), Bytes{0});  // row 1
}

TEST(ScreenTable, IsTheEntriesInTheOrderOfTheFile) {
  const auto rising = screenOf("1 2 1 1 2", {0x1B});
  ASSERT_NE(rising, nullptr);
  EXPECT_EQ(rising->table(), (Bytes{0, 1, 2, 3}));
  const auto falling = screenOf("1 3 1 1 1", {0xB7});
  ASSERT_NE(falling, nullptr);
  EXPECT_EQ(falling->table(), (Bytes{1, 0, 1, 1, 0, 1}));
}

TEST(BlankPaper, IsLeftBlankWhenLevel0GivesNothingInEveryCell) {
  const auto leavesBlank = [](std::string_view header, const Bytes& table) {
    const auto screen = screenOf(header, table);
    return screen != nullptr && screen->leavesPaperBlank();
  };
  EXPECT_TRUE(leavesBlank("1 2 1 1 1", {0x50}));
  EXPECT_TRUE(leavesBlank("1 1 1 2 2", {0x39}));  // 0, 3, 2, 1: does not rise
  EXPECT_FALSE(leavesBlank("1 2 1 1 1", {0x60}));
  EXPECT_TRUE(leavesBlank("1 2 1 1 8", {0, 255, 0, 1}));
  EXPECT_FALSE(leavesBlank("1 2 1 1 8", {0, 255, 1, 1}));
}

TEST(Screening, OfARisingScreenIsTheSameWhateverTheProcessorAtItsLoading) {
  const Bytes table{0x1B, 0x06};  // two cells of four levels: 0 1 2 3 and 0 0 1 2
  const PixelByPixel expected(2, 1, 2, 2, table);
  const Bytes input{0, 64, 128, 192, 255, 0, 70, 200, 130};
  test::withEveryInstructionSet([&](const char* target) {
    const auto screen = screenOf("1 2 1 2 2", table);
    ASSERT_NE(screen, nullptr) << target;
    EXPECT_EQ(screened(*screen, input, 0, 2), expected.row(input, 0, 2)) << target;
    EXPECT_EQ(screen->table(), (Bytes{0, 1, 2, 3, 0, 0, 1, 2})) << target;
    EXPECT_TRUE(screen->leavesPaperBlank()) << target;
  });
}

class ScreeningAtDepths : public testing::TestWithParam<std::tuple<int, int, int>> {};

TEST_P(ScreeningAtDepths, AgreesWithThePixelByPixelAnswer) {
  const auto [inputDepth, storedDepth, depth] = GetParam();
  constexpr int width = 7;
  constexpr int height = 3;
  // NOLINTNEXTLINE(cert-msc32-c,cert-msc51-cpp): every run tests the same bytes.
  std::mt19937 random(20260101U);
  const int tableBits = width * height * (1 << inputDepth) * storedDepth;
  const Bytes table = randomBytes(random, static_cast<std::size_t>((tableBits + 7) / 8));
  const auto screen =
      screenOf("1 7 3 " + std::to_string(inputDepth) + " " + std::to_string(storedDepth), table);
  ASSERT_NE(screen, nullptr);
  const PixelByPixel expected(width, height, inputDepth, storedDepth, table);
  for (int row = 0; row < 7; ++row) {
    for (std::size_t pixels = 1; pixels < 40; ++pixels) {
      const Bytes input = randomBytes(random, pixels);
      EXPECT_EQ(screened(*screen, input, row, depth), expected.row(input, row, depth))
          << "row " << row << ", " << pixels << " pixels";
    }
  }
}

INSTANTIATE_TEST_SUITE_P(AllDepths, ScreeningAtDepths,
                         testing::Combine(testing::Values(1, 2, 4, 8), testing::Values(1, 2, 4, 8),
                                          testing::Values(1, 2, 4, 8)));

}  // namespace
}  // namespace gdi
