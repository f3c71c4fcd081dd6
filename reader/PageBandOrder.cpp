// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/PageBandOrder.h"

namespace gdi::reader {

void PageBandOrder::take(BandPlace band, std::uint64_t offset, const std::string& record) {
  const std::uint64_t turn = turnOf(band.ink, band.index);
  rises_ = rises_ && turn >= nextTurn_;
  nextTurn_ = turn + 1;
  const std::optional<Ink> expected = order_.expected();
  if (order_.take(band.ink)) {
    return;
  }
  if (pardoned_ > 0) {
    --pardoned_;
    return;
  }
  found_.add({offset, Rule::kBandOrder, record,
              expected ? std::string("a ").append(nameOf(*expected)).append(" band should be here")
                       : std::string("the page has all its bands")});
}

void PageBandOrder::finish() {
  if (rises_) {
    found_.drop();
  } else {
    found_.release();
  }
}

}  // namespace gdi::reader
