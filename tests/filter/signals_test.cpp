// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "filter/signals.h"

#include <array>

#include <gtest/gtest.h>

#include "filter/CUPSFilter.h"
#include "tests/filter/CleanSignals.h"
#include "tests/support/DebugLogCapture.h"

namespace gdi {
namespace {

using Lines = std::vector<std::string>;

class Signals : public testing::Test {
 protected:
  test::CleanSignals clean_;
};

TEST_F(Signals, TerminationSetsItsFlagAndTheProcessGoesOn) {
  installSignalHandlers();
  ASSERT_EQ(raise(SIGTERM), 0);
  EXPECT_EQ(gSigTerm, 1);
  EXPECT_EQ(gSigPipe, 0);
}

TEST_F(Signals, ABrokenPipeSetsItsFlagAndTheProcessGoesOn) {
  installSignalHandlers();
  ASSERT_EQ(raise(SIGPIPE), 0);
  EXPECT_EQ(gSigPipe, 1);
  EXPECT_EQ(gSigTerm, 0);
}

TEST_F(Signals, AnotherSignalSetsNoFlag) {
  signalHandler(SIGHUP);
  EXPECT_EQ(gSigTerm, 0);
  EXPECT_EQ(gSigPipe, 0);
}

TEST_F(Signals, HandlersRestartSystemCallsAndBlockNoOtherSignal) {
  installSignalHandlers();
  for (const int signal : std::array{SIGTERM, SIGPIPE}) {
    struct sigaction action {};
    ASSERT_EQ(sigaction(signal, nullptr, &action), 0);
    EXPECT_EQ(action.sa_flags & (SA_RESTART | SA_SIGINFO), SA_RESTART | SA_SIGINFO);
    EXPECT_EQ(sigismember(&action.sa_mask, SIGTERM), 0);
    EXPECT_EQ(sigismember(&action.sa_mask, SIGPIPE), 0);
    EXPECT_EQ(sigismember(&action.sa_mask, SIGINT), 0);
  }
}

TEST_F(Signals, WithoutASignalNothingIsCancelledAndNothingIsLogged) {
  const test::DebugLogCapture log;
  EXPECT_FALSE(CUPSFilter().cancelled());
  EXPECT_EQ(log.text(), "");
}

TEST_F(Signals, TerminationCancelsTheJob) {
  const test::DebugLogCapture log;
  gSigTerm = 1;
  EXPECT_TRUE(CUPSFilter().cancelled());
  EXPECT_EQ(log.lines(), Lines{"Detected SIGTERM"});
}

TEST_F(Signals, ABrokenPipeAloneIsNoCancellation) {
  const test::DebugLogCapture log;
  gSigPipe = 1;
  EXPECT_FALSE(CUPSFilter().cancelled());
  EXPECT_EQ(log.lines(), Lines{"Detected SIGPIPE"});
}

TEST_F(Signals, BothAreLoggedTerminationFirstEachTimeTheJobAsks) {
  const test::DebugLogCapture log;
  gSigTerm = 1;
  gSigPipe = 1;
  EXPECT_TRUE(CUPSFilter().cancelled());
  EXPECT_TRUE(CUPSFilter().cancelled());
  EXPECT_EQ(log.lines(), (Lines{"Detected SIGTERM", "Detected SIGPIPE", "Detected SIGTERM",
                                "Detected SIGPIPE"}));
}

}  // namespace
}  // namespace gdi
