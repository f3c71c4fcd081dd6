// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/band_order.h"

#include <algorithm>
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

BandCounts bandsOfSteps(std::uint32_t steps, std::uint32_t bandsPerPlane) {
  BandCounts sent{};
  for (const auto& [ink, lag] : kStep) {
    sent[indexOf(ink)] = steps > lag ? std::min(steps - lag, bandsPerPlane) : 0;
  }
  return sent;
}

}  // namespace gdi::reader
