// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A flat colour of four planes on each other, printed.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "tools/printmodel/PaperLight.h"
#include "tools/screenquality/PrintedScreen.h"

namespace gdi::screenquality {

constexpr int kPatchSide = 512;  // pixels across and down that a patch is looked at
constexpr Tile kPatchField{kPatchSide, kPatchSide};

// The levels of cyan, magenta, yellow and black of a flat colour.
using Patch = std::array<std::uint8_t, 4>;
using PrintedPlanes = std::array<const PrintedScreen*, 4>;

// How far each plane is moved to the left and up, in pixels, at least 0.
struct Shift {
  int x = 0;
  int y = 0;
};
using Shifts = std::array<Shift, 4>;

class PatchPrinter {
 public:
  // Keeps the pointers. spread: of the light in the paper.
  PatchPrinter(const PrintedPlanes& planes, double spread) : planes_(planes), light_(spread) {}

  // The light of one channel (0 red, 1 green, 2 blue) that comes back from each pixel of the patch.
  [[nodiscard]] std::vector<double> channel(const Patch& patch, const Shifts& shifts,
                                            std::size_t rgb) const;

 private:
  PrintedPlanes planes_;
  printmodel::PaperLight light_;
};

}  // namespace gdi::screenquality
