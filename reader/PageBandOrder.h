// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The order of a colour page's bands, held against the rows that its page record tells. Where these
// are wrong, the order looks wrong from some band on: whether it is shows at the page's end.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "reader/HeldFindings.h"
#include "reader/Page.h"
#include "reader/band_order.h"

namespace gdi::reader {

class PageBandOrder {
 public:
  // bandsPerPlane: as the page record tells.
  PageBandOrder(FindingSink sink, std::uint32_t bandsPerPlane)
      : order_(bandsPerPlane), found_(std::move(sink)) {}

  // The plane whose band is next; nothing once all have come.
  [[nodiscard]] std::optional<Ink> expected() const { return order_.expected(); }

  // A band has come. offset, record: of its band record.
  void take(BandPlace band, std::uint64_t offset, const std::string& record);
  // So many bands may have come that were not understood, which was told.
  void pardon(std::uint64_t bands) { pardoned_ += bands; }
  // The page is over, and its rows are known: nothing is told without this call. Nothing is said of
  // bands that are in order for other rows than told: they lack rows or have too many, and that is
  // told.
  void finish();

 private:
  BandOrder order_;
  HeldFindings found_;
  std::uint64_t pardoned_ = 0;
  std::uint64_t nextTurn_ = 0;  // the least turn that a band may have now
  bool rises_ = true;           // no band came behind one whose turn is later
};

}  // namespace gdi::reader
