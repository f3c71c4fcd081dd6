// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/CellMeans.h"

#include <algorithm>
#include <array>

namespace gdi::gdiview {

CellMeans::CellMeans(std::uint32_t width, std::uint32_t channels, std::uint32_t reduction)
    : width_(width),
      channels_(channels),
      reduction_(reduction),
      sums_(std::size_t{cellsOf(width, reduction)} * channels),
      means_(sums_.size()) {
}

void CellMeans::add(std::span<const std::uint8_t> row) {
  ++rows_;
  if (channels_ == 1) {
    addTo<1>(row);
  } else {
    addTo<3>(row);
  }
}

// A row has at most 229,376 samples: a cell's share of it fits 32 bits.
template <std::size_t kChannels>
void CellMeans::addTo(std::span<const std::uint8_t> row) {
  const std::uint8_t* sample = row.data();
  std::uint64_t* sum = sums_.data();
  for (std::uint32_t left = width_; left > 0;) {
    const std::uint32_t samples = std::min(reduction_, left);
    std::array<std::uint32_t, kChannels> cell{};
    for (std::uint32_t i = 0; i < samples; ++i) {
      for (std::size_t c = 0; c < kChannels; ++c) {
        cell[c] += sample[c];
      }
      sample += kChannels;
    }
    for (std::size_t c = 0; c < kChannels; ++c) {
      *sum++ += cell[c];
    }
    left -= samples;
  }
}

std::span<const std::uint8_t> CellMeans::take() {
  std::size_t i = 0;
  for (std::uint32_t left = width_; left > 0;) {
    const std::uint32_t samples = std::min(reduction_, left);
    const std::uint64_t count = std::max<std::uint64_t>(samples * rows_, 1);
    for (std::uint32_t c = 0; c < channels_; ++c, ++i) {
      means_[i] = static_cast<std::uint8_t>((sums_[i] + count / 2) / count);
    }
    left -= samples;
  }
  std::fill(sums_.begin(), sums_.end(), std::uint64_t{0});
  rows_ = 0;
  return means_;
}

}  // namespace gdi::gdiview
