// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/report.h"

#include <algorithm>
#include <array>

#include "tools/screenquality/TextTable.h"

namespace gdi::screenquality {
namespace {

constexpr const char* kNothing = "-";

std::string figureOf(std::optional<double> number) {
  return number ? figure(*number) : kNothing;
}

void appendTermHeads(std::vector<std::string>& heads) {
  heads.insert(heads.end(), {"G", "LF", "T", "D", "H", "Q", "RG", "N"});
}

void appendTerms(std::vector<std::string>& cells, const Quality& quality, bool colour) {
  for (const double term : {quality.grain, quality.coarse, quality.swing, quality.detail,
                            quality.curve, quality.steps}) {
    cells.push_back(figure(term));
  }
  cells.push_back(colour ? figure(quality.registration) : kNothing);
  cells.push_back(figure(quality.noise));
}

std::string papersOf(const ScreenSet& set) {
  return std::string(set.conditions->name)
      .append(" (")
      .append(std::to_string(set.papers.size()))
      .append(")");
}

}  // namespace

void writeSets(std::ostream& out, std::span<const JudgedSet> sets) {
  std::vector<std::string> heads{"quality", "mode", "papers", "J", "goal", "baseline"};
  appendTermHeads(heads);
  heads.emplace_back("repeat");
  TextTable table(heads, 3);
  for (const JudgedSet& judged : sets) {
    const ScreenSet& set = *judged.set;
    std::vector<std::string> cells{set.quality,           set.mode,
                                   papersOf(set),         figure(judged.quality.composite()),
                                   figureOf(judged.goal), figureOf(judged.bestBaseline)};
    appendTerms(cells, judged.quality, set.isColour());
    cells.push_back(std::to_string(judged.repeat));
    table.add(cells);
  }
  table.write(out);
}

void writeBaselines(std::ostream& out, std::span<const JudgedBaseline> baselines) {
  std::vector<std::string> heads{"baseline", "depth", "mode", "papers", "J"};
  appendTermHeads(heads);
  TextTable table(heads, 4);
  for (const JudgedBaseline& baseline : baselines) {
    std::vector<std::string> cells{baseline.name, std::to_string(baseline.depth), baseline.mode,
                                   std::string(baseline.conditions->name),
                                   figure(baseline.quality.composite())};
    appendTerms(cells, baseline.quality, baseline.mode == "Color");
    table.add(cells);
  }
  table.write(out);
  if (std::ranges::any_of(baselines, &JudgedBaseline::isReference)) {
    out << "Error diffusion has no tile and is no screen: it is measured in black alone, without "
           "RG, and\nno set is held to it.\n";
  }
}

std::vector<std::string> missesOf(std::span<const JudgedSet> sets) {
  std::vector<std::string> lines;
  for (const JudgedSet& judged : sets) {
    for (std::string& line : missesOf(judged.reached())) {
      lines.push_back(std::move(line));
    }
  }
  return lines;
}

}  // namespace gdi::screenquality
