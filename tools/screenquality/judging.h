// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The measure of the bundle's sets and of the baselines beside them.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "tools/screenquality/baselines.h"
#include "tools/screenquality/bundled_sets.h"
#include "tools/screenquality/goals.h"
#include "tools/screenquality/quality.h"

namespace gdi::screenquality {

// A baseline, made for a paper class and a depth.
struct MadeBaseline {
  std::string_view name;
  const Conditions* conditions = nullptr;
  int depth = 1;
  FourScreens screens;
};

struct JudgedBaseline {
  std::string name;
  const Conditions* conditions = nullptr;
  int depth = 1;
  std::string mode;          // "Color", "Mono"
  bool isReference = false;  // error diffusion, which no set is held to
  Quality quality;
};

struct JudgedSet {
  const ScreenSet* set = nullptr;
  Quality quality;
  std::int64_t repeat = 0;  // words after which a flat tint repeats, the most of its screens
  std::optional<double> goal;
  std::optional<double> bestBaseline;  // the least J of its class, depth and mode

  [[nodiscard]] Reached reached() const;
  // J as a share of the goal; J itself when there is none.
  [[nodiscard]] double shareOfGoal() const;
};

struct Judgement {
  std::vector<JudgedSet> sets;            // the worst against its goal first
  std::vector<JudgedBaseline> baselines;  // in the order of the sets' classes and depths
};

// What a page of the set prints with, under any conditions.
Quality qualityOf(const ScreenSet& set, const Conditions& conditions);
Quality qualityOf(const FourScreens& screens, bool colour, const Conditions& conditions);

// Words of the band codec after which a flat tint of the set repeats.
std::int64_t repeatOf(const ScreenSet& set);

// All baselines for a paper class and a depth. Keeps a pointer to the conditions.
std::vector<MadeBaseline> baselinesFor(const Conditions& conditions, int depth);
// For each paper class and depth of the sets, once; those of a class and depth stand together.
std::vector<MadeBaseline> baselinesFor(std::span<const ScreenSet> sets);

// Judges the sets on the papers that they are for and, when asked to, the baselines and error
// diffusion of the sets' classes, depths and modes. Keeps pointers to the sets.
Judgement judge(std::span<const ScreenSet> sets, bool withBaselines);

}  // namespace gdi::screenquality
