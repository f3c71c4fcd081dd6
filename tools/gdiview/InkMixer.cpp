// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/InkMixer.h"

#include <cmath>
#include <cstddef>

namespace gdi::gdiview {

Color solidOf(reader::Ink ink) {
  switch (ink) {
    case reader::Ink::kCyan:
      return {0, 160, 225};
    case reader::Ink::kMagenta:
      return {225, 0, 125};
    case reader::Ink::kYellow:
      return {255, 230, 0};
    case reader::Ink::kBlack:
      break;
  }
  return {0, 0, 0};
}

// A value v of at most m lets 1 - v / m of the paper through and v / m of the solid.
InkMixer::InkMixer(std::span<const reader::Ink> inks, unsigned bitsPerPixel)
    : colors_(std::size_t{1} << (inks.size() * bitsPerPixel)) {
  const unsigned most = (1U << bitsPerPixel) - 1;
  for (std::size_t values = 0; values < colors_.size(); ++values) {
    std::array<double, 3> transmittance{1, 1, 1};
    for (std::size_t i = 0; i < inks.size(); ++i) {
      const double share = static_cast<double>(values >> (i * bitsPerPixel) & most) / most;
      const Color solid = solidOf(inks[i]);
      for (std::size_t c = 0; c < solid.size(); ++c) {
        transmittance[c] *= 1 - share * (1 - solid[c] / 255.0);
      }
    }
    for (std::size_t c = 0; c < transmittance.size(); ++c) {
      colors_[values][c] = static_cast<std::uint8_t>(std::lround(255 * transmittance[c]));
    }
  }
}

}  // namespace gdi::gdiview
