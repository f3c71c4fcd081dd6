// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Rasters that no good filter would write: refused or ended, never a crash.

#include <algorithm>
#include <cstring>

#include <gtest/gtest.h>

#include "tests/program/cups_raster.h"
#include "tests/program/filter_process.h"

namespace gdi::programtest {
namespace {

constexpr std::size_t kSyncBytes = 4;
// Offsets in a page header as it stands in the stream.
constexpr std::size_t kWidthAt = kSyncBytes + 372;
constexpr std::size_t kHeightAt = kSyncBytes + 376;
constexpr std::size_t kBitsPerColorAt = kSyncBytes + 384;
constexpr std::size_t kBytesPerLineAt = kSyncBytes + 392;
constexpr std::size_t kHeaderBytes = sizeof(cups_page_header2_t);

std::vector<std::uint8_t> noisyRaster(std::uint32_t channels, std::size_t pageCount = 1) {
  const std::vector<RasterPage> pages(
      pageCount, {.width = 64, .height = 300, .channels = channels, .sample = noise});
  return rasterOf(pages);
}

void put(std::vector<std::uint8_t>& raster, std::size_t at, std::uint32_t value) {
  std::memcpy(&raster.at(at), &value, sizeof value);  // the stream is in this host's byte order
}

bool endsTheJob(const FilterResult& result) {
  const std::string mark = "JIDG";
  return result.output.size() >= mark.size() &&
         std::equal(mark.rbegin(), mark.rend(), result.output.rbegin());
}

TEST(BrokenRaster, AStreamCutInsideAPageFailsAfterThatPageAndEndsTheJob) {
  FilterProcess filter;
  filter.raster = noisyRaster(4);
  filter.raster.resize(filter.raster.size() / 2);
  filter.debugLog = true;
  const FilterResult result = filter.run();
  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_NE(result.debugLog.find("ASSERT: RasterFilter run: cupsRasterReadPixels failed\n"),
            std::string::npos);
  EXPECT_TRUE(endsTheJob(result));
  EXPECT_TRUE(result.leftInTmp.empty());
}

TEST(BrokenRaster, SomethingThatIsNoRasterIsAnEmptyJob) {
  FilterProcess filter;
  filter.raster.assign(5000, 0x20);
  const FilterResult result = filter.run();
  EXPECT_EQ(result.exitStatus, 0);
  EXPECT_TRUE(endsTheJob(result));
}

// libcups refuses such a header by itself, which ends the stream as any end does.
TEST(BrokenRaster, NoBitsPerColourNeverStartThePage) {
  FilterProcess filter;
  filter.raster = noisyRaster(1);
  put(filter.raster, kBitsPerColorAt, 0);
  filter.debugLog = true;
  const FilterResult result = filter.run();
  EXPECT_EQ(result.debugLog.find("GDIFilter startPage: "), std::string::npos);
  EXPECT_TRUE(endsTheJob(result));
  if (result.exitStatus == 0) {
    EXPECT_EQ(result.errors, "INFO: \n");
  } else {
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_NE(result.errors.find("ERROR: page 1 cannot be printed: "), std::string::npos);
  }
}

TEST(BrokenRaster, OneBitPerColourFailsThePageBeforeItStarts) {
  FilterProcess filter;
  filter.raster = noisyRaster(1);
  put(filter.raster, kBitsPerColorAt, 1);
  put(filter.raster, kBitsPerColorAt + 4, 1);
  put(filter.raster, kBytesPerLineAt, 8);
  const FilterResult result = filter.run();
  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_NE(result.errors.find("ERROR: page 1 cannot be printed: the page header has 1 bits"),
            std::string::npos)
      << result.errors;
}

TEST(BrokenRaster, LinesWiderThanTheLineBufferFailThePageBeforeItStarts) {
  FilterProcess filter;
  filter.raster = noisyRaster(1);
  put(filter.raster, kWidthAt, 10);
  filter.debugLog = true;
  const FilterResult result = filter.run();
  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_NE(result.errors.find("ERROR: page 1 cannot be printed: a raster line of 64 bytes"),
            std::string::npos)
      << result.errors;
  EXPECT_NE(result.debugLog.find("RasterFilter endPage: "), std::string::npos);
  EXPECT_EQ(result.debugLog.find("GDIFilter startPage: "), std::string::npos);
  EXPECT_TRUE(endsTheJob(result));
}

TEST(BrokenRaster, APageTooWideForTheSeedRowIsRefusedInOneLine) {
  FilterProcess filter;
  const std::vector<RasterPage> pages{{.width = 28672 * 8, .height = 2}};
  filter.raster = rasterOf(pages);
  const FilterResult result = filter.run();
  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_NE(result.errors.find("ERROR: rows of 229376 pixels at 1 bits a pixel are wider than the "
                               "printer takes (28672 bytes); choose a lower quality or smaller "
                               "paper\n"),
            std::string::npos)
      << result.errors;
  EXPECT_TRUE(result.leftInTmp.empty());
}

TEST(BrokenRaster, ThePageThatJustFitsTheSeedRowPrints) {
  FilterProcess filter;
  const std::vector<RasterPage> pages{{.width = 28672 * 8 - 32, .height = 2, .sample = noise}};
  filter.raster = rasterOf(pages);
  const FilterResult result = filter.run();
  EXPECT_EQ(result.exitStatus, 0) << result.errors;
}

TEST(BrokenRaster, AHugeHeightIsRefusedInOneLine) {
  FilterProcess filter;
  filter.raster = noisyRaster(4);
  put(filter.raster, kHeightAt, 0x7FFFFFFF);
  const FilterResult result = filter.run();
  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_NE(result.errors.find("ERROR: "), std::string::npos);
  EXPECT_TRUE(result.leftInTmp.empty());
}

TEST(BrokenRaster, APlaneOverTheScratchFilesLimitIsRefusedAndLeavesNoFile) {
  FilterProcess filter;
  filter.raster = noisyRaster(1);
  put(filter.raster, kHeightAt, 400000000 / 16 + 1);
  const FilterResult result = filter.run();
  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_NE(result.errors.find("ERROR: no scratch file"), std::string::npos) << result.errors;
  EXPECT_TRUE(result.leftInTmp.empty());
}

TEST(BrokenRaster, ThreeChannelsAreRefusedAndLeaveNoFile) {
  FilterProcess filter;
  filter.raster = noisyRaster(3);
  filter.debugLog = true;
  const FilterResult result = filter.run();
  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_NE(result.debugLog.find("ASSERT: PlanarFilter startJob: Color option missing\n"),
            std::string::npos);
  EXPECT_NE(result.errors.find("ERROR: a page of 3 channels cannot be printed: the raster must be "
                               "black (1) or CMYK (4)\n"),
            std::string::npos)
      << result.errors;
  EXPECT_TRUE(result.leftInTmp.empty());
}

// Headers with every 32-bit field set to awkward values, one at a time.
TEST(BrokenRaster, NoHeaderFieldCrashesTheProgram) {
  for (std::size_t at = 256; at + 4 <= 420; at += 4) {
    for (const std::uint32_t value : {0U, 1U, 0xFFFFU, 0x7FFFFFFFU, 0xFFFFFFFFU}) {
      FilterProcess filter;
      const std::vector<RasterPage> pages{{.width = 64, .height = 3, .channels = 4}};
      filter.raster = rasterOf(pages);
      put(filter.raster, kSyncBytes + at, value);
      filter.debugLog = true;
      const FilterResult result = filter.run();
      EXPECT_TRUE(result.exitStatus == 0 || result.exitStatus == 1)
          << "header byte " << at << " = " << value << ": signal " << result.signal << "\n"
          << result.errors;
      EXPECT_TRUE(result.leftInTmp.empty());
    }
  }
}

TEST(BrokenRaster, NoCutCrashesTheProgram) {
  const std::vector<std::uint8_t> whole = noisyRaster(4, 2);
  for (std::size_t cut = 1; cut < whole.size(); cut += cut < kHeaderBytes ? 97 : 9973) {
    FilterProcess filter;
    filter.raster.assign(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(cut));
    const FilterResult result = filter.run();
    EXPECT_TRUE(result.exitStatus.has_value()) << "cut at " << cut;
    EXPECT_TRUE(result.leftInTmp.empty());
  }
}

}  // namespace
}  // namespace gdi::programtest
