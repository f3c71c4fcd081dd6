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

std::optional<Ink> BandOrder::expected() const {
  if (step_ >= bandsPerPlane_ + kYellowLag) {
    return std::nullopt;
  }
  return kStep[place_].first;
}

bool BandOrder::take(Ink ink) {
  if (expected() == ink) {
    advance();
    return true;
  }
  if (passedOver_[indexOf(ink)] > 0) {
    --passedOver_[indexOf(ink)];
    return true;
  }
  // The plane's next band is at most a step away, unless it has none left.
  const BandOrder here = *this;
  for (std::size_t i = 0; i < kInkCount && expected() && expected() != ink; ++i) {
    ++passedOver_[indexOf(*expected())];
    advance();
  }
  if (expected() == ink) {
    advance();
  } else {
    *this = here;
  }
  return false;
}

void BandOrder::advance() {
  ++place_;
  findBand();
}

void BandOrder::findBand() {
  for (; step_ < bandsPerPlane_ + kYellowLag; ++step_, place_ = 0) {
    for (; place_ < kInkCount; ++place_) {
      const std::uint32_t lag = kStep[place_].second;
      if (step_ >= lag && step_ - lag < bandsPerPlane_) {
        return;
      }
    }
  }
}

std::uint64_t turnOf(Ink ink, std::uint32_t index) {
  std::uint64_t place = 0;
  while (kStep[place].first != ink) {
    ++place;
  }
  return (std::uint64_t{index} + kStep[place].second) * kInkCount + place;
}

BandCounts bandsOfSteps(std::uint32_t steps, std::uint32_t bandsPerPlane) {
  BandCounts sent{};
  for (const auto& [ink, lag] : kStep) {
    sent[indexOf(ink)] = steps > lag ? std::min(steps - lag, bandsPerPlane) : 0;
  }
  return sent;
}

}  // namespace gdi::reader
