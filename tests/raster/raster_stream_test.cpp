// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The raster stream as libcups reads it, from files that libcups wrote.

#include "raster/raster_stream.h"

#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "tests/filter/CleanSignals.h"
#include "tests/raster/RecordingFilter.h"
#include "tests/support/DebugLogCapture.h"
#include "tests/support/TemporaryFolder.h"

namespace gdi {
namespace {

using test::Calls;
using test::Line;
using test::pageOf;

// An open file; closed at the end.
class Descriptor {
 public:
  Descriptor(const std::filesystem::path& file, int flags)
      : value_(open(file.c_str(), flags | O_CLOEXEC, 0600)) {}
  ~Descriptor() { close(value_); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  [[nodiscard]] int get() const { return value_; }

 private:
  int value_;
};

void writeRaster(const std::filesystem::path& file, const std::vector<test::Page>& pages) {
  const Descriptor descriptor(file, O_WRONLY | O_CREAT | O_TRUNC);
  cups_raster_t* raster = cupsRasterOpen(descriptor.get(), CUPS_RASTER_WRITE);
  ASSERT_NE(raster, nullptr);
  for (const test::Page& page : pages) {
    cups_page_header2_t header{};
    header.cupsWidth = page.header.cupsWidth;
    header.cupsHeight = page.header.cupsHeight;
    header.cupsBitsPerColor = page.header.cupsBitsPerColor;
    header.cupsBitsPerPixel = page.header.cupsBitsPerPixel;
    header.cupsBytesPerLine = page.header.cupsBytesPerLine;
    header.cupsColorSpace = page.header.cupsBitsPerPixel == 8 ? CUPS_CSPACE_K : CUPS_CSPACE_CMYK;
    header.cupsNumColors = page.header.cupsBitsPerPixel / 8;
    header.HWResolution[0] = 600;
    header.PageSize[1] = 842;
    header.cupsRowStep = 9;
    ASSERT_NE(cupsRasterWriteHeader2(raster, &header), 0U);
    for (Line line : page.lines) {
      ASSERT_EQ(cupsRasterWritePixels(raster, line.data(), static_cast<unsigned>(line.size())),
                line.size());
    }
  }
  cupsRasterClose(raster);
}

class CupsStream : public testing::Test {
 protected:
  // A file that holds these pages.
  std::filesystem::path fileOf(const std::vector<test::Page>& pages) {
    std::filesystem::path file = folder_.path() / "raster";
    writeRaster(file, pages);
    return file;
  }
  test::TemporaryFolder folder_;
};

TEST_F(CupsStream, GivesBackHeadersAndLinesInOrder) {
  const Descriptor input(
      fileOf({pageOf(3, 1, {{1, 2, 3}, {4, 5, 6}}), pageOf(1, 4, {{7, 8, 9, 10}})}), O_RDONLY);
  const std::unique_ptr<RasterStream> stream = openRasterStream(input.get());
  cups_page_header_t header{};
  Line line(3);
  ASSERT_TRUE(stream->readHeader(header));
  EXPECT_EQ(header.cupsWidth, 3U);
  EXPECT_EQ(header.cupsHeight, 2U);
  EXPECT_EQ(header.cupsBitsPerPixel, 8U);
  EXPECT_EQ(header.HWResolution[0], 600U);
  EXPECT_EQ(header.PageSize[1], 842U);
  EXPECT_EQ(header.cupsRowStep, 9U);
  EXPECT_NE(stream->readPixels(line), 0U);
  EXPECT_EQ(line, (Line{1, 2, 3}));
  EXPECT_NE(stream->readPixels(line), 0U);
  EXPECT_EQ(line, (Line{4, 5, 6}));
  ASSERT_TRUE(stream->readHeader(header));
  EXPECT_EQ(header.cupsBitsPerPixel, 32U);
  line.resize(4);
  EXPECT_NE(stream->readPixels(line), 0U);
  EXPECT_EQ(line, (Line{7, 8, 9, 10}));
  EXPECT_FALSE(stream->readHeader(header));
}

TEST_F(CupsStream, TheLastHeaderIsKeptAfterTheEnd) {
  const Descriptor input(fileOf({pageOf(3, 1, {{1, 2, 3}})}), O_RDONLY);
  const std::unique_ptr<RasterStream> stream = openRasterStream(input.get());
  cups_page_header_t header{};
  Line line(3);
  ASSERT_TRUE(stream->readHeader(header));
  stream->readPixels(line);
  EXPECT_FALSE(stream->readHeader(header));
  EXPECT_EQ(header.cupsWidth, 3U);
  EXPECT_EQ(header.cupsRowStep, 9U);
}

TEST_F(CupsStream, ALineBeyondThePageIsNotRead) {
  const Descriptor input(fileOf({pageOf(3, 1, {{1, 2, 3}})}), O_RDONLY);
  const std::unique_ptr<RasterStream> stream = openRasterStream(input.get());
  cups_page_header_t header{};
  Line line(3);
  ASSERT_TRUE(stream->readHeader(header));
  EXPECT_NE(stream->readPixels(line), 0U);
  EXPECT_EQ(stream->readPixels(line), 0U);
}

TEST_F(CupsStream, WithoutAHeaderHoldsNoPage) {
  for (const char* contents : {"", "R", "RaS3", "this is no raster stream"}) {
    const Descriptor input(folder_.write("bad", contents), O_RDONLY);
    cups_page_header_t header{};
    header.cupsWidth = 77;
    EXPECT_FALSE(openRasterStream(input.get())->readHeader(header)) << contents;
    EXPECT_EQ(header.cupsWidth, 77U) << contents;
  }
}

TEST_F(CupsStream, OfNoFileHoldsNoPageAndNoLine) {
  const std::unique_ptr<RasterStream> stream = openRasterStream(-1);
  cups_page_header_t header{};
  Line line(3);
  EXPECT_FALSE(stream->readHeader(header));
  EXPECT_EQ(stream->readPixels(line), 0U);
}

TEST_F(CupsStream, LeavesTheDescriptorOpen) {
  const Descriptor input(fileOf({pageOf(3, 1, {{1, 2, 3}})}), O_RDONLY);
  openRasterStream(input.get()).reset();
  EXPECT_EQ(lseek(input.get(), 0, SEEK_SET), 0);
}

// The page loop on a stream of libcups.
class CupsStreamJob : public CupsStream {
 protected:
  bool run(const std::filesystem::path& file) {
    const Descriptor input(file, O_RDONLY);
    filter_.readsSource = true;
    filter_.sourceFD = input.get();
    testing::internal::CaptureStderr();
    const bool succeeded = filter_.run();
    (void)testing::internal::GetCapturedStderr();
    return succeeded;
  }
  const test::CleanSignals signals_;
  const test::DebugLogCapture log_;
  test::RecordingFilter filter_;
};

TEST_F(CupsStreamJob, SendsEveryLineOfEveryPage) {
  EXPECT_TRUE(run(fileOf({pageOf(2, 1, {{1, 2}, {3, 4}}), pageOf(1, 4, {{5, 6, 7, 8}})})));
  EXPECT_EQ(filter_.lines, (std::vector<Line>{{1, 2}, {3, 4}, {5, 6, 7, 8, 0, 0, 0, 0}}));
  EXPECT_EQ(filter_.cupsPageHeader.cupsBitsPerPixel, 32U);
}

TEST_F(CupsStreamJob, OfAnEmptyFileHasNoPagesAndSucceeds) {
  EXPECT_TRUE(run(folder_.write("empty", "")));
  EXPECT_EQ(filter_.calls, (Calls{"startJob", "endJob"}));
}

TEST_F(CupsStreamJob, OfACutLineFailsItsPageAndEnds) {
  const std::filesystem::path file = fileOf({pageOf(2, 1, {{1, 2}, {3, 4}})});
  std::filesystem::resize_file(file, std::filesystem::file_size(file) - 1);
  EXPECT_FALSE(run(file));
  EXPECT_EQ(filter_.calls,
            (Calls{"startJob", "startPage 0", "sendRaster 0", "endPage 0", "endJob"}));
  EXPECT_EQ(log_.count("ASSERT: RasterFilter run: cupsRasterReadPixels failed"), 1U);
}

TEST_F(CupsStreamJob, OfAMissingLineFailsItsPageAndEnds) {
  const std::filesystem::path file = fileOf({pageOf(2, 1, {{1, 2}, {3, 4}})});
  std::filesystem::resize_file(file, std::filesystem::file_size(file) - 2);
  EXPECT_FALSE(run(file));
  EXPECT_EQ(filter_.calls,
            (Calls{"startJob", "startPage 0", "sendRaster 0", "endPage 0", "endJob"}));
}

TEST_F(CupsStreamJob, OfACutSecondHeaderEndsAfterTheFirstPage) {
  const std::filesystem::path file = fileOf({pageOf(2, 1, {{1, 2}}), pageOf(2, 1, {{3, 4}})});
  std::filesystem::resize_file(file, std::filesystem::file_size(file) - 100);
  EXPECT_TRUE(run(file));
  EXPECT_EQ(filter_.calls,
            (Calls{"startJob", "startPage 0", "sendRaster 0", "endPage 0", "endJob"}));
  EXPECT_EQ(filter_.cupsPageHeader.cupsWidth, 2U);
}

#ifdef F_GETPIPE_SZ
TEST(RasterStreamPipe, TakesMoreThanAPipeUsually) {
  std::array<int, 2> ends{};
  ASSERT_EQ(pipe(ends.data()), 0);
  constexpr int kBytes = 1 << 18;
  const bool mayGrow = fcntl(ends[0], F_SETPIPE_SZ, kBytes) >= kBytes;
  ASSERT_GE(fcntl(ends[0], F_SETPIPE_SZ, 4096), 4096);
  close(ends[1]);  // an empty stream
  const auto stream = openRasterStream(ends[0]);
  if (mayGrow) {
    EXPECT_GE(fcntl(ends[0], F_GETPIPE_SZ), kBytes);
  }
  cups_page_header_t header{};
  EXPECT_FALSE(stream->readHeader(header));
  close(ends[0]);
}
#endif

}  // namespace
}  // namespace gdi
