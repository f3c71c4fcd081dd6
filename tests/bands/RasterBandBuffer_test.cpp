// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "bands/RasterBandBuffer.h"

#include <array>
#include <cstddef>
#include <filesystem>
#include <limits>
#include <string>
#include <vector>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include "tests/bands/band_buffer_test.h"

namespace gdi {
namespace {

using BandLayout = BandBuffer;

TEST_F(BandLayout, TheLastBandIsShort) {
  const auto buffer = makePage(false);
  ASSERT_NE(buffer, nullptr);
  EXPECT_EQ(buffer->totalBands(), 4);
  EXPECT_EQ(buffer->bandHeightForIndex(0), 32);
  EXPECT_EQ(buffer->bandHeightForIndex(1), 32);
  EXPECT_EQ(buffer->bandHeightForIndex(2), 32);
  EXPECT_EQ(buffer->bandHeightForIndex(3), 4);
  writeLines(*buffer, 0, 99);
  EXPECT_EQ(*buffer->band(3), 96);
  EXPECT_EQ(buffer->band(3), buffer->rasterLine(96));
}

TEST_F(BandLayout, AHeightOfWholeBandsHasNoShortBand) {
  const auto buffer = make(64, kRowBytes, 32);
  ASSERT_NE(buffer, nullptr);
  EXPECT_EQ(buffer->totalBands(), 2);
  EXPECT_EQ(buffer->bandHeightForIndex(1), 32);
}

TEST_F(BandLayout, AnA4PageAt600DpiHas28BandsTheLastOf104Rows) {
  const auto buffer = make(7016, 640, 256);
  ASSERT_NE(buffer, nullptr);
  EXPECT_EQ(buffer->totalBands(), 28);
  EXPECT_EQ(buffer->bandHeightForIndex(27), 104);
  EXPECT_EQ(std::filesystem::file_size(scratch_), 7016U * 640U);
}

TEST_F(BandLayout, ABandHigherThanThePageIsThePage) {
  const auto buffer = make(3, kRowBytes, std::numeric_limits<int>::max());
  ASSERT_NE(buffer, nullptr);
  EXPECT_EQ(buffer->totalBands(), 1);
  EXPECT_EQ(buffer->bandHeightForIndex(0), 3);
  writeLines(*buffer, 0, 2);
  EXPECT_NE(buffer->band(0), nullptr);
}

TEST_F(BandBuffer, NotFlippedABandIsHandedOutWhenItsLastLineIsApproved) {
  const auto buffer = makePage(false);
  ASSERT_NE(buffer, nullptr);
  writeLines(*buffer, 0, 30);
  EXPECT_EQ(buffer->band(0), nullptr);
  writeLines(*buffer, 31, 31);
  EXPECT_NE(buffer->band(0), nullptr);
  EXPECT_EQ(buffer->band(1), nullptr);
  writeLines(*buffer, 32, 98);
  EXPECT_NE(buffer->band(2), nullptr);
  EXPECT_EQ(buffer->band(3), nullptr);
  writeLines(*buffer, 99, 99);
  EXPECT_NE(buffer->band(3), nullptr);
}

TEST_F(BandBuffer, NotFlippedTheRowsAreInRasterOrder) {
  const auto buffer = makePage(false);
  ASSERT_NE(buffer, nullptr);
  writeLines(*buffer, 0, 99);
  const std::vector<int> rows = rowsInFile();
  ASSERT_EQ(rows.size(), 100U);
  for (int row = 0; row < 100; ++row) {
    EXPECT_EQ(rows[static_cast<std::size_t>(row)], row);
  }
}

TEST_F(BandBuffer, FlippedTheHighestBandIsCompleteFirstAndBand0Last) {
  const auto buffer = makePage(true);
  ASSERT_NE(buffer, nullptr);
  writeLines(*buffer, 0, 2);
  EXPECT_EQ(buffer->band(3), nullptr);
  writeLines(*buffer, 3, 3);
  ASSERT_NE(buffer->band(3), nullptr);
  EXPECT_EQ(*buffer->band(3), 3);  // row 96 holds line 99 - 96
  EXPECT_EQ(buffer->band(2), nullptr);
  writeLines(*buffer, 4, 98);
  EXPECT_NE(buffer->band(1), nullptr);
  EXPECT_EQ(buffer->band(0), nullptr);
  writeLines(*buffer, 99, 99);
  EXPECT_NE(buffer->band(0), nullptr);
}

TEST_F(BandBuffer, FlippedLine0IsWrittenToRow99) {
  const auto buffer = makePage(true);
  ASSERT_NE(buffer, nullptr);
  writeLines(*buffer, 0, 99);
  const std::vector<int> rows = rowsInFile();
  ASSERT_EQ(rows.size(), 100U);
  EXPECT_EQ(rows[99], 0);
  for (int row = 0; row < 100; ++row) {
    EXPECT_EQ(rows[static_cast<std::size_t>(row)], 99 - row);
  }
}

TEST_F(BandBuffer, BandsMinus1AndTotalBandsAreNull) {
  const auto buffer = makePage(false);
  ASSERT_NE(buffer, nullptr);
  writeLines(*buffer, 0, 99);
  EXPECT_EQ(buffer->band(-1), nullptr);
  EXPECT_EQ(buffer->band(4), nullptr);
  EXPECT_EQ(buffer->band(std::numeric_limits<int>::max()), nullptr);
}

TEST_F(BandBuffer, AnUnexpectedLineAssertsAndLeavesTheCounter) {
  const auto buffer = make(6, kRowBytes, 6);
  ASSERT_NE(buffer, nullptr);
  writeLines(*buffer, 0, 3);
  const std::size_t before = messages().size();
  buffer->approveRasterLine(5);
  ASSERT_EQ(messages().size(), before + 1);
  EXPECT_EQ(messages().back(), "ASSERT: RasterBandBuffer: Approving non-sequential raster line");
  buffer->approveRasterLine(4);
  EXPECT_EQ(messages().size(), before + 1);
  EXPECT_EQ(buffer->band(0), nullptr);
  buffer->approveRasterLine(5);
  EXPECT_NE(buffer->band(0), nullptr);
}

TEST_F(BandBuffer, FlippedAnUnexpectedLineAssertsWithTheExpectedLineNegated) {
  const auto buffer = make(6, kRowBytes, 6);
  ASSERT_NE(buffer, nullptr);
  buffer->setFlipped(true);
  writeLines(*buffer, 0, 3);
  buffer->approveRasterLine(5);
  EXPECT_EQ(messages().back(),
            "ASSERT: RasterBandBuffer: Approving non-sequential raster line, "
            "expected: -4, actual: 5");
  buffer->approveRasterLine(4);
  EXPECT_EQ(buffer->band(0), nullptr);
  buffer->approveRasterLine(5);
  EXPECT_NE(buffer->band(0), nullptr);
}

TEST_F(BandBuffer, ASkippedLineHoldsBackEveryLaterBand) {
  const auto buffer = makePage(false);
  ASSERT_NE(buffer, nullptr);
  writeLines(*buffer, 0, 31);
  writeLines(*buffer, 33, 99);
  EXPECT_NE(buffer->band(0), nullptr);
  EXPECT_EQ(buffer->band(1), nullptr);
  EXPECT_EQ(buffer->band(3), nullptr);
}

TEST_F(BandBuffer, CreationAndFlippingAreLogged) {
  const auto buffer = makePage(true);
  ASSERT_NE(buffer, nullptr);
  const std::vector<std::string> logged = messages();
  ASSERT_EQ(logged.size(), 5U);
  EXPECT_EQ(logged[0],
            "RasterBandBuffer initWithPixelHeight: height: 100, rowBytes: 16, bandHeight: 32, "
            "path: " +
                scratch_.string());
  EXPECT_EQ(logged[1], "RasterBandBuffer initWithPixelHeight: totalBands: 4, fileSize: 1600");
  EXPECT_EQ(logged[4], "RasterBandBuffer setFlipped: YES, rasterCount: 100, pixelHeight: 100");
}

TEST_F(BandBuffer, TakingTheFlippingBackLeavesTheCounterAsItIs) {
  const auto buffer = makePage(true);
  ASSERT_NE(buffer, nullptr);
  buffer->setFlipped(false);
  EXPECT_EQ(messages().back(),
            "RasterBandBuffer setFlipped: NO, rasterCount: 100, pixelHeight: 100");
}

TEST_F(BandBuffer, TheTagStartsAt0AndThePathIsTheScratchFiles) {
  const auto buffer = makePage(false);
  ASSERT_NE(buffer, nullptr);
  EXPECT_EQ(buffer->tag(), 0);
  buffer->setTag(-7);
  EXPECT_EQ(buffer->tag(), -7);
  EXPECT_STREQ(buffer->path(), scratch_.c_str());
}

TEST_F(BandBuffer, ReleasingTheBufferLeavesTheFileOnDisk) {
  makePage(false).reset();
  EXPECT_EQ(std::filesystem::file_size(scratch_), 1600U);
}

TEST_F(BandBuffer, NumbersOutOfRangeAreRefusedWithoutAFile) {
  for (const auto& [height, rowBytes, bandHeight] :
       {std::array{-1, 16, 256}, std::array{100, -16, 256}, std::array{100, 16, 0},
        std::array{100, 16, -1}, std::array{32768, 65536, 256}, std::array{65536, 65536, 256},
        std::array{-1, -1, 1}}) {
    EXPECT_EQ(make(height, rowBytes, bandHeight), nullptr);
    EXPECT_EQ(messages().back(), "RasterBandBuffer initWithPixelHeight: numbers out of range");
  }
  EXPECT_FALSE(std::filesystem::exists(scratch_));
}

TEST_F(BandBuffer, NumbersOutOfRangeAreLoggedWithTheLow32BitsOfTheSize) {
  // 32,768 x 65,536 is 2^31, 65,536 x 65,537 is 2^32 + 65,536.
  EXPECT_EQ(make(32768, 65536, 256), nullptr);
  EXPECT_EQ(make(65536, 65537, 256), nullptr);
  EXPECT_EQ(make(-300, 16, 256), nullptr);
  const std::string start = "RasterBandBuffer initWithPixelHeight: ";
  const std::string path = ", path: " + scratch_.string();
  EXPECT_EQ(messages(), (std::vector<std::string>{
                            start + "height: 32768, rowBytes: 65536, bandHeight: 256" + path,
                            start + "totalBands: 128, fileSize: -2147483648",
                            start + "numbers out of range",
                            start + "height: 65536, rowBytes: 65537, bandHeight: 256" + path,
                            start + "totalBands: 256, fileSize: 65536",
                            start + "numbers out of range",
                            start + "height: -300, rowBytes: 16, bandHeight: 256" + path,
                            start + "totalBands: 0, fileSize: -4800",
                            start + "numbers out of range",
                        }));
}

TEST_F(BandBuffer, WithoutABandHeightNoBandsAreCounted) {
  EXPECT_EQ(make(100, 16, 0), nullptr);
  const std::string start = "RasterBandBuffer initWithPixelHeight: ";
  EXPECT_EQ(messages(),
            (std::vector<std::string>{
                start + "height: 100, rowBytes: 16, bandHeight: 0, path: " + scratch_.string(),
                start + "numbers out of range",
            }));
}

TEST_F(BandBuffer, AFileAboveTheLargestSizeIsRefused) {
  EXPECT_EQ(make(400'000'001, 1, 256), nullptr);
  EXPECT_FALSE(std::filesystem::exists(scratch_));
}

TEST_F(BandBuffer, AFileThatCannotBeMadeIsRefused) {
  const std::string path = folder_ / "missing" / "plane";
  EXPECT_EQ(RasterBandBuffer::initWithPixelHeight(100, 16, 32, path.c_str()), nullptr);
}

TEST_F(BandBuffer, AFileThatIsNotMappedIsRefused) {
  constexpr int sealFutureWrite = 0x10;
  const int descriptor = memfd_create("plane", MFD_CLOEXEC | MFD_ALLOW_SEALING);
  if (fcntl(descriptor, F_ADD_SEALS, sealFutureWrite) != 0) {
    (void)close(descriptor);
    GTEST_SKIP() << "no file at hand that cannot be mapped for writing";
  }
  const std::string path = "/proc/self/fd/" + std::to_string(descriptor);
  EXPECT_EQ(RasterBandBuffer::initWithPixelHeight(100, 16, 32, path.c_str()), nullptr);
  EXPECT_EQ(messages().back(), "RasterBandBuffer initWithPixelHeight: scratch file not mapped");
  (void)close(descriptor);
}

TEST_F(BandBuffer, APlaneOfNoRowsHasNoBands) {
  const auto buffer = make(0, kRowBytes, 256);
  ASSERT_NE(buffer, nullptr);
  EXPECT_EQ(buffer->totalBands(), 0);
  EXPECT_EQ(buffer->band(0), nullptr);
}

}  // namespace
}  // namespace gdi
