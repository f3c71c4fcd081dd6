// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A small part of a page in one ink: the pixels that are sent, and the toner that they become.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "tools/printmodel/PaperModel.h"
#include "tools/printmodel/Tile.h"
#include "tools/screenquality/Screen.h"

namespace gdi::screenpictures {

using printmodel::PaperModel;
using printmodel::Tile;
using screenquality::Screen;

// How far a plane is moved to the right and down, in pixels.
struct Move {
  int right = 0;
  int down = 0;
};

// Pixels around what is pictured: light of pulses there reaches it.
constexpr int kMargin = 2;

constexpr Tile withMargin(const Tile& pictured) {
  return {pictured.width + 2 * kMargin, pictured.height + 2 * kMargin};
}

// Where the pixel (x, y) of an area comes row by row.
constexpr std::size_t placeOf(const Tile& area, int x, int y) {
  return static_cast<std::size_t>(y) * static_cast<std::size_t>(area.width) +
         static_cast<std::size_t>(x);
}

struct Plane {
  Tile area;                         // with margin
  int steps = 1;                     // a solid pixel's value
  std::vector<std::uint8_t> values;  // row by row
  // Inside the margin.
  [[nodiscard]] Tile pictured() const {
    return {area.width - 2 * kMargin, area.height - 2 * kMargin};
  }
};

// The screen's output for the input levels of an area, row by row, its tile beginning at the
// area's first pixel. Requires: a level for each pixel.
Plane screened(const Screen& screen, const Tile& area, std::span<const std::uint8_t> levels);

// The same for one level throughout, the ink being printed where `move` says.
Plane flatTint(const Screen& screen, const Tile& area, std::uint8_t level, const Move& move = {});

// The share of toner at printmodel::kPointsAcross points across and down each pixel inside the
// margin, row by row.
std::vector<double> developed(const Plane& plane, const PaperModel& paper);

}  // namespace gdi::screenpictures
