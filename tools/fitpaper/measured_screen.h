// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A screen that was printed as a wedge, and how much light its patches were measured to send back.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tools/printmodel/Tile.h"

namespace gdi::fitpaper {

struct ScreenTiles {
  printmodel::Tile tile;
  int steps = 1;                                  // a pixel's highest value
  std::vector<std::vector<std::uint8_t>> levels;  // 256 of them, pixels row by row
};

struct Patch {
  std::size_t level = 0;     // 1 to 254
  double reflectance = 0.0;  // the paper's being 1, not below 0
};

struct Measurements {
  std::vector<Patch> patches;  // five at least, of rising levels
  double solid = 0.0;          // reflectance of level 255, the paper's being 1: 0 <= solid < 1
};

struct MeasuredScreen {
  ScreenTiles screen;
  Measurements measured;
};

// The screen in a file's bytes; nothing, with a line on standard error, when it is none with 256
// input levels.
std::optional<ScreenTiles> readScreenTiles(std::span<const std::uint8_t> data);

// The measurements that `text` states: lines "LEVEL VALUE", several of a level being averaged, and
// "unit reflectance", "unit density" or "unit lightness" (L*) for the lines after it. Levels 0, the
// paper, and 255, the solid, have to be there. Nothing when they are stated wrongly; `error` is
// then one line without a line feed, "NAME:LINE: what is wrong", with `name` for NAME.
std::optional<Measurements> parseMeasurements(std::string_view text, std::string_view name,
                                              std::string& error);

// The lightness L*, 0 to 100, of a reflectance of 0 to 1, and back.
double lightnessOf(double reflectance);
double reflectanceOf(double lightness);

}  // namespace gdi::fitpaper
