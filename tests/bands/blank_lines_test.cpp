// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Lines that are blank in a plane: approved without being written.

#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "tests/bands/band_buffer_test.h"

namespace gdi {
namespace {

using BlankLines = BandBuffer;

void approveBlankLines(RasterBandBuffer& buffer, int first, int last) {
  for (int line = first; line <= last; ++line) {
    buffer.approveBlankLine(line);
  }
}

TEST_F(BlankLines, CompleteABandThatIsBlank) {
  const auto buffer = makePage(false);
  ASSERT_NE(buffer, nullptr);
  approveBlankLines(*buffer, 0, 31);
  EXPECT_NE(buffer->band(0), nullptr);
  EXPECT_TRUE(buffer->bandIsBlank(0));
  EXPECT_EQ(buffer->band(1), nullptr);
}

TEST_F(BlankLines, BetweenWrittenOnesReadAsZeros) {
  const auto buffer = makePage(false);
  ASSERT_NE(buffer, nullptr);
  writeLines(*buffer, 0, 9);
  approveBlankLines(*buffer, 10, 63);
  EXPECT_FALSE(buffer->bandIsBlank(0));
  EXPECT_TRUE(buffer->bandIsBlank(1));
  std::vector<int> rows = rowsInFile();
  rows.resize(64);
  std::vector<int> expected(64);
  for (int line = 0; line < 10; ++line) {
    expected[static_cast<std::size_t>(line)] = line;
  }
  EXPECT_EQ(rows, expected);
}

TEST_F(BlankLines, AreTheRowsFromTheEndOfAFlippedPage) {
  const auto buffer = makePage(true);
  ASSERT_NE(buffer, nullptr);
  approveBlankLines(*buffer, 0, 3);  // rows 96 to 99, the short last band
  EXPECT_NE(buffer->band(3), nullptr);
  EXPECT_TRUE(buffer->bandIsBlank(3));
  writeLines(*buffer, 4, 4);
  EXPECT_FALSE(buffer->bandIsBlank(2));
  EXPECT_TRUE(buffer->bandIsBlank(3));
}

TEST_F(BlankLines, OutOfTurnAreReportedAndIgnoredAsOthersAre) {
  const auto buffer = makePage(false);
  ASSERT_NE(buffer, nullptr);
  buffer->approveBlankLine(1);
  EXPECT_EQ(messages().back(), "ASSERT: RasterBandBuffer: Approving non-sequential raster line");
  approveBlankLines(*buffer, 0, 31);
  EXPECT_NE(buffer->band(0), nullptr);
}

TEST_F(BlankLines, OfAFileThatWasUsedBeforeAreWrittenAsZeros) {
  std::ofstream(scratch_) << std::string(100 * kRowBytes, 'x');
  const auto buffer = makePage(false);
  ASSERT_NE(buffer, nullptr);
  approveBlankLines(*buffer, 0, 99);
  EXPECT_EQ(rowsInFile(), std::vector<int>(100));
  EXPECT_FALSE(buffer->bandIsBlank(0));  // its rows are there to be read
}

}  // namespace
}  // namespace gdi
