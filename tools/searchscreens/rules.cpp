// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/searchscreens/rules.h"

#include "tools/makescreens/screen_file.h"
#include "tools/makescreens/tile_rules.h"
#include "tools/makescreens/waves.h"
#include "tools/samplepages/flat_repeat.h"
#include "tools/screenquality/validity.h"

namespace gdi::searchscreens {
namespace {

using screenquality::kLargestFile;
using screenquality::kSmallestFile;

}  // namespace

std::string breachOf(std::span<const ScreenParameters> page, std::size_t place, int depth) {
  const ScreenParameters& screen = page[place];
  std::string problem = makescreens::tileProblem(screen, depth);
  if (!problem.empty()) {
    return problem;
  }
  const makescreens::Tile tile = makescreens::tileWithCells(screen.lattice, screen.leastCells);
  const std::size_t bytes = makescreens::screenFileSize(tile, depth);
  if (bytes < kSmallestFile || bytes > kLargestFile) {
    return "the file has " + std::to_string(bytes) + " bytes, outside " +
           std::to_string(kSmallestFile) + " to " + std::to_string(kLargestFile);
  }
  const std::int64_t words = samplepages::flatRepeatWords(tile.width, depth);
  if (words > kMostRepeatWords) {
    return "a flat tint repeats only after " + std::to_string(words) + " words, more than " +
           std::to_string(kMostRepeatWords);
  }
  for (std::size_t other = 0; other < page.size(); ++other) {
    if (other != place && makescreens::shareAWave(page[other].lattice, screen.lattice)) {
      return "the lattice shares a wave with another plane's";
    }
  }
  return "";
}

}  // namespace gdi::searchscreens
