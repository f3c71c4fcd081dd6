// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenpictures/subjects.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <span>

#include "tools/samplepages/sample_pages.h"

namespace gdi::screenpictures {
namespace {

constexpr int kFull = 255;
constexpr int kSteps = 16;
constexpr int kStepsAcross = 8;

Subject partOf(const samplepages::PageSource& page, const Tile& area, int left, int top) {
  Subject subject{area, {}};
  std::vector<std::uint8_t> row(page.rowBytes());
  for (int y = 0; y < area.height; ++y) {
    if (page.scanline(top + y, row)) {
      const auto part = std::span(row).subspan(static_cast<std::size_t>(left),
                                               static_cast<std::size_t>(area.width));
      subject.levels.insert(subject.levels.end(), part.begin(), part.end());
    }
  }
  return subject;
}

}  // namespace

Subject greyWedge(const Tile& pictured) {
  Subject subject{withMargin(pictured), {}};
  const int third = pictured.height / 3;
  const int last = pictured.width - 1;
  for (int y = -kMargin; y < pictured.height + kMargin; ++y) {
    for (int column = -kMargin; column < pictured.width + kMargin; ++column) {
      const int x = std::clamp(column, 0, last);
      const int step = x / (pictured.width / kStepsAcross) + (y < third ? 0 : kStepsAcross);
      const int level = y < 2 * third ? step * kFull / (kSteps - 1) : x * kFull / last;
      subject.levels.push_back(static_cast<std::uint8_t>(level));
    }
  }
  return subject;
}

Subject photograph(const Tile& pictured) {
  const Tile area = withMargin(pictured);
  const auto page =
      samplepages::samplePage(samplepages::Subject::kPhotograph, {area.width, area.height, 1});
  return partOf(*page, area, 0, 0);
}

Subject text(const Tile& pictured, int left, int top) {
  const auto page = samplepages::samplePage(samplepages::Subject::kText, {4800, 6816, 1});
  return partOf(*page, withMargin(pictured), left - kMargin, top - kMargin);
}

}  // namespace gdi::screenpictures
