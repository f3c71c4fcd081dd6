// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Jobs that are cancelled, and outputs that take no more bytes.

#include <chrono>
#include <csignal>
#include <span>
#include <thread>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/program/cups_raster.h"
#include "tests/program/filter_process.h"

namespace gdi::programtest {
namespace {

constexpr char kRecoverable[] = "ERROR: recoverable: Unable to communicate with printer\n";

std::vector<std::uint8_t> noisyRaster() {
  const std::vector<RasterPage> pages{
      {.width = 2000, .height = 600, .channels = 4, .sample = noise}};
  return rasterOf(pages);
}

// Waits until the pipe takes no more bytes, so that its writer is stuck.
bool waitUntilFull(int reader) {
  int waiting = -1;
  for (int tries = 0; tries < 1000; ++tries) {
    const int before = waiting;
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    (void)ioctl(reader, FIONREAD, &waiting);
    if (waiting > 0 && waiting == before) {
      return true;
    }
  }
  return false;
}

TEST(Cancellation, ASIGTERMInAPageEndsTheJobWithStatusOne) {
  FilterProcess filter;
  const std::vector<std::uint8_t> whole = noisyRaster();
  const std::size_t firstLines = whole.size() / 2;
  filter.raster.assign(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(firstLines));
  filter.debugLog = true;
  filter.start(true);
  ASSERT_TRUE(filter.waitForErrors("Processing page 1"));
  filter.send(SIGTERM);
  filter.feed(std::span(whole).subspan(firstLines, 20000));
  filter.closeInput();
  const FilterResult result = filter.wait();
  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_NE(result.debugLog.find("Detected SIGTERM"), std::string::npos);
  EXPECT_NE(result.debugLog.find("rasterToGDI ending with result 1"), std::string::npos);
  EXPECT_TRUE(result.leftInTmp.empty());
}

TEST(Cancellation, AFullDiskIsReportedUntilTheJobIsCancelled) {
  FilterProcess filter;
  filter.raster = noisyRaster();
  filter.outputPath = "/dev/full";
  filter.debugLog = true;
  filter.start();
  ASSERT_TRUE(filter.waitForErrors(std::string(kRecoverable) + kRecoverable));
  filter.send(SIGTERM);
  const FilterResult result = filter.wait();
  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_NE(result.debugLog.find(
                "ASSERT: GDIFilter sendData: failed to write data: No space left on device\n"),
            std::string::npos);
  EXPECT_NE(result.debugLog.find(") ERROR: recoverable: Unable to communicate with printer\n"),
            std::string::npos);
  EXPECT_TRUE(result.leftInTmp.empty());
}

// So small a job stays in the output channel until it is flushed at the end.
TEST(Cancellation, AFullDiskThatShowsOnlyAtTheEndIsReportedToo) {
  FilterProcess filter;
  const std::vector<RasterPage> pages{{.width = 16, .height = 2}};
  filter.raster = rasterOf(pages);
  filter.outputPath = "/dev/full";
  filter.start();
  ASSERT_TRUE(filter.waitForErrors(kRecoverable));
  filter.send(SIGTERM);
  EXPECT_EQ(filter.wait().exitStatus, 1);
}

TEST(Cancellation, AClosedPipeIsReportedInTheLanguageOfTheJob) {
  FilterProcess filter;
  const std::vector<std::uint8_t> whole = noisyRaster();
  const std::size_t firstLines = 20000;  // bytes; the first band goes out at line 256
  const std::size_t firstBand = sizeof(cups_page_header2_t) + 258 * 4 * 2000;
  filter.raster.assign(whole.begin(), whole.begin() + firstLines);
  const std::string pipePath = (filter.folder() / "pipe").string();
  ASSERT_EQ(mkfifo(pipePath.c_str(), 0600), 0);
  const int reader = open(pipePath.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  ASSERT_GE(reader, 0);
  filter.outputPath = pipePath;
  filter.environment["LANG"] = "de";
  filter.start(true);
  ASSERT_TRUE(filter.waitForErrors("Seite 1"));
  (void)close(reader);
  filter.feed(std::span(whole).subspan(firstLines, firstBand - firstLines));
  filter.closeInput();
  ASSERT_TRUE(filter.waitForErrors("ERROR: recoverable: "));
  EXPECT_EQ(filter.errorsSoFar().find("Unable to communicate"), std::string::npos);
  filter.send(SIGTERM);
  const FilterResult result = filter.wait();
  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_TRUE(result.leftInTmp.empty());
}

TEST(Cancellation, ABlockedWriteOutlastsACancellation) {
  FilterProcess filter;
  filter.raster = noisyRaster();
  const std::string pipePath = (filter.folder() / "pipe").string();
  ASSERT_EQ(mkfifo(pipePath.c_str(), 0600), 0);
  const int reader = open(pipePath.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  ASSERT_GE(reader, 0);
  filter.outputPath = pipePath;
  filter.start();
  ASSERT_TRUE(waitUntilFull(reader));
  filter.send(SIGTERM);
  std::this_thread::sleep_for(std::chrono::milliseconds(100));
  EXPECT_TRUE(filter.isRunning());
  (void)close(reader);  // with nobody left to write to, the write ends
  const FilterResult result = filter.wait();
  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_TRUE(result.leftInTmp.empty());
}

TEST(Cancellation, AClosedOutputTakesNoByteAndNeitherDoesTheLogInItsPlace) {
  FilterProcess filter;
  const std::vector<RasterPage> pages{{.width = 16, .height = 2}};
  filter.raster = rasterOf(pages);
  filter.closed = {STDOUT_FILENO};
  filter.debugLog = true;
  filter.start();
  ASSERT_TRUE(filter.waitForErrors(kRecoverable));
  filter.send(SIGTERM);
  const FilterResult result = filter.wait();
  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_EQ(result.debugLog.find("GDIB"), std::string::npos);
}

TEST(Cancellation, ClosedInputAndErrorsLeaveTheJobWhatItIs) {
  FilterProcess filter;
  const std::vector<RasterPage> pages{{.width = 16, .height = 2}};
  filter.raster = rasterOf(pages);
  filter.rasterAsFile = true;
  filter.closed = {STDIN_FILENO, STDERR_FILENO};
  filter.debugLog = true;
  const FilterResult result = filter.run();
  EXPECT_EQ(result.exitStatus, 0);
  EXPECT_FALSE(result.output.empty());
  EXPECT_EQ(result.debugLog.find("INFO: "), std::string::npos);
}

TEST(Cancellation, BeforeTheFirstPageNoPageIsRead) {
  FilterProcess filter;
  filter.raster = {};
  filter.start(true);
  ASSERT_TRUE(filter.waitForErrors("INFO: \n"));
  filter.send(SIGTERM);
  filter.closeInput();
  const FilterResult result = filter.wait();
  EXPECT_EQ(result.errors, "INFO: \n");
  EXPECT_EQ(result.exitStatus, 1);
}

}  // namespace
}  // namespace gdi::programtest
