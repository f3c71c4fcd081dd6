// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A screen's table entry by entry: the way of screens that thresholds cannot tell.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "halftone/screens/screen_header.h"

namespace gdi {

// The entries of a packed table of header.tableBytes() bytes, one a byte, in the order row, column,
// level.
[[nodiscard]] std::vector<std::uint8_t> unpackedTable(const ScreenHeader& header,
                                                      std::span<const std::uint8_t> packed);

// Whether the entry of level 0 is 0 in every cell.
[[nodiscard]] bool tableLeavesPaperBlank(const ScreenHeader& header,
                                         std::span<const std::uint8_t> unpacked);

// Screens one channel of a line with the tile row that `entries` are. The other arguments are those
// of HalftoneScreen::processScanline.
//   width  at least 1
//   depth  1, 2, 4 or 8
void screenByTable(const ScreenHeader& header, std::span<const std::uint8_t> entries,
                   const std::uint8_t* input, int width, int inputStride, int depth,
                   std::uint8_t* output);

}  // namespace gdi
