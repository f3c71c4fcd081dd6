// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Rows of CMYK pixels matched with a memory for colours: pages are mostly runs of one colour, and
// pictures repeat their pixels in the next row, while matching a pixel takes some fifty times as
// long as copying it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <vector>

namespace gdi {

class RememberedColors {
 public:
  // Turns `count` pixels of 4 bytes in place; what becomes of a pixel depends on that pixel alone.
  using MatchPixels = std::function<void(std::uint8_t* pixels, std::size_t count)>;

  explicit RememberedColors(MatchPixels matchPixels);

  // What matchPixels makes of the row's pixels, in place, but for pixels without ink, which stay so
  // whatever a profile says of paper. `row` holds whole pixels.
  void matchRow(std::span<std::uint8_t> row);

 private:
  // A colour and what becomes of it, each as its four bytes stand in memory.
  struct Color {
    std::uint32_t pixel;
    std::uint32_t matched;
  };
  struct Run {
    std::size_t begin;  // pixels of the row
    std::size_t end;
  };

  MatchPixels matchPixels_;
  std::vector<Color> colors_;  // each in the only place where it may stand
  // Of the row under way: the runs whose colours are not remembered, and these colours.
  std::vector<Run> unknownRuns_;
  std::vector<std::uint32_t> unknown_;
};

}  // namespace gdi
