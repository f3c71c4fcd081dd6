// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/judging.h"

#include <algorithm>
#include <iterator>

#include "tools/samplepages/flat_repeat.h"
#include "tools/screenquality/diffused_quality.h"
#include "tools/screenquality/parallel.h"

namespace gdi::screenquality {
namespace {

constexpr std::size_t kBlack = 3;

// Baselines are compared with sets of these.
bool areAlike(const JudgedBaseline& baseline, const ScreenSet& set) {
  return baseline.conditions == set.conditions && baseline.depth == set.depth &&
         baseline.mode == set.mode;
}

JudgedBaseline judgedWith(std::string_view name, const ScreenSet& set) {
  return {std::string(name), set.conditions, set.depth, set.mode, false, {}};
}

// Baselines that a set of these is compared with, not judged yet.
std::vector<JudgedBaseline> comparedWith(std::span<const ScreenSet> sets) {
  std::vector<JudgedBaseline> all;
  for (const ScreenSet& set : sets) {
    if (std::ranges::any_of(all, [&](const auto& known) { return areAlike(known, set); })) {
      continue;
    }
    for (const Baseline& baseline : kBaselines) {
      all.push_back(judgedWith(baseline.name, set));
    }
    if (!set.isColour()) {
      all.push_back(judgedWith("error diffusion", set));
      all.back().isReference = true;
    }
  }
  return all;
}

void judgeBaseline(JudgedBaseline& baseline, std::span<const MadeBaseline> made) {
  if (baseline.isReference) {
    baseline.quality = diffusedQuality((1 << baseline.depth) - 1, *baseline.conditions);
    return;
  }
  const auto found = std::ranges::find_if(made, [&](const MadeBaseline& one) {
    return one.name == baseline.name && one.conditions == baseline.conditions &&
           one.depth == baseline.depth;
  });
  if (found != made.end()) {
    baseline.quality = qualityOf(found->screens, baseline.mode == "Color", *baseline.conditions);
  }
}

std::optional<double> leastJ(std::span<const JudgedBaseline> baselines, const ScreenSet& set) {
  std::optional<double> least;
  for (const JudgedBaseline& baseline : baselines) {
    if (!baseline.isReference && areAlike(baseline, set)) {
      const double j = baseline.quality.composite();
      least = std::min(least.value_or(j), j);
    }
  }
  return least;
}

}  // namespace

Reached JudgedSet::reached() const {
  return {set->title(), quality.composite(), goal, bestBaseline, set->isColour()};
}

double JudgedSet::shareOfGoal() const {
  return quality.composite() / goal.value_or(1.0);
}

Quality qualityOf(const ScreenSet& set, const Conditions& conditions) {
  const auto& screens = set.screens;
  return set.isColour() ? colourQuality({&screens[0].screen, &screens[1].screen, &screens[2].screen,
                                         &screens[kBlack].screen},
                                        conditions)
                        : monoQuality(screens[kBlack].screen, conditions);
}

Quality qualityOf(const FourScreens& screens, bool colour, const Conditions& conditions) {
  const auto& [cyan, magenta, yellow, black] = screens;
  return colour ? colourQuality({&cyan, &magenta, &yellow, &black}, conditions)
                : monoQuality(black, conditions);
}

std::int64_t repeatOf(const ScreenSet& set) {
  std::int64_t most = 0;
  for (std::size_t plane = set.isColour() ? 0 : kBlack; plane < set.screens.size(); ++plane) {
    most = std::max(
        most, samplepages::flatRepeatWords(set.screens.at(plane).screen.tile.width, set.depth));
  }
  return most;
}

std::vector<MadeBaseline> baselinesFor(const Conditions& conditions, int depth) {
  std::vector<MadeBaseline> made(kBaselines.size());
  inParallel(made.size(), [&](std::size_t i) {
    const Baseline& baseline = kBaselines.at(i);
    made[i] = {baseline.name, &conditions, depth,
               baseline.make((1 << depth) - 1, conditions.paper, conditions.gain)};
  });
  return made;
}

std::vector<MadeBaseline> baselinesFor(std::span<const ScreenSet> sets) {
  std::vector<MadeBaseline> made;
  for (const ScreenSet& set : sets) {
    const bool known = std::ranges::any_of(made, [&](const MadeBaseline& one) {
      return one.conditions == set.conditions && one.depth == set.depth;
    });
    if (!known) {
      std::ranges::move(baselinesFor(*set.conditions, set.depth), std::back_inserter(made));
    }
  }
  return made;
}

Judgement judge(std::span<const ScreenSet> sets, bool withBaselines) {
  Judgement judgement;
  for (const ScreenSet& set : sets) {
    JudgedSet& judged = judgement.sets.emplace_back();
    judged.set = &set;
    judged.repeat = repeatOf(set);
    judged.goal = goalOf(set.quality, set.conditions->name, set.mode);
  }
  std::vector<MadeBaseline> made;
  if (withBaselines) {
    made = baselinesFor(sets);
    judgement.baselines = comparedWith(sets);
  }
  inParallel(judgement.sets.size() + judgement.baselines.size(), [&](std::size_t i) {
    if (i < judgement.sets.size()) {
      JudgedSet& judged = judgement.sets[i];
      judged.quality = qualityOf(*judged.set, *judged.set->conditions);
    } else {
      judgeBaseline(judgement.baselines[i - judgement.sets.size()], made);
    }
  });
  for (JudgedSet& judged : judgement.sets) {
    judged.bestBaseline = leastJ(judgement.baselines, *judged.set);
  }
  std::ranges::stable_sort(judgement.sets, std::ranges::greater(), &JudgedSet::shareOfGoal);
  return judgement;
}

}  // namespace gdi::screenquality
