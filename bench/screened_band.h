// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Bands as the filter makes them, with the screens that ship.
#pragma once

#include <cstdint>
#include <vector>

#include "bench/page_samples.h"

namespace gdi::bench {

inline constexpr std::uint32_t kBandRows = 256;

// A band of a black plane: kBandRows rows.
struct ScreenedBand {
  std::uint32_t rowBytes = 0;
  std::vector<std::uint8_t> bytes;
};

// At 1, 2 or 4 bits a pixel.
ScreenedBand screenedBand(Content content, int depth);

}  // namespace gdi::bench
