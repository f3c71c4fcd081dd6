// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A screen's tile as thresholds: what screens many pixels at once.
//
// A cell rises when its entries never decrease with the level and level 0 gives 0. Such a cell is
// told by its thresholds: the lowest sample at which its entry reaches rank 1, rank 2 and so on. A
// pixel's value is then the number of its thresholds that the sample reaches, which takes one
// comparison of bytes a rank and no table.
//
// A threshold is kept as the sample below it with the top bit flipped: `(sample ^ 0x80) > kept`, as
// signed bytes, is the comparison on every processor. A rank that no sample reaches keeps 127.
//
// Each row of the tile has a row of thresholds for each rank, repeated beyond the tile's width so
// that a whole vector can be read from any column: about 100 bytes, of which a line needs no more
// than 15.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "halftone/screens/screen_header.h"

namespace gdi {

// The thresholds of one row of a tile. They belong to the tile.
struct ThresholdRow {
  const std::uint8_t* thresholds = nullptr;  // of the lowest rank, from the tile's first column
  std::size_t rankPitch = 0;                 // bytes from a rank's thresholds to the next rank's
  std::size_t ranks = 0;                     // 1 for 1 bit a pixel, else 3 or 15
  std::size_t period = 0;                    // width of the tile, 1 to kLargestSide
};

class ThresholdTile {
 public:
  // Bytes that can be read from any of the `period` columns of a rank's thresholds.
  static constexpr std::size_t kReadable = 64;
  // Pixels across and down: no screen is larger, and what it takes in memory stays bounded.
  static constexpr int kLargestSide = 256;

  // The thresholds of a packed table of header.tableBytes() bytes. Nothing when a cell does not
  // rise, when entries are of 8 bits, and when the tile is larger than kLargestSide.
  static std::optional<ThresholdTile> fromTable(const ScreenHeader& header,
                                                std::span<const std::uint8_t> packed);

  // The row for pixels of `depth` bits. Shallower pixels than the screen's have the ranks that keep
  // an entry's top bits; deeper ones have its values as they are.
  //   tileRow  from 0, below the tile's height
  //   depth    1, 2, 4 or 8
  [[nodiscard]] ThresholdRow row(std::size_t tileRow, int depth) const;

 private:
  explicit ThresholdTile(const ScreenHeader& header);
  template <int depth>
  bool addCells(const ScreenHeader& header, std::span<const std::uint8_t> packed);
  void repeatColumns();

  std::size_t width_;
  int storedDepth_;
  std::size_t ranks_;  // rows of thresholds for each row of the tile
  std::size_t pitch_;  // bytes of each of them
  std::vector<std::uint8_t> thresholds_;
};

}  // namespace gdi
