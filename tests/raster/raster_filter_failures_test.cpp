// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The page loop when something fails: where it stops, and that every begun page and the job end.

#include <cstdlib>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/resource.h>

#include "tests/filter/CleanSignals.h"
#include "tests/raster/RecordingFilter.h"
#include "tests/support/DebugLogCapture.h"

namespace gdi {
namespace {

using Lines = std::vector<std::string>;
using test::Calls;
using test::pageOf;

constexpr const char* kReadFailed = "ASSERT: RasterFilter run: cupsRasterReadPixels failed";
constexpr const char* kSendFailed = "ASSERT: sendRaster failed";
constexpr const char* kPageTold = "INFO: \nINFO: Processing page 1\n";

// Two pages of two lines each, unless a test says otherwise.
class FailingPageLoop : public testing::Test {
 protected:
  FailingPageLoop() {
    filter_.pages = {pageOf(2, 1, {{1, 2}, {3, 4}}), pageOf(2, 1, {{5, 6}, {7, 8}})};
  }

  // Runs the job, which is to fail, and gives its calls; what it told the spooler is in `told_`.
  Calls callsOfFailedRun() {
    testing::internal::CaptureStderr();
    EXPECT_FALSE(filter_.run());
    told_ = testing::internal::GetCapturedStderr();
    EXPECT_EQ(log_.lines().back(), "RasterFilter run: exiting - result: 0");
    return filter_.calls;
  }
  void terminateDuring(const std::string& moment) {
    filter_.during = [moment](const std::string& call) {
      if (call == moment) {
        gSigTerm = 1;
      }
    };
  }

  const test::CleanSignals signals_;
  const test::DebugLogCapture log_;
  test::RecordingFilter filter_;
  std::string told_;
};

TEST_F(FailingPageLoop, AJobThatCannotStartReadsNoPageAndEnds) {
  filter_.failing = "startJob";
  EXPECT_EQ(callsOfFailedRun(), (Calls{"open", "startJob", "endJob", "close"}));
  EXPECT_EQ(told_, "INFO: \n");
}

TEST_F(FailingPageLoop, AJobCancelledBeforeItsFirstPageReadsNoneAndEnds) {
  terminateDuring("startJob");
  EXPECT_EQ(callsOfFailedRun(), (Calls{"open", "startJob", "endJob", "close"}));
  EXPECT_EQ(log_.count("Detected SIGTERM"), 1U);
}

TEST_F(FailingPageLoop, AJobWithoutPagesFailsOnlyWithItsEnd) {
  filter_.pages.clear();
  filter_.failing = "endJob";
  EXPECT_EQ(callsOfFailedRun(), (Calls{"open", "startJob", "header", "endJob", "close"}));
}

TEST_F(FailingPageLoop, AHeaderThatIsRefusedFailsItsPageWithoutAStart) {
  filter_.pages[0].header.cupsBitsPerColor = 0;
  EXPECT_EQ(callsOfFailedRun(),
            (Calls{"open", "startJob", "header", "endPage 0", "endJob", "close"}));
  EXPECT_EQ(
      told_,
      "INFO: \nERROR: page 1 cannot be printed: the page header has 0 bits per colour, not 8\n");
  EXPECT_EQ(filter_.pageCount, 1U);
}

TEST_F(FailingPageLoop, ALineTooLongForItsPageFailsItWithoutAStart) {
  filter_.pages[1].header.cupsBytesPerLine = 3;
  EXPECT_EQ(callsOfFailedRun(),
            (Calls{"open", "startJob", "header", "startPage 0", "pixels", "sendRaster 0", "pixels",
                   "sendRaster 1", "endPage 0", "header", "endPage 1", "endJob", "close"}));
  EXPECT_EQ(told_, std::string(kPageTold) +
                       "ERROR: page 2 cannot be printed: a raster line of 3 bytes does not fit a "
                       "page of 2 pixels with 8 bits per colour\n");
}

TEST_F(FailingPageLoop, SixteenBitsPerColourFailThePageWithoutAStart) {
  filter_.pages[0].header.cupsBitsPerColor = 16;
  filter_.pages[0].header.cupsBitsPerPixel = 16;
  filter_.pages[0].header.cupsBytesPerLine = 4;
  EXPECT_EQ(callsOfFailedRun(),
            (Calls{"open", "startJob", "header", "endPage 0", "endJob", "close"}));
}

TEST_F(FailingPageLoop, ARefusedHeaderIsStillInTheLog) {
  filter_.pages[0].header.cupsBitsPerColor = 0;
  callsOfFailedRun();
  EXPECT_EQ(log_.count("Page header: cupsBitsPerColor = 0"), 1U);
  EXPECT_EQ(log_.count("RasterFilter run: Processed 0 lines"), 0U);
}

TEST_F(FailingPageLoop, APageThatCannotStartReadsNoLineAndEnds) {
  filter_.failing = "startPage 0";
  EXPECT_EQ(callsOfFailedRun(),
            (Calls{"open", "startJob", "header", "startPage 0", "endPage 0", "endJob", "close"}));
  EXPECT_EQ(told_, kPageTold);
  EXPECT_EQ(log_.count("RasterFilter run: Processed 0 lines"), 0U);
}

TEST_F(FailingPageLoop, APageCancelledAtItsStartReadsNoLineAndEnds) {
  terminateDuring("startPage 0");
  EXPECT_EQ(callsOfFailedRun(),
            (Calls{"open", "startJob", "header", "startPage 0", "endPage 0", "endJob", "close"}));
  EXPECT_EQ(log_.count(kReadFailed), 0U);
}

TEST_F(FailingPageLoop, AStreamThatEndsInsideAPageFailsItAndTheJobEnds) {
  filter_.pages[0].lines.pop_back();
  EXPECT_EQ(callsOfFailedRun(), (Calls{"open", "startJob", "header", "startPage 0", "pixels",
                                       "sendRaster 0", "pixels", "endPage 0", "endJob", "close"}));
  EXPECT_EQ(log_.count(kReadFailed), 1U);
  EXPECT_EQ(log_.count("RasterFilter run: Processed 2 lines"), 1U);
  EXPECT_EQ(told_, kPageTold);
  EXPECT_EQ(filter_.pageCount, 1U);
}

TEST_F(FailingPageLoop, ALineReadAfterACancellationIsNotSent) {
  terminateDuring("sendRaster 0");
  EXPECT_EQ(callsOfFailedRun(), (Calls{"open", "startJob", "header", "startPage 0", "pixels",
                                       "sendRaster 0", "pixels", "endPage 0", "endJob", "close"}));
  EXPECT_EQ(log_.count(kReadFailed), 1U);
}

TEST_F(FailingPageLoop, ALineAlreadyBeingReadAtTheCancellationIsStillSent) {
  terminateDuring("pixels");
  EXPECT_EQ(callsOfFailedRun(), (Calls{"open", "startJob", "header", "startPage 0", "pixels",
                                       "sendRaster 0", "pixels", "endPage 0", "endJob", "close"}));
}

TEST_F(FailingPageLoop, ALineThatCannotBeSentEndsItsPageAndTheJob) {
  filter_.failing = "sendRaster 0";
  EXPECT_EQ(callsOfFailedRun(), (Calls{"open", "startJob", "header", "startPage 0", "pixels",
                                       "sendRaster 0", "endPage 0", "endJob", "close"}));
  EXPECT_EQ(log_.count(kSendFailed), 1U);
  EXPECT_EQ(log_.count(kReadFailed), 0U);
  EXPECT_EQ(log_.count("RasterFilter run: Processed 1 lines"), 1U);
  EXPECT_EQ(told_, kPageTold);
}

TEST_F(FailingPageLoop, APageThatCannotEndIsTheLast) {
  filter_.failing = "endPage 0";
  EXPECT_EQ(callsOfFailedRun(),
            (Calls{"open", "startJob", "header", "startPage 0", "pixels", "sendRaster 0", "pixels",
                   "sendRaster 1", "endPage 0", "endJob", "close"}));
}

TEST_F(FailingPageLoop, ACancellationAtThePagesEndMakesItTheLast) {
  terminateDuring("endPage 0");
  EXPECT_EQ(callsOfFailedRun(),
            (Calls{"open", "startJob", "header", "startPage 0", "pixels", "sendRaster 0", "pixels",
                   "sendRaster 1", "endPage 0", "endJob", "close"}));
  EXPECT_EQ(log_.count("Detected SIGTERM"), 1U);
}

TEST_F(FailingPageLoop, AJobThatCannotEndFailsAfterAllItsPages) {
  filter_.failing = "endJob";
  const Calls calls = callsOfFailedRun();
  EXPECT_EQ(filter_.lines.size(), 4U);
  EXPECT_EQ(calls.back(), "close");
  EXPECT_EQ(filter_.pageCount, 2U);
}

TEST_F(FailingPageLoop, ABrokenPipeAloneStopsNothing) {
  gSigPipe = 1;
  testing::internal::CaptureStderr();
  EXPECT_TRUE(filter_.run());
  (void)testing::internal::GetCapturedStderr();
  EXPECT_EQ(filter_.lines.size(), 4U);
}

// Asked before the first page; then at the page's start, after startPage, before each of its two
// lines and after it.
TEST_F(FailingPageLoop, TheSignalsAreAskedForAtFixedPlaces) {
  filter_.pages.pop_back();
  gSigPipe = 1;
  testing::internal::CaptureStderr();
  EXPECT_TRUE(filter_.run());
  (void)testing::internal::GetCapturedStderr();
  EXPECT_EQ(log_.count("Detected SIGPIPE"), 6U);
}

TEST_F(FailingPageLoop, ASignalSeenAtThePagesStartIsLoggedBeforeItsHeader) {
  terminateDuring("header");
  callsOfFailedRun();
  const Lines lines = log_.lines();
  ASSERT_GT(lines.size(), 5U);
  EXPECT_EQ(lines[4], "Detected SIGTERM");
  EXPECT_EQ(lines[5], "Page header: AdvanceDistance = none");
}

#if defined(__SANITIZE_ADDRESS__)
constexpr bool kAddressSanitizer = true;
#elif defined(__has_feature)
constexpr bool kAddressSanitizer = __has_feature(address_sanitizer);
#else
constexpr bool kAddressSanitizer = false;
#endif

TEST_F(FailingPageLoop, ALineThatDoesNotFitInMemoryFailsItsPageWithoutAStart) {
  if (kAddressSanitizer) {
    GTEST_SKIP() << "AddressSanitizer needs more memory for itself than this test leaves";
  }
  filter_.pages = {{test::pageHeader(0x7FFFFFFE, 1, 1), {}}};
  const auto runWithLittleMemory = [this] {
    constexpr rlim_t kOneGiB = 1U << 30U;
    const rlimit limit{kOneGiB, kOneGiB};
    (void)setrlimit(RLIMIT_AS, &limit);
    const bool succeeded = filter_.run();
    const Calls calls{"open", "startJob", "header", "endPage 0", "endJob", "close"};
    std::_Exit(!succeeded && filter_.calls == calls ? 0 : 1);
  };
  EXPECT_EXIT(runWithLittleMemory(), testing::ExitedWithCode(0),
              "ERROR: page 1 cannot be printed: no memory for a raster line of 2147483646 bytes");
}

}  // namespace
}  // namespace gdi
