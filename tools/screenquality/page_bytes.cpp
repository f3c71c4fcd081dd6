// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/page_bytes.h"

#include <string>
#include <vector>

#include "tools/samplepages/compressed_bytes.h"
#include "tools/samplepages/sample_pages.h"
#include "tools/screenquality/TextTable.h"

namespace gdi::screenquality {
namespace {

// A4 within its margins.
constexpr int kWidth = 4800;
constexpr int kHeight = 6816;

}  // namespace

bool writePageBytes(std::ostream& out, std::span<const ScreenSet> sets) {
  std::vector<std::string> heads{"bytes of a page"};
  for (const samplepages::Subject subject : samplepages::kSubjects) {
    heads.emplace_back(samplepages::nameOf(subject));
  }
  TextTable table(heads, 1);
  for (const ScreenSet& set : sets) {
    std::vector<std::string> cells{set.title()};
    for (const samplepages::Subject subject : samplepages::kSubjects) {
      const auto page = samplepages::samplePage(subject, {kWidth, kHeight, set.isColour() ? 4 : 1});
      const auto bytes = page == nullptr ? std::nullopt
                                         : samplepages::compressedBytes(
                                               *page, set.halftoner->screens(), set.depth);
      if (!bytes) {
        return false;
      }
      cells.push_back(std::to_string(*bytes));
    }
    table.add(cells);
  }
  table.write(out);
  return true;
}

}  // namespace gdi::screenquality
