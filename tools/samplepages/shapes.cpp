// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/samplepages/shapes.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace gdi::samplepages {
namespace {

// The pixels of columns left to right - 1.
std::span<Ink> columns(std::span<Ink> row, int left, int right) {
  const int width = static_cast<int>(row.size());
  const auto from = static_cast<std::size_t>(std::clamp(left, 0, width));
  const auto to = static_cast<std::size_t>(std::clamp(right, 0, width));
  return from < to ? row.subspan(from, to - from) : std::span<Ink>();
}

// From a pixel corner to the centre of the pixel `position`.
std::int64_t halfPixels(int position, int corner) {
  return 2 * std::int64_t{position - corner} + 1;
}

bool hasRow(const Box& box, int y) {
  return y >= box.top && y < box.bottom;
}

// Paints the pixels of columns left to right - 1 for which covers(x) is true.
template <typename Covers>
void paintCovered(std::span<Ink> row, int left, int right, const Ink& ink, const Covers& covers) {
  int x = std::max(left, 0);
  for (Ink& pixel : columns(row, left, right)) {
    if (covers(x)) {
      pixel = ink;
    }
    ++x;
  }
}

void paintPart(const Tint& tint, int y, std::span<Ink> row) {
  if (hasRow(tint.box, y)) {
    std::ranges::fill(columns(row, tint.box.left, tint.box.right), tint.ink);
  }
}

void paintPart(const Gradient& gradient, int y, std::span<Ink> row) {
  const Box& box = gradient.box;
  if (!hasRow(box, y)) {
    return;
  }
  const int whole = gradient.downwards ? box.bottom - box.top : box.right - box.left;
  int x = std::max(box.left, 0);
  for (Ink& pixel : columns(row, box.left, box.right)) {
    const int share = gradient.downwards ? y - box.top : x - box.left;
    pixel = between(gradient.from, gradient.to, share, whole);
    ++x;
  }
}

void paintPart(const Sector& sector, int y, std::span<Ink> row) {
  const std::int64_t dy = halfPixels(y, sector.centreY);
  const std::int64_t radius = 2 * std::int64_t{sector.radius};
  paintCovered(
      row, sector.centreX - sector.radius, sector.centreX + sector.radius, sector.ink, [&](int x) {
        const std::int64_t dx = halfPixels(x, sector.centreX);
        return dx * dx + dy * dy <= radius * radius && sector.fromX * dy - sector.fromY * dx >= 0 &&
               dx * sector.toY - dy * sector.toX > 0;
      });
}

void paintPart(const Line& line, int y, std::span<Ink> row) {
  if (y < std::min(line.y1, line.y2) - line.thickness ||
      y > std::max(line.y1, line.y2) + line.thickness) {
    return;
  }
  const std::int64_t alongX = line.x2 - line.x1;
  const std::int64_t alongY = line.y2 - line.y1;
  const std::int64_t lengthSquared = alongX * alongX + alongY * alongY;
  const std::int64_t reach = std::int64_t{line.thickness} * line.thickness * lengthSquared;
  const std::int64_t dy = halfPixels(y, line.y1);
  paintCovered(row, std::min(line.x1, line.x2) - line.thickness,
               std::max(line.x1, line.x2) + line.thickness + 1, line.ink, [&](int x) {
                 const std::int64_t dx = halfPixels(x, line.x1);
                 const std::int64_t along = dx * alongX + dy * alongY;
                 const std::int64_t aside = dx * alongY - dy * alongX;
                 // Of pixels just on both edges, one edge's belong to the line.
                 return along >= 0 && along < 2 * lengthSquared &&
                        (aside < 0 ? aside * aside <= reach : aside * aside < reach);
               });
}

}  // namespace

void paintShape(const Shape& shape, int y, std::span<Ink> row) {
  std::visit([&](const auto& part) { paintPart(part, y, row); }, shape);
}

}  // namespace gdi::samplepages
