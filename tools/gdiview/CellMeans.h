// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Rows of samples made smaller: one sample for a cell of samples, their mean.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace gdi::gdiview {

// How many cells of `reduction` hold `length` samples; the last one may be smaller.
// requires: reduction > 0
inline std::uint32_t cellsOf(std::uint32_t length, std::uint32_t reduction) {
  return length / reduction + (length % reduction != 0 ? 1 : 0);
}

class CellMeans {
 public:
  // A cell is `reduction` samples wide, counted from the left; channels: 1 or 3.
  // requires: reduction > 0
  CellMeans(std::uint32_t width, std::uint32_t channels, std::uint32_t reduction);

  // Adds a row of width x channels samples to the cells.
  void add(std::span<const std::uint8_t> row);
  // The means, rounded, of the rows added since the last call, channels bytes a cell; valid until
  // the next call.
  std::span<const std::uint8_t> take();

 private:
  template <std::size_t kChannels>
  void addTo(std::span<const std::uint8_t> row);

  std::uint32_t width_;
  std::uint32_t channels_;
  std::uint32_t reduction_;
  std::uint64_t rows_ = 0;           // added
  std::vector<std::uint64_t> sums_;  // a cell's channels side by side
  std::vector<std::uint8_t> means_;
};

}  // namespace gdi::gdiview
