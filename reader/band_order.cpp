// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/band_order.h"

#include <utility>

namespace gdi::reader {

namespace {

// The planes of one step, in their order, and how many bands each trails black.
constexpr std::array<std::pair<Ink, std::uint32_t>, kInkCount> kStep{{
    {Ink::kBlack, 0},
    {Ink::kCyan, kCyanLag},
    {Ink::kMagenta, kMagentaLag},
    {Ink::kYellow, kYellowLag},
}};

}  // namespace

std::optional<Ink> nextInWriterOrder(const BandCounts& arrived, std::uint32_t bandsPerPlane) {
  BandCounts sent{};
  for (std::uint32_t step = 0; step < bandsPerPlane + kYellowLag; ++step) {
    for (const auto& [ink, lag] : kStep) {
      if (step < lag || step - lag >= bandsPerPlane) {
        continue;
      }
      if (sent == arrived) {
        return ink;
      }
      ++sent[indexOf(ink)];
    }
  }
  return std::nullopt;
}

}  // namespace gdi::reader
