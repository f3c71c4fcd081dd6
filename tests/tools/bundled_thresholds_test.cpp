// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The screens that this build made, screened by thresholds.

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <vector>

#include <gtest/gtest.h>

#include "halftone/screens/HalftoneScreen.h"
#include "halftone/screens/ThresholdTile.h"
#include "halftone/screens/screen_header.h"

namespace gdi {
namespace {

using Bytes = std::vector<std::uint8_t>;

// Calls check(bytes of the file) for every screen.
template <typename Check>
void forEveryScreen(Check check) {
  std::size_t screens = 0;
  for (const auto& file : std::filesystem::directory_iterator(GDI_BUNDLE "/Screens")) {
    std::ifstream stream(file.path(), std::ios::binary);
    SCOPED_TRACE(file.path().filename());
    check(Bytes{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()});
    ++screens;
  }
  EXPECT_GT(screens, 0U);
}

TEST(BundledScreens, AllHaveThresholds) {
  forEveryScreen([](const Bytes& file) {
    const auto length = screenHeaderLength(file);
    ASSERT_TRUE(length.has_value());
    const auto header = parseScreenHeader(std::span(file).first(*length));
    ASSERT_TRUE(header.has_value());
    EXPECT_TRUE(ThresholdTile::fromTable(*header, std::span(file).subspan(*length + 1)));
  });
}

TEST(BundledScreens, PrintTheEntriesOfTheirTables) {
  forEveryScreen([](const Bytes& file) {
    const std::unique_ptr<HalftoneScreen> screen = HalftoneScreen::loadFromData(file);
    ASSERT_NE(screen, nullptr);
    EXPECT_TRUE(screen->leavesPaperBlank());
    const int width = screen->header().width;
    const Bytes table = screen->table();
    Bytes expected(static_cast<std::size_t>(width));
    Bytes printed(expected.size());
    for (int row = 0; row < screen->header().height; ++row) {
      for (std::size_t level = 0; level < 256; ++level) {
        for (std::size_t x = 0; x < expected.size(); ++x) {
          expected[x] = table[(static_cast<std::size_t>(row) * expected.size() + x) * 256 + level];
        }
        const Bytes line(expected.size(), static_cast<std::uint8_t>(level));
        EXPECT_TRUE(screen->processScanline(line.data(), width, 1, row, printed.data(), 8));
        ASSERT_EQ(printed, expected) << "row " << row << ", level " << level;
      }
    }
  });
}

}  // namespace
}  // namespace gdi
