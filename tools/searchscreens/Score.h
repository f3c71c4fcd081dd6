// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What a search lowers: J and what the page falls behind its rivals by, under their conditions.
#pragma once

#include <utility>
#include <vector>

#include "tools/screenquality/robustness.h"
#include "tools/searchscreens/Page.h"

namespace gdi::searchscreens {

using screenquality::Rival;

class Score {
 public:
  // Without rivals, J alone counts.
  Score(const Conditions& nominal, std::vector<Rival> rivals)
      : nominal_(&nominal), rivals_(std::move(rivals)) {}

  // The score of a page whose J is `j`: no less than that. Where it is above `most`, the answer is
  // too, though it may be less than the score: conditions are then left out.
  double of(const Page& page, double j, double most);

 private:
  const Conditions* nominal_;
  std::vector<Rival> rivals_;  // the one that last ended a look first
};

// What a page's J is raised by when it is `share` of its rival's: 10 times what is above 99 %, and
// 20 times what is above 100 %, both up to 106 %. A condition that is lost by more is given up
// rather than paid for under all the others.
double raisedBy(double share);

}  // namespace gdi::searchscreens
