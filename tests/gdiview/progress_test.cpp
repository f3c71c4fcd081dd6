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

TEST_F(ProgressLine, ItTellsThePageAndTheShareThatHasBeenRead) {
  Progress line = progress(1000);
  pass(1001);
  line.update(12, 349);
  EXPECT_EQ(written(), "\rgdiview: page 12, 34 %");
}

TEST_F(ProgressLine, WholePercentsAreTold) {
  Progress line = progress(100);
  for (std::uint64_t bytes = 0; bytes <= 101; ++bytes) {
    pass(1001);
    line.update(100, bytes);
    EXPECT_EQ(written(),
              "\rgdiview: page 100, " + std::to_string(std::min<std::uint64_t>(bytes, 100)) + " %");
  }
}

TEST_F(ProgressLine, ItTellsMegabytesWhenTheTotalIsNotKnown) {
  Progress line = progress(std::nullopt);
  pass(1001);
  line.update(3, 140999999);
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
  EXPECT_EQ(written(), "\rgdiview: page 1, 1 %");
  pass(199);
  line.update(2, 20);
  EXPECT_EQ(written(), "");
  pass(1);
  line.update(3, 30);
  EXPECT_EQ(written(), "\rgdiview: page 3, 3 %");
  pass(100);
  line.clear();
  EXPECT_EQ(written(), "\r                    \r");
  line.update(4, 40);
  EXPECT_EQ(written(), "");
  pass(100);
  line.update(5, 50);
  EXPECT_EQ(written(), "\rgdiview: page 5, 5 %");
}

TEST_F(ProgressLine, AShorterLineCoversALongerOne) {
  Progress line = progress(1000);
  pass(1001);
  line.update(10, 100);
  EXPECT_EQ(written(), "\rgdiview: page 10, 10 %");
  pass(200);
  line.update(1, 0);
  EXPECT_EQ(written(), "\rgdiview: page 1, 0 %  ");
  line.clear();
  EXPECT_EQ(written(), "\r" + std::string(20, ' ') + "\r");
}

TEST_F(ProgressLine, ItIsWipedOnce) {
  {
    Progress line = progress(1000);
    pass(1001);
    line.update(1, 10);
    line.clear();
    EXPECT_EQ(written(), "\rgdiview: page 1, 1 %\r" + std::string(20, ' ') + "\r");
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
