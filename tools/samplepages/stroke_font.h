// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A plain sans-serif alphabet, each letter a few strokes of a round pen.
//
// Letters stand on a grid: y = 0 is the top of capitals, 3 that of small letters, 8 the baseline,
// 10 the foot of descenders. The pen is one grid unit wide.
#pragma once

#include <vector>

namespace gdi::samplepages {

// Subunits of a grid unit; of lengths below, unless said otherwise.
inline constexpr int kUnit = 64;

struct Point {
  int x = 0;
  int y = 0;
  bool operator==(const Point&) const = default;
};

// The pen's way from one point straight to the other; a dot when they are equal.
struct Stroke {
  Point from;
  Point to;
};

struct Letter {
  std::vector<Stroke> strokes;  // none for a blank
  int advance = 0;              // from this letter's origin to the next one's
};

// Letters A to Z (but for Q, X and Z), a to z, the point, the comma, the hyphen; a blank for all
// other characters.
Letter letterOf(char character);

}  // namespace gdi::samplepages
