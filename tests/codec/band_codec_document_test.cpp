// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <gtest/gtest.h>

#include "codec/pc4sc4.h"
#include "tests/codec/band.h"
#include "tests/support/document_block.h"

namespace gdi::codectest {
namespace {

Band rowsOfTheDocument() {
  std::vector<Words> rows;
  for (const std::string& line : test::linesOfBlock(GDI_BAND_CODEC_DOCUMENT, "rows")) {
    rows.push_back(test::hexNumbers(line));
  }
  return rows.empty() ? Band() : bandOf(rows);
}

TEST(BandCodecDocument, ItsWorkedExampleIsOfThreeRowsOfEightPixelWords) {
  const Band band = rowsOfTheDocument();
  EXPECT_EQ(band.rows, 3U);
  EXPECT_EQ(band.rowBytes, 16U);
  EXPECT_EQ(band.bytes.size(), 48U);
  EXPECT_EQ(test::bytesOfHexBlock(GDI_BAND_CODEC_DOCUMENT).size(), 48U);
}

TEST(BandCodecDocument, ItsWorkedExampleDecodesToTheRowsThatItTells) {
  const Band band = rowsOfTheDocument();
  const std::vector<std::uint8_t> stream = test::bytesOfHexBlock(GDI_BAND_CODEC_DOCUMENT);
  std::vector<std::uint8_t> rows(band.bytes.size());
  std::vector<std::uint8_t> rowBuffer(band.stride(), 0xAA);
  const auto words = qbx_DeCompress_PC4SC4(stream, rows, band.rowBytes,
                                           static_cast<std::int32_t>(band.rows), rowBuffer);
  ASSERT_TRUE(words.has_value());
  EXPECT_EQ(2 * *words, stream.size() - 8) << "the trailer follows";
  EXPECT_EQ(rows, band.bytes);
}

TEST(BandCodecDocument, ItsWorkedExampleIsWhatTheEncoderMakesOfItsRows) {
  EXPECT_EQ(compressed(rowsOfTheDocument(), true), test::bytesOfHexBlock(GDI_BAND_CODEC_DOCUMENT));
}

}  // namespace
}  // namespace gdi::codectest
