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
  if (onBlack_) {
    sink_(*std::exchange(onBlack_, std::nullopt));
  }
  if (early_) {
    sink_(*std::exchange(early_, std::nullopt));
  } else if (closed_) {
    tell(band.bandOffset, "the band follows the page's last band");
  }
  closed_ = band.set && !band.notItsPlane;
  if (band.set && band.notItsPlane) {
    const std::string text =
        std::string("the last band of such a page is ").append(nameOf(*band.notItsPlane));
    if (band.ink == Ink::kBlack) {
      onBlack_ = Finding{band.flagsOffset, Rule::kLastFlag, band.record, text};
      told_ = true;
    } else {
      tell(band.flagsOffset, text);
    }
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

void LastBandFlag::finish(bool planesAreWrong) {
  if (onBlack_ && !planesAreWrong) {
    sink_(*onBlack_);
  }
  for (const Finding& finding : std::exchange(trailers_, {})) {
    sink_(finding);
  }
}

}  // namespace gdi::reader
