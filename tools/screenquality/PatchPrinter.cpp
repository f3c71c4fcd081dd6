// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/PatchPrinter.h"

#include "tools/eye/colour.h"

namespace gdi::screenquality {
namespace {

using eye::kInks;

// Lets `passed` through the plane's toner too.
void cover(std::vector<double>& passed, const PrintedScreen& plane, std::size_t level,
           const Shift& shift, double solid) {
  const Tile& tile = plane.screen().tile;
  const std::vector<double> through = printmodel::transmissionOf(plane.coverage(level), solid);
  for (int y = 0; y < kPatchSide; ++y) {
    const double* row = &through[static_cast<std::size_t>((y + shift.y) % tile.height) *
                                 static_cast<std::size_t>(tile.width)];
    int column = shift.x % tile.width;
    double* to = &passed[static_cast<std::size_t>(y) * kPatchSide];
    for (int x = 0; x < kPatchSide; ++x) {
      to[x] *= row[column];
      column = column + 1 == tile.width ? 0 : column + 1;
    }
  }
}

}  // namespace

std::vector<double> PatchPrinter::channel(const Patch& patch, const Shifts& shifts,
                                          std::size_t rgb) const {
  std::vector<double> passed(kPatchField.size(), 1.0);
  for (std::size_t plane = 0; plane < planes_.size(); ++plane) {
    if (patch.at(plane) > 0) {
      cover(passed, *planes_.at(plane), patch.at(plane), shifts.at(plane), kInks.at(plane).at(rgb));
    }
  }
  return light_.reflectance(kPatchField, passed);
}

}  // namespace gdi::screenquality
