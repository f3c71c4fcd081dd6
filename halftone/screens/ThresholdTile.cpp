// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "halftone/screens/ThresholdTile.h"

#include <algorithm>

#include "halftone/screens/cell_thresholds.h"

namespace gdi {
namespace {

constexpr std::uint8_t kTopBit = 0x80;
constexpr std::uint8_t kNever = 0xFF ^ kTopBit;

// Pixels deeper than 1 bit are counted three ranks at a time.
std::size_t ranksOf(int depth) {
  return std::max<std::size_t>((std::size_t{1} << depth) - 1, 3);
}

}  // namespace

std::optional<ThresholdTile> ThresholdTile::fromTable(const ScreenHeader& header,
                                                      std::span<const std::uint8_t> packed) {
  if (header.width > kLargestSide || header.height > kLargestSide) {
    return std::nullopt;
  }
  ThresholdTile tile(header);
  const bool rises = header.outputDepth == 1   ? tile.addCells<1>(header, packed)
                     : header.outputDepth == 2 ? tile.addCells<2>(header, packed)
                     : header.outputDepth == 4 ? tile.addCells<4>(header, packed)
                                               : false;
  if (!rises) {
    return std::nullopt;
  }
  tile.repeatColumns();
  return tile;
}

ThresholdTile::ThresholdTile(const ScreenHeader& header)
    : width_(static_cast<std::size_t>(header.width)),
      storedDepth_(header.outputDepth),
      ranks_(ranksOf(std::min(header.outputDepth, 4))),
      pitch_(width_ + kReadable - 1),
      thresholds_(static_cast<std::size_t>(header.height) * ranks_ * pitch_, kNever) {
}

template <int depth>
bool ThresholdTile::addCells(const ScreenHeader& header, std::span<const std::uint8_t> packed) {
  const auto levels = static_cast<unsigned>(header.levels());
  const int inputShift = 8 - header.inputDepth;
  std::size_t bit = 0;
  for (std::size_t row = 0; row < static_cast<std::size_t>(header.height); ++row) {
    for (std::size_t column = 0; column < width_; ++column) {
      std::uint8_t* const lowest = &thresholds_[row * ranks_ * pitch_ + column];
      const bool rises = findRises<depth>(packed, bit, levels, [&](unsigned rank, unsigned level) {
        const unsigned sampleBelow = (level << inputShift) - 1;
        lowest[(rank - 1) * pitch_] = static_cast<std::uint8_t>(sampleBelow ^ kTopBit);
      });
      if (!rises) {
        return false;
      }
      bit += std::size_t{levels} * depth;
    }
  }
  return true;
}

void ThresholdTile::repeatColumns() {
  for (auto row = thresholds_.begin(); row != thresholds_.end();
       row += static_cast<std::ptrdiff_t>(pitch_)) {
    for (std::size_t have = width_; have < pitch_;) {
      const std::size_t more = std::min(have, pitch_ - have);
      std::copy_n(row, more, row + static_cast<std::ptrdiff_t>(have));
      have += more;
    }
  }
}

ThresholdRow ThresholdTile::row(std::size_t tileRow, int depth) const {
  const std::size_t everyRank = storedDepth_ > depth ? std::size_t{1} << (storedDepth_ - depth) : 1;
  const std::size_t ranks = depth == 1 ? 1 : ranksOf(std::min(storedDepth_, depth));
  return {&thresholds_[(tileRow * ranks_ + everyRank - 1) * pitch_], everyRank * pitch_, ranks,
          width_};
}

}  // namespace gdi
