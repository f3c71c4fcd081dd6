// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/LastBandFlag.h"

namespace gdi::reader {

void LastBandFlag::take(const Seen& band) {
  const auto tell = [&](std::uint64_t offset, std::string text) {
    told_ = true;
    sink_({offset, Rule::kLastFlag, band.record, std::move(text)});
  };
  told_ = false;
  trailers_.clear();
  if (early_) {
    sink_(*std::exchange(early_, std::nullopt));
  } else if (closed_) {
    tell(band.bandOffset, "the band follows the page's last band");
  }
  closed_ = band.set && !band.notItsPlane;
  if (band.set && band.notItsPlane) {
    tell(band.flagsOffset,
         std::string("the last band of such a page is ").append(nameOf(*band.notItsPlane)));
  } else if (band.set && band.early) {
    early_ = Finding{band.flagsOffset, Rule::kLastFlag, band.record,
                     "the flag of the page's last band is set, and more bands follow"};
  }
}

void LastBandFlag::tellTrailer(Finding finding) {
  if (early_) {
    trailers_.push_back(std::move(finding));
  } else if (!told_) {
    sink_(finding);
  }
}

void LastBandFlag::finish() {
  for (const Finding& finding : std::exchange(trailers_, {})) {
    sink_(finding);
  }
}

}  // namespace gdi::reader
