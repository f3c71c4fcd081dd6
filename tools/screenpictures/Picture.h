// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A small picture in few colours.
#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

#include "tools/png/PngFile.h"
#include "tools/printmodel/Tile.h"

namespace gdi::screenpictures {

using printmodel::Tile;

struct Picture {
  Tile size;
  std::vector<PngColour> palette;    // at most 256
  std::vector<std::uint8_t> places;  // in the palette, for each sample, row by row
};

// Each sample `times` across and down, times >= 1.
Picture magnified(const Picture& picture, int times);

// Two pictures of one height and one palette, side by side, `gap` samples of the palette's place
// `gapPlace` between them.
Picture besideEachOther(const Picture& left, const Picture& right, int gap, std::uint8_t gapPlace);

// Writes a PNG file; false when that cannot be done, errno saying why.
bool writePicture(const Picture& picture, const std::filesystem::path& path);

}  // namespace gdi::screenpictures
