// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The order in which a page's bands are sent: black first, the other planes some bands behind it.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "reader/records.h"

namespace gdi::reader {

// Bands of each plane, indexed by indexOf(ink).
using BandCounts = std::array<std::uint32_t, kInkCount>;

// The bands of a colour page, followed as they come.
class BandOrder {
 public:
  // bandsPerPlane: at most 65,536.
  explicit BandOrder(std::uint32_t bandsPerPlane) : bandsPerPlane_(bandsPerPlane) { findBand(); }

  // The plane whose band is next; nothing once all have come.
  [[nodiscard]] std::optional<Ink> expected() const;

  // A band of that plane has come. True when it is the next one, or one that was passed over
  // before: whoever comes early is out of order, not those that it overtook. A band that is not the
  // next one moves the order on to it, so that a lost band is told once.
  bool take(Ink ink);

 private:
  void advance();
  // Moves on to the next place that has a band.
  void findBand();

  std::uint32_t bandsPerPlane_;
  std::uint32_t step_ = 0;
  std::size_t place_ = 0;  // in the step
  BandCounts passedOver_{};
};

// The turn of a plane's band on a page of any number of rows: bands come in the order of their
// turns. index: of the plane, from 0.
std::uint64_t turnOf(Ink ink, std::uint32_t index);

// The bands of each plane that the first `steps` steps of such a page send.
BandCounts bandsOfSteps(std::uint32_t steps, std::uint32_t bandsPerPlane);

}  // namespace gdi::reader
