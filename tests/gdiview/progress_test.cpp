// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/Progress.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <optional>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace gdi::gdiview {
namespace {

using std::chrono::milliseconds;

class ProgressLine : public testing::Test {
 protected:
  Progress progress(std::optional<std::uint64_t> totalBytes, bool terminal = true) {
    return {out_, terminal, totalBytes, [this] { return now_; }};
  }
  void pass(int time) { now_ += milliseconds(time); }
  // What has been written since the last call.
  std::string written() {
    std::string text = out_.str();
    out_.str("");
    return text;
  }

  Progress::Time now_ = Progress::Time() + std::chrono::hours(1);
  std::ostringstream out_;
};

// Of 1000 bytes those of page 11 end at byte 349: they are done when page 12 begins.
TEST_F(ProgressLine, ItTellsThePageAndTheShareThatIsDone) {
  Progress line = progress(1000);
  line.update(11, 349);
  pass(1001);
  line.update(12, 500);
  EXPECT_EQ(written(), "\rgdiview: page 12, 34 %");
}

TEST_F(ProgressLine, ThePartsOfAPagesWorkCountAsSoMuchOfItsBytes) {
  Progress line = progress(1000);
  line.update(1, 200);
  line.update(2, 600);
  pass(1001);
  line.work(1, 4);
  EXPECT_EQ(written(), "\rgdiview: page 2, 30 %");
  pass(200);
  line.work(4, 4);
  EXPECT_EQ(written(), "\rgdiview: page 2, 60 %");
}

TEST_F(ProgressLine, TheOnlyPageOfAJobIsDoneAsItsPartsAre) {
  Progress line = progress(1000);
  pass(1001);
  line.update(1, 1000);
  EXPECT_EQ(written(), "\rgdiview: page 1, 0 %");
  pass(200);
  line.work(1, 2);
  EXPECT_EQ(written(), "\rgdiview: page 1, 50 %");
}

TEST_F(ProgressLine, AheadOfTheFirstPageThereIsTheShareAlone) {
  Progress line = progress(1000);
  line.update(0, 100);
  pass(1001);
  line.update(0, 200);
  EXPECT_EQ(written(), "\rgdiview: 10 %");
}

// 100 % looks like the end, which is told by the line's going.
TEST_F(ProgressLine, WholePercentsAreToldAndNever100) {
  Progress line = progress(100);
  for (std::uint64_t done = 0; done <= 101; ++done) {
    line.update(100, done);  // within the fifth of a second, and so without a line
    pass(1001);
    line.update(100, done);
    EXPECT_EQ(written(),
              "\rgdiview: page 100, " + std::to_string(std::min<std::uint64_t>(done, 99)) + " %");
  }
}

TEST_F(ProgressLine, ItTellsMegabytesWhenTheTotalIsNotKnown) {
  Progress line = progress(std::nullopt);
  line.update(2, 140999999);
  pass(1001);
  line.update(3, 141999999);
  EXPECT_EQ(written(), "\rgdiview: page 3, 140 MB");
  Progress empty = progress(0);
  pass(1001);
  empty.update(1, 5);
  EXPECT_EQ(written(), "\rgdiview: page 1, 0 MB");
}

TEST_F(ProgressLine, AJobOfASecondHasNone) {
  Progress line = progress(1000);
  line.update(1, 100);
  pass(1000);
  line.update(2, 200);
  line.clear();
  EXPECT_EQ(written(), "");
}

TEST_F(ProgressLine, ItChangesFiveTimesASecondAtMost) {
  Progress line = progress(1000);
  pass(1001);
  line.update(1, 10);
  EXPECT_EQ(written(), "\rgdiview: page 1, 0 %");
  pass(199);
  line.update(2, 20);
  line.work(1, 1);
  EXPECT_EQ(written(), "");
  pass(1);
  line.update(3, 30);
  EXPECT_EQ(written(), "\rgdiview: page 3, 2 %");
  pass(100);
  line.clear();
  EXPECT_EQ(written(), "\r                    \r");
  line.update(4, 40);
  EXPECT_EQ(written(), "");
  pass(100);
  line.update(5, 50);
  EXPECT_EQ(written(), "\rgdiview: page 5, 4 %");
}

TEST_F(ProgressLine, AShorterLineCoversALongerOne) {
  Progress line = progress(1000);
  line.update(9, 100);
  pass(1001);
  line.update(10, 110);
  EXPECT_EQ(written(), "\rgdiview: page 10, 10 %");
  pass(200);
  line.update(9, 110);
  EXPECT_EQ(written(), "\rgdiview: page 9, 11 % ");
  line.clear();
  EXPECT_EQ(written(), "\r" + std::string(21, ' ') + "\r");
}

TEST_F(ProgressLine, ItIsWipedOnce) {
  {
    Progress line = progress(1000);
    pass(1001);
    line.update(1, 10);
    line.clear();
    EXPECT_EQ(written(), "\rgdiview: page 1, 0 %\r" + std::string(20, ' ') + "\r");
    line.clear();
  }
  EXPECT_EQ(written(), "");
}

TEST_F(ProgressLine, ItIsWipedAtTheEnd) {
  {
    Progress line = progress(1000);
    pass(1001);
    line.update(1, 10);
    written();
  }
  EXPECT_EQ(written(), "\r" + std::string(20, ' ') + "\r");
}

TEST_F(ProgressLine, NothingIsWrittenToWhatIsNoTerminal) {
  {
    Progress line = progress(1000, false);
    pass(5000);
    line.update(1, 10);
    line.clear();
  }
  EXPECT_EQ(written(), "");
}

}  // namespace
}  // namespace gdi::gdiview
