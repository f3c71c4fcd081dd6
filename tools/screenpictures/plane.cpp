// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenpictures/plane.h"

#include "tools/printmodel/LaserEngine.h"

namespace gdi::screenpictures {

Plane screened(const Screen& screen, const Tile& area, std::span<const std::uint8_t> levels) {
  Plane plane{area, screen.steps, {}};
  auto level = levels.begin();
  for (int y = 0; y < area.height; ++y) {
    for (int x = 0; x < area.width; ++x) {
      const std::size_t cell = placeOf(screen.tile, x % screen.tile.width, y % screen.tile.height);
      plane.values.push_back(screen.level(*level++)[cell]);
    }
  }
  return plane;
}

Plane flatTint(const Screen& screen, const Tile& area, std::uint8_t level, const Move& move) {
  Plane plane{area, screen.steps, {}};
  const std::span<const std::uint8_t> values = screen.level(level);
  for (int y = 0; y < area.height; ++y) {
    const std::size_t row = printmodel::wrapped(y - move.down, screen.tile.height) *
                            static_cast<std::size_t>(screen.tile.width);
    for (int x = 0; x < area.width; ++x) {
      plane.values.push_back(values[row + printmodel::wrapped(x - move.right, screen.tile.width)]);
    }
  }
  return plane;
}

std::vector<double> developed(const Plane& plane, const PaperModel& paper) {
  constexpr auto kPoints = static_cast<std::size_t>(printmodel::kPointsAcross);
  constexpr std::size_t kMarginPoints = kMargin * kPoints;
  const printmodel::LaserEngine engine(paper, plane.steps);
  const printmodel::Exposure exposure = engine.exposure(plane.area, plane.values);
  const std::size_t width = static_cast<std::size_t>(plane.area.width) * kPoints;
  const std::size_t height = static_cast<std::size_t>(plane.area.height) * kPoints;
  std::vector<double> toner;
  for (std::size_t y = kMarginPoints; y < height - kMarginPoints; ++y) {
    for (std::size_t x = kMarginPoints; x < width - kMarginPoints; ++x) {
      toner.push_back(engine.toner(exposure[y * width + x]));
    }
  }
  return toner;
}

}  // namespace gdi::screenpictures
