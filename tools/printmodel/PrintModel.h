// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// How dark a repeated tile of one ink prints.
#pragma once

#include <cstdint>
#include <span>

#include "tools/printmodel/LaserEngine.h"
#include "tools/printmodel/PaperLight.h"
#include "tools/printmodel/PaperModel.h"
#include "tools/printmodel/Tile.h"

namespace gdi::printmodel {

class PrintModel {
 public:
  // A pixel's value counts its `steps` equal parts, at least 1.
  PrintModel(const PaperModel& paper, const Tile& tile, int steps);

  // The printed area that the tile looks like: 0 for bare paper, 1 for a full solid.
  // Requires: one value of 0 to steps for each pixel, row by row.
  [[nodiscard]] double printedArea(std::span<const std::uint8_t> values) const;

 private:
  Tile tile_;
  double solid_;
  LaserEngine engine_;
  PaperLight light_;
};

}  // namespace gdi::printmodel
