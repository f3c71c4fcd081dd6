// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Whether sets stay ahead of the baselines in printers and at distances that they are not made for.
#pragma once

#include <ostream>
#include <span>
#include <string>
#include <vector>

#include "tools/screenquality/judging.h"

namespace gdi::screenquality {

struct OtherConditions {
  std::string name;  // "spot 0.46"
  Conditions conditions;
};

// A paper class as it is, then with one thing changed at a time: the spot, the threshold, the
// softness, the noise, the distance.
std::vector<OtherConditions> otherConditions(const Conditions& nominal);

// The best baseline under one of them.
struct Rival {
  OtherConditions other;
  std::string baseline;
  double j = 0.0;
};

// Under each of otherConditions, of baselines made for the nominal ones. Of colour pages without
// the conditions of noise, which is told beside their J alone.
std::vector<Rival> rivalsOf(const Conditions& nominal, int depth, bool colour);
// The same of baselines that are made already, for those conditions and one depth.
std::vector<Rival> rivalsAmong(std::span<const MadeBaseline> made, const Conditions& nominal,
                               bool colour);

// A set beside its rival.
struct Standing {
  const ScreenSet* set = nullptr;
  Rival rival;
  double j = 0.0;
  [[nodiscard]] bool isAhead() const { return j <= rival.j; }
};

// Set by set, all conditions of each. The screens stay those made for the nominal paper.
std::vector<Standing> standingsOf(std::span<const ScreenSet> sets);

// A line a standing, then where sets do not stay ahead.
void writeStandings(std::ostream& out, std::span<const Standing> standings);

}  // namespace gdi::screenquality
