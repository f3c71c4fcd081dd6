// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/samplepages/Glyph.h"

#include <algorithm>
#include <cstddef>

namespace gdi::samplepages {
namespace {

// Lengths below are in subunits of a pixel, of which it has as many as a grid unit has.
constexpr std::int64_t kPixel = kUnit;
constexpr int kGridHeight = 10;  // of a letter with a descender, grid units

// The whole part of the square root; 0 <= number < 2^32.
std::int64_t squareRoot(std::int64_t number) {
  std::int64_t root = 0;
  for (std::int64_t bit = std::int64_t{1} << 15; bit > 0; bit >>= 1) {
    if ((root + bit) * (root + bit) <= number) {
      root += bit;
    }
  }
  return root;
}

std::int64_t distanceSquared(std::int64_t x, std::int64_t y, const Stroke& stroke) {
  const std::int64_t alongX = stroke.to.x - stroke.from.x;
  const std::int64_t alongY = stroke.to.y - stroke.from.y;
  const std::int64_t fromX = x - stroke.from.x;
  const std::int64_t fromY = y - stroke.from.y;
  const std::int64_t lengthSquared = alongX * alongX + alongY * alongY;
  const std::int64_t dot = fromX * alongX + fromY * alongY;
  if (dot <= 0) {
    return fromX * fromX + fromY * fromY;
  }
  if (dot >= lengthSquared) {
    const std::int64_t toX = x - stroke.to.x;
    const std::int64_t toY = y - stroke.to.y;
    return toX * toX + toY * toY;
  }
  const std::int64_t cross = fromX * alongY - fromY * alongX;
  return cross * cross / lengthSquared;
}

// Of a pixel whose centre is so far from the middle of a stroke of a pen of that radius.
std::uint8_t coverageAt(std::int64_t squaredDistance, std::int64_t radius) {
  const std::int64_t outer = radius + kPixel / 2;
  const std::int64_t inner = std::max<std::int64_t>(radius - kPixel / 2, 0);
  if (squaredDistance >= outer * outer) {
    return 0;
  }
  if (squaredDistance <= inner * inner) {
    return 255;
  }
  return static_cast<std::uint8_t>((outer - squareRoot(squaredDistance)) * 255 / (outer - inner));
}

}  // namespace

Glyph::Glyph(const Letter& letter, int unitPixels)
    : advance_(letter.advance * unitPixels / kUnit),
      width_(advance_ + 2 * unitPixels),
      height_((kGridHeight + 2) * unitPixels),
      coverage_(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_)) {
  for (const Stroke& stroke : letter.strokes) {
    draw(stroke, unitPixels);
  }
}

void Glyph::draw(const Stroke& stroke, int unitPixels) {
  const auto moved = [&](const Point& point) {
    return Point{(point.x + kUnit) * unitPixels, (point.y + kUnit) * unitPixels};
  };
  const Stroke inPixels{moved(stroke.from), moved(stroke.to)};
  const std::int64_t radius = unitPixels * kPixel / 2;
  const auto [left, right] = std::minmax(inPixels.from.x, inPixels.to.x);
  const auto [top, bottom] = std::minmax(inPixels.from.y, inPixels.to.y);
  const int reach = unitPixels / 2 + 2;
  for (int y = std::max(top / kUnit - reach, 0); y < std::min(bottom / kUnit + reach + 1, height_);
       ++y) {
    for (int x = std::max(left / kUnit - reach, 0); x < std::min(right / kUnit + reach + 1, width_);
         ++x) {
      std::uint8_t& pixel =
          coverage_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                    static_cast<std::size_t>(x)];
      const std::int64_t squared =
          distanceSquared(x * kPixel + kPixel / 2, y * kPixel + kPixel / 2, inPixels);
      pixel = std::max(pixel, coverageAt(squared, radius));
    }
  }
}

std::uint8_t Glyph::coverage(int x, int y) const {
  return coverage_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                   static_cast<std::size_t>(x)];
}

}  // namespace gdi::samplepages
