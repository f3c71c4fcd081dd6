// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/robustness.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "tools/screenquality/TextTable.h"
#include "tools/screenquality/parallel.h"

namespace gdi::screenquality {
namespace {

// A baseline, judged under one of the conditions.
struct Trial {
  std::size_t rival;
  std::size_t baseline;
  double j = 0.0;
};

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

std::vector<Rival> rivalsOf(const Conditions& nominal, int depth, bool colour) {
  return rivalsAmong(baselinesFor(nominal, depth), nominal, colour);
}

std::vector<Rival> rivalsAmong(std::span<const MadeBaseline> made, const Conditions& nominal,
                               bool colour) {
  std::vector<Rival> rivals;
  for (const OtherConditions& other : otherConditions(nominal)) {
    if (!colour || other.conditions.noise == nominal.noise) {
      rivals.push_back({other, "", 0.0});
    }
  }
  std::vector<Trial> trials;
  for (std::size_t rival = 0; rival < rivals.size(); ++rival) {
    for (std::size_t baseline = 0; baseline < made.size(); ++baseline) {
      trials.push_back({rival, baseline});
    }
  }
  inParallel(trials.size(), [&](std::size_t i) {
    Trial& trial = trials[i];
    trial.j = qualityOf(made[trial.baseline].screens, colour, rivals[trial.rival].other.conditions)
                  .composite();
  });
  for (const Trial& trial : trials) {
    Rival& rival = rivals[trial.rival];
    if (rival.baseline.empty() || trial.j < rival.j) {
      rival.baseline = made[trial.baseline].name;
      rival.j = trial.j;
    }
  }
  return rivals;
}

std::vector<Standing> standingsOf(std::span<const ScreenSet> sets) {
  const std::vector<MadeBaseline> made = baselinesFor(sets);
  std::vector<Standing> standings;
  for (const ScreenSet& set : sets) {
    const auto first = std::ranges::find_if(made, [&](const MadeBaseline& one) {
      return one.conditions == set.conditions && one.depth == set.depth;
    });
    const std::span<const MadeBaseline> own(first, kBaselines.size());
    for (Rival& rival : rivalsAmong(own, *set.conditions, set.isColour())) {
      standings.push_back({&set, std::move(rival), 0.0});
    }
  }
  inParallel(standings.size(), [&](std::size_t i) {
    Standing& standing = standings[i];
    standing.j = qualityOf(*standing.set, standing.rival.other.conditions).composite();
  });
  return standings;
}

void writeStandings(std::ostream& out, std::span<const Standing> standings) {
  TextTable table({"set", "condition", "best baseline", "its J", "J", "share"}, 3);
  for (const Standing& standing : standings) {
    const Rival& rival = standing.rival;
    table.add({standing.set->title(), rival.other.name, rival.baseline, figure(rival.j),
               figure(standing.j), figure(standing.j / rival.j)});
  }
  table.write(out);
  bool allAhead = true;
  for (const Standing& standing : standings) {
    if (!standing.isAhead()) {
      allAhead = false;
      out << standing.set->title() << ": behind " << standing.rival.baseline << " under "
          << standing.rival.other.name << '\n';
    }
  }
  if (allAhead) {
    out << "Every set stays ahead of every baseline.\n";
  }
}

}  // namespace gdi::screenquality
