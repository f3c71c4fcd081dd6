// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/run.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "tools/screenquality/bundled_sets.h"
#include "tools/screenquality/page_bytes.h"
#include "tools/screenquality/report.h"
#include "tools/screenquality/robustness.h"
#include "tools/screenquality/validity.h"

namespace gdi::screenquality {
namespace {

void keepOnly(const std::string& key, std::vector<ScreenSet>& sets) {
  std::erase_if(sets, [&](const ScreenSet& set) {
    return std::ranges::none_of(set.papers, [&](const std::string& paper) {
      return set.quality + paper + set.mode == key;
    });
  });
}

bool areValid(std::span<const ScreenSet> sets, std::ostream& errors) {
  bool valid = true;
  for (const ScreenSet& set : sets) {
    for (const std::string& breach : breachesOf(set)) {
      errors << "screenquality: " << breach << '\n';
      valid = false;
    }
  }
  return valid;
}

bool reachGoals(std::span<const JudgedSet> sets, std::ostream& errors) {
  const std::vector<std::string> misses = missesOf(sets);
  for (const std::string& miss : misses) {
    errors << "screenquality: " << miss << '\n';
  }
  return misses.empty();
}

}  // namespace

int run(const CommandLine& line, std::ostream& out, std::ostream& errors) {
  std::optional<std::vector<ScreenSet>> sets = loadScreenSets(line.resources, errors);
  if (!sets) {
    return kUnusable;
  }
  if (!line.only.empty()) {
    keepOnly(line.only, *sets);
  }
  if (!areValid(*sets, errors)) {
    return kMissed;
  }
  const Judgement judgement = judge(*sets, line.baselines);
  writeSets(out, judgement.sets);
  if (line.baselines) {
    out << '\n';
    writeBaselines(out, judgement.baselines);
  }
  bool complete = true;
  if (line.bytes) {
    out << '\n';
    complete = writePageBytes(out, *sets);
  }
  if (line.robust) {
    out << '\n';
    writeStandings(out, standingsOf(*sets));
  }
  const bool reached = reachGoals(judgement.sets, errors);
  if (!out.flush()) {
    errors << "screenquality: the tables cannot be written\n";
    complete = false;
  }
  if (!complete) {
    return kUnusable;
  }
  return reached ? kReached : kMissed;
}

}  // namespace gdi::screenquality
