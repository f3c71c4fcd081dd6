// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The bytes of a screen file: a short text header, a zero byte, and a packed table of outputs.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "tools/makescreens/lattice.h"
#include "tools/makescreens/tone.h"

namespace gdi::makescreens {

// The output of each pixel at each level: pixels row by row, the 256 levels of a pixel together.
std::vector<std::uint8_t> screenTable(std::size_t pixels, std::span<const std::uint32_t> order,
                                      const LevelUnits& levelUnits);

// Entries of `depth` bits (1, 2, 4 or 8), the first in a byte's most significant bits; the last
// byte is filled up with zeros. Requires: every entry below 2^depth.
std::string packed(std::span<const std::uint8_t> entries, int depth);

// The whole file. Requires: 256 entries for each pixel of the tile.
std::string screenFile(const Tile& tile, int depth, std::span<const std::uint8_t> table);

// The bytes that the file of such a tile has.
std::size_t screenFileSize(const Tile& tile, int depth);

}  // namespace gdi::makescreens
