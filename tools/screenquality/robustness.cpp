// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/robustness.h"

#include <algorithm>
#include <cstddef>

#include "tools/screenquality/TextTable.h"
#include "tools/screenquality/parallel.h"

namespace gdi::screenquality {
namespace {

// A screen set or a baseline, judged under one of the conditions.
struct Trial {
  const ScreenSet* set;
  const MadeBaseline* baseline;  // null: the set itself
  OtherConditions other;
  double j = 0.0;
};

void judgeTrial(Trial& trial) {
  const Conditions& conditions = trial.other.conditions;
  trial.j = (trial.baseline == nullptr
                 ? qualityOf(*trial.set, conditions)
                 : qualityOf(trial.baseline->screens, trial.set->isColour(), conditions))
                .composite();
}

std::vector<Trial> trialsOf(const ScreenSet& set, std::span<const MadeBaseline> made) {
  std::vector<Trial> trials;
  for (const OtherConditions& other : otherConditions(*set.conditions)) {
    // In colour the engine's noise is told beside J alone.
    if (set.isColour() && other.conditions.noise != set.conditions->noise) {
      continue;
    }
    trials.push_back({&set, nullptr, other});
    for (const MadeBaseline& baseline : made) {
      if (baseline.conditions == set.conditions && baseline.depth == set.depth) {
        trials.push_back({&set, &baseline, other});
      }
    }
  }
  return trials;
}

}  // namespace

std::vector<OtherConditions> otherConditions(const Conditions& nominal) {
  std::vector<OtherConditions> all{{"as made for", nominal}};
  const auto add = [&](const char* name) -> Conditions& {
    return all.emplace_back(OtherConditions{name, nominal}).conditions;
  };
  add("spot 0.46").paper.spot = 0.46;
  add("spot 0.70").paper.spot = 0.70;
  add("threshold 0.35").paper.threshold = 0.35;
  add("threshold 0.50").paper.threshold = 0.50;
  add("softness 0.12").paper.softness = 0.12;
  add("noise halved").noise = nominal.noise / 2.0;
  add("noise doubled").noise = nominal.noise * 2.0;
  add("8 inches").inches = 8.0;
  add("16 inches").inches = 16.0;
  return all;
}

std::vector<Standing> standingsOf(std::span<const ScreenSet> sets) {
  const std::vector<MadeBaseline> made = baselinesFor(sets);
  std::vector<Trial> trials;
  for (const ScreenSet& set : sets) {
    std::ranges::move(trialsOf(set, made), std::back_inserter(trials));
  }
  inParallel(trials.size(), [&](std::size_t i) { judgeTrial(trials[i]); });
  std::vector<Standing> standings;
  for (const Trial& trial : trials) {
    if (trial.baseline == nullptr) {
      standings.push_back({trial.set, trial.other.name, trial.j, 0.0, ""});
    } else if (Standing& standing = standings.back();
               standing.best.empty() || trial.j < standing.bestJ) {
      standing.bestJ = trial.j;
      standing.best = trial.baseline->name;
    }
  }
  return standings;
}

void writeStandings(std::ostream& out, std::span<const Standing> standings) {
  TextTable table({"set", "condition", "best baseline", "its J", "J", "share"}, 3);
  for (const Standing& standing : standings) {
    table.add({standing.set->title(), standing.condition, standing.best, figure(standing.bestJ),
               figure(standing.j), figure(standing.j / standing.bestJ)});
  }
  table.write(out);
  bool allAhead = true;
  for (const Standing& standing : standings) {
    if (!standing.isAhead()) {
      allAhead = false;
      out << standing.set->title() << ": behind " << standing.best << " under "
          << standing.condition << '\n';
    }
  }
  if (allAhead) {
    out << "Every set stays ahead of every baseline.\n";
  }
}

}  // namespace gdi::screenquality
