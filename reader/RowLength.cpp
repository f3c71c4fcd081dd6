// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/RowLength.h"

#include <algorithm>
#include <utility>

#include "reader/row_width.h"

namespace gdi::reader {

namespace {

bool isRowBits(std::uint16_t toldBits) {
  return toldBits % kRowBitsMultiple == 0;
}

// The length that such a band record tells.
std::uint32_t rowBitsOf(const BandRecord& band, PageRecord page, unsigned bitsPerPixel) {
  page.rowBits = band.rowBits;
  return likelyRowBits(page, bitsPerPixel);
}

BandDataReport examineAs(const Band& band, std::uint32_t rowBits) {
  return examineBandData(band.data, band.record.rows, rowBits / 8, band.record.last());
}

// Decodes to rows without ink behind their pixels.
bool fits(const BandDataReport& report) {
  return report.complete && std::ranges::none_of(report.flaws, [](const Flaw& flaw) {
           return flaw.rule == Rule::kRowSlack;
         });
}

}  // namespace

RowLength::RowLength(const PageRecord& record, std::optional<unsigned> bitsPerPixel)
    : record_(record), bitsPerPixel_(bitsPerPixel.value_or(1)), widthUnknown_(!bitsPerPixel) {
  if (isRowBits(record.rowBits)) {
    bits_ = likelyRowBits(record, bitsPerPixel_);
  }
}

void RowLength::hear(const BandRecord& band) {
  if (band.rowBits == record_.rowBits || !isRowBits(band.rowBits)) {
    return;
  }
  const std::uint32_t bits = rowBitsOf(band, record_, bitsPerPixel_);
  if (bits_ == 0 || (!vouched(bits_) && vouched(bits))) {
    bits_ = bits;
  }
}

RowLength::Examined RowLength::examine(const Band& band) {
  Examined examined{.report = examineAs(band, bits_)};
  if (!fits(examined.report)) {
    if (std::optional<BandDataReport> longer = examineAsLonger(band)) {
      examined = {.report = std::move(*longer), .longer = true};
    } else if (!examined.report.complete && band.record.rowBits != record_.rowBits &&
               isRowBits(band.record.rowBits)) {
      const std::uint32_t own = rowBitsOf(band.record, record_, bitsPerPixel_);
      BandDataReport asToldByTheBand = examineAs(band, own);
      examined.ofOwnWidth = asToldByTheBand.complete;
      if (examined.ofOwnWidth && !inked_) {
        bits_ = own;
        examined.report = std::move(asToldByTheBand);
      }
    }
  }
  inked_ = inked_ || (examined.report.complete && examined.report.inked);
  return examined;
}

bool RowLength::vouched(std::uint32_t rowBits) const {
  return paperVouchesFor(rowBits, record_, bitsPerPixel_);
}

std::optional<BandDataReport> RowLength::examineAsLonger(const Band& band) {
  if (!widthUnknown_ && vouched(bits_)) {
    return std::nullopt;
  }
  for (auto bits = nextLongerRow(bits_); bits; bits = nextLongerRow(*bits)) {
    BandDataReport report = examineAs(band, *bits);
    if (fits(report)) {
      bits_ = *bits;
      widthUnknown_ = true;
      return report;
    }
  }
  return std::nullopt;
}

}  // namespace gdi::reader
