// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What inks on top of each other look like on a screen: their transmittances are multiplied.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "reader/records.h"

namespace gdi::gdiview {

// Red, green and blue, 0 to 255; a grey has three equal ones.
using Color = std::array<std::uint8_t, 3>;

// The colour of a solid of one ink on white paper.
Color solidOf(reader::Ink ink);

class InkMixer {
 public:
  // inks: at most 4; bitsPerPixel: 1, 2 or 4.
  InkMixer(std::span<const reader::Ink> inks, unsigned bitsPerPixel);

  // The colour of a pixel, for all values that its inks can have together, in their order: they
  // stand side by side in a number, the first ink's in the lowest bitsPerPixel bits.
  [[nodiscard]] std::span<const Color> colors() const { return colors_; }

 private:
  std::vector<Color> colors_;
};

}  // namespace gdi::gdiview
