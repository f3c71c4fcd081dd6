// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/samplepages/PageSource.h"

#include <algorithm>
#include <vector>

namespace gdi::samplepages {

bool PageShape::valid() const {
  const auto sideFits = [](int side) { return side >= 1 && side <= kMaxSide; };
  return sideFits(width) && sideFits(height) && (channels == 1 || channels == 4);
}

std::size_t PageSource::rowBytes() const {
  return static_cast<std::size_t>(shape_.width) * static_cast<std::size_t>(shape_.channels);
}

bool PageSource::scanline(int y, std::span<std::uint8_t> row) const {
  if (y < 0 || y >= shape_.height || row.size() != rowBytes()) {
    return false;
  }
  std::vector<Ink> inks(static_cast<std::size_t>(shape_.width));
  paint(y, inks);
  if (shape_.channels == 1) {
    std::ranges::transform(inks, row.begin(), greyOf);
    return true;
  }
  auto sample = row.begin();
  for (const Ink& ink : inks) {
    for (const std::uint8_t value : {ink.cyan, ink.magenta, ink.yellow, ink.black}) {
      *sample++ = value;
    }
  }
  return true;
}

}  // namespace gdi::samplepages
