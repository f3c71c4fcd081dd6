// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/searchscreens/Score.h"

#include <limits>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/searchscreens/small_screens.h"

namespace gdi::searchscreens {
namespace {

constexpr double kAny = std::numeric_limits<double>::infinity();

struct SmallTask {
  SmallTask() {
    std::string problem;
    task = taskOf(parameters, "plain", "Fast", "Mono", problem);
    EXPECT_TRUE(task.has_value()) << problem;
  }
  Parameters parameters = parsed(smallParameters());
  std::optional<Task> task;
};

TEST(Score, IsJWithoutRivals) {
  const SmallTask small;
  EXPECT_EQ(Score(*small.task->conditions, {}).of(Page(*small.task), 1.25, kAny), 1.25);
}

TEST(Score, OneIsRaisedFrom99To106PercentOfARival) {
  EXPECT_EQ(raisedBy(0.5), 0.0);
  EXPECT_EQ(raisedBy(0.99), 0.0);
  EXPECT_NEAR(raisedBy(1.0), 0.1, 1e-12);
  EXPECT_NEAR(raisedBy(1.02), 0.3 + 0.4, 1e-12);
  EXPECT_NEAR(raisedBy(1.06), 0.7 + 1.2, 1e-12);
  EXPECT_EQ(raisedBy(1.5), raisedBy(1.06));
}

TEST(Score, IsRaisedByEachConditionUnderWhichARivalIsStrong) {
  const SmallTask small;
  const Page page(*small.task);
  const double j = page.j();
  const Conditions& nominal = *small.task->conditions;
  Conditions far = nominal;
  far.inches = 16.0;
  Conditions near = nominal;
  near.inches = 8.0;
  // Even as made for, 1 % behind from afar, ahead from near.
  const std::vector<Rival> rivals{{{"", nominal}, "", j / 1.0},
                                  {{"", far}, "", page.jUnder(far) / 1.01},
                                  {{"", near}, "", page.jUnder(near) / 0.5}};
  Score score(nominal, rivals);
  const double expected = j + 0.1 + 0.4;
  EXPECT_NEAR(score.of(page, j, kAny), expected, 1e-9);

  // A look ends where the second rival is found too strong. That one is looked at first from then
  // on, and ends the next look by itself; the score stays.
  EXPECT_NEAR(score.of(page, j, j + 0.15), j + 0.1 + 0.4, 1e-9);
  EXPECT_NEAR(score.of(page, j, j + 0.15), j + 0.4, 1e-9);
  EXPECT_NEAR(score.of(page, j, kAny), expected, 1e-9);
}

}  // namespace
}  // namespace gdi::searchscreens
