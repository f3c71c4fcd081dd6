// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What business graphics are drawn of, each painted row by row over what lies below it.
//
// Positions are pixel corners of the page, (0, 0) its top left one. A pixel belongs to a shape when
// its centre does, so edges are hard. Parts beyond the page are left out.
#pragma once

#include <span>
#include <variant>

#include "tools/samplepages/Ink.h"

namespace gdi::samplepages {

// Columns left to right - 1, rows top to bottom - 1.
struct Box {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
};

// A box of one ink.
struct Tint {
  Box box;
  Ink ink;
};

// A box whose ink goes evenly from one to the other, downwards or to the right.
struct Gradient {
  Box box;
  Ink from;
  Ink to;
  bool downwards = false;
};

// The part of a disc clockwise from one direction to another, less than half a turn on.
struct Sector {
  int centreX = 0;
  int centreY = 0;
  int radius = 0;
  int fromX = 0;  // the directions, of any length
  int fromY = 0;
  int toX = 0;
  int toY = 0;
  Ink ink;
};

// A straight line with square ends, from (x1, y1) to (x2, y2).
struct Line {
  int x1 = 0;
  int y1 = 0;
  int x2 = 0;
  int y2 = 0;
  int thickness = 1;  // pixels
  Ink ink;
};

using Shape = std::variant<Tint, Gradient, Sector, Line>;

// Paints what row `y` has of the shape.
void paintShape(const Shape& shape, int y, std::span<Ink> row);

}  // namespace gdi::samplepages
