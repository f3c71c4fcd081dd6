// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What the filter makes of the job's settings when it runs.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/filter/OpenFilter.h"
#include "tests/support/DebugLogCapture.h"

namespace gdi {
namespace {

using Lines = std::vector<std::string>;

constexpr const char* kCopies = "com.apple.print.PrintSettings.PMCopies..n.";
constexpr const char* kCollate = "com.apple.print.PrintSettings.PMCopyCollate..b.";
constexpr const char* kJobName = "com.apple.print.JobInfo.PMJobName";
constexpr const char* kDuplexing = "com.apple.print.PrintSettings.PMDuplexing..n.";
constexpr const char* kSides = "com.apple.print.PrintSettings.PMTotalSidesImaged..n.";

class JobSettings : public testing::Test {
 protected:
  bool run(const OptionsDict& options) {
    filter_.optionsDict = options;
    return filter_.run();
  }
  test::DebugLogCapture log_;
  test::OpenFilter filter_;
};

TEST_F(JobSettings, AreLoggedInOrder) {
  EXPECT_TRUE(run({{kCopies, "3"}, {kSides, "5"}}));
  EXPECT_EQ(log_.lines(), (Lines{"CUPSFIlter run: ", "copies: 3", "sidesImaged: 5",
                                 "CUPSFIlter run: exiting with result 1"}));
}

TEST_F(JobSettings, AreTakenFromTheirOptions) {
  run({{kCopies, "3"}, {kCollate, "True"}, {kJobName, "Letter to Ann"}, {kSides, "5"}});
  EXPECT_EQ(filter_.copies, 3U);
  EXPECT_TRUE(filter_.collate);
  EXPECT_EQ(filter_.jobName, "Letter to Ann");
  EXPECT_EQ(filter_.sidesImaged, 5U);
}

TEST_F(JobSettings, WithoutOptionsAreOneCopyOfOneSide) {
  EXPECT_TRUE(run({}));
  EXPECT_EQ(filter_.copies, 1U);
  EXPECT_EQ(filter_.sidesImaged, 1U);
  EXPECT_FALSE(filter_.collate);
  EXPECT_EQ(filter_.jobName, std::nullopt);
  EXPECT_EQ(log_.count("copies: 0"), 1U);
  EXPECT_EQ(log_.count("sidesImaged: 0"), 1U);
}

TEST_F(JobSettings, NoCopiesAreOneCopyButAreLoggedAsGiven) {
  run({{kCopies, "0"}, {kSides, "0"}});
  EXPECT_EQ(filter_.copies, 1U);
  EXPECT_EQ(filter_.sidesImaged, 1U);
  EXPECT_EQ(log_.count("copies: 0"), 1U);
  EXPECT_EQ(log_.count("sidesImaged: 0"), 1U);
}

TEST_F(JobSettings, CopiesBelowNoneAreLoggedAsGivenAndKept) {
  run({{kCopies, "-1"}});
  EXPECT_EQ(log_.count("copies: -1"), 1U);
  EXPECT_EQ(filter_.copies, 0xFFFFFFFFU);
}

TEST_F(JobSettings, ACollateValueOf1IsNo) {
  run({{kCollate, "1"}});
  EXPECT_FALSE(filter_.collate);
}

TEST_F(JobSettings, Duplexing2BindsTheLongEdge) {
  run({{kDuplexing, "2"}, {"media", "A4"}});
  EXPECT_TRUE(filter_.duplex);
  EXPECT_TRUE(filter_.longEdge);
  EXPECT_FALSE(filter_.shortEdge);
}

TEST_F(JobSettings, Duplexing3BindsTheShortEdge) {
  run({{kDuplexing, "3"}, {"media", "A4"}});
  EXPECT_TRUE(filter_.duplex);
  EXPECT_FALSE(filter_.longEdge);
  EXPECT_TRUE(filter_.shortEdge);
}

TEST_F(JobSettings, PaperThatCannotBeDuplexedKeepsItsBindingEdge) {
  run({{kDuplexing, "2"}, {"media", "A5"}});
  EXPECT_FALSE(filter_.duplex);
  EXPECT_TRUE(filter_.longEdge);
  run({{kDuplexing, "3"}, {"PaperType", "Labels"}});
  EXPECT_FALSE(filter_.duplex);
  EXPECT_TRUE(filter_.shortEdge);
}

TEST_F(JobSettings, EveryOtherDuplexingIsOneSided) {
  for (const char* value : {"", "0", "1", "4", "-2", "two"}) {
    run({{kDuplexing, value}, {"media", "A4"}});
    EXPECT_FALSE(filter_.duplex) << value;
    EXPECT_FALSE(filter_.longEdge) << value;
    EXPECT_FALSE(filter_.shortEdge) << value;
  }
}

TEST_F(JobSettings, WithoutDuplexingTheJobIsOneSided) {
  run({{"media", "A4"}});
  EXPECT_FALSE(filter_.duplex || filter_.longEdge || filter_.shortEdge);
}

}  // namespace
}  // namespace gdi
