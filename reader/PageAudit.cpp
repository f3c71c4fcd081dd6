// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/PageAudit.h"

#include <algorithm>
#include <utility>

#include "codec/pc4sc4_format.h"
#include "reader/counted.h"

namespace gdi::reader {

PageAudit::PageAudit(const PageRecord& record, std::uint32_t ordinal, std::uint64_t offset,
                     std::optional<unsigned> bitsPerPixel, FindingSink tell)
    : sink_(std::move(tell)),
      pageName_("page " + std::to_string(ordinal)),
      recordName_(pageName_),
      planesKnown_(record.channels == 1 || record.channels == kInkCount),
      rowsTold_(rowsToldBy(record)),
      order_(bandsFor(rowsTold_.rows)) {
  summary_.record = record;
  summary_.ordinal = ordinal;
  summary_.offset = offset;
  summary_.bitsPerPixel = bitsPerPixel.value_or(1);
  end_.widthUnknown = !bitsPerPixel;
  if (record.rowBits % kRowBitsMultiple == 0) {
    summary_.rowBits = likelyRowBits(record, summary_.bitsPerPixel);
  }
}

BandVerdict PageAudit::addBand(const Band& band, std::uint64_t offset,
                               std::span<const Flaw> flaws) {
  ++summary_.bandCount;
  summary_.compressedBytes += band.data.size();
  bandOffset_ = offset;
  const auto broken = [flaws](Rule rule) {
    return std::ranges::any_of(flaws, [rule](const Flaw& flaw) { return flaw.rule == rule; });
  };
  manyPlanes_ = broken(Rule::kBandPlane);
  end_.bandsUnknown = end_.bandsUnknown || broken(Rule::kBandRows);
  end_.blanknessUnknown = end_.blanknessUnknown || broken(Rule::kBlankFlag);
  const std::optional<Ink> ink = inkOf(band);
  const bool onPage = ink && hasPlane(*ink);
  const std::optional<BandPlace> place = onPage ? std::optional(placeOf(*ink, band)) : std::nullopt;
  recordName_ = pageName_ + ", " + (place ? place->name() : "band record");
  for (const Flaw& flaw : flaws) {
    tell(offset + flaw.offset, flaw.rule, flaw.text);
  }
  BandVerdict verdict{place, false};
  if (place) {
    checkPlace(band, *place);
    verdict.sound = checkData(band, *place);
  } else {
    addMisplacedBand(ink);
  }
  summary_.lostBands += verdict.sound ? 0 : 1;
  recordName_ = pageName_;
  return verdict;
}

bool PageAudit::hasPlane(Ink ink) const {
  return !planesKnown_ || std::ranges::count(summary_.inks(), ink) != 0;
}

std::optional<Ink> PageAudit::inkOf(const Band& band) const {
  if (band.ink) {
    return band.ink;
  }
  const std::optional<Ink> next = summary_.isColor() ? order_.expected() : Ink::kBlack;
  const bool mayBeNext = next && (!manyPlanes_ || band.record.lengths[indexOf(*next)] != 0);
  return mayBeNext ? next : std::nullopt;
}

BandPlace PageAudit::placeOf(Ink ink, const Band& band) {
  PlaneSummary& plane = summary_.planeSummaries[indexOf(ink)];
  const BandPlace place{ink, plane.bands++};
  plane.rows += std::min<std::uint32_t>(band.record.rows, kBandHeight);
  plane.compressedBytes += band.data.size();
  const auto bytes = static_cast<std::uint32_t>(band.data.size());
  if (bytes > summary_.largestBandBytes) {
    summary_.largestBandBytes = bytes;
    summary_.largestBand = place;
  }
  return place;
}

void PageAudit::addMisplacedBand(std::optional<Ink> ink) {
  if (ink) {
    tell(bandOffset_ + lengthOffsetOf(*ink), Rule::kBandPlane,
         std::string("a ") + nameOf(*ink) + " band on a page of black alone");
  } else if (end_.closed && !manyPlanes_) {
    tell(bandOffset_, Rule::kLastFlag, "the band follows the page's last band");
  } else if (!manyPlanes_) {
    tell(bandOffset_, Rule::kNotCompressed,
         "the band was not compressed, and its plane cannot be told");
  }
  end_.bandsUnknown = end_.bandsUnknown || ink || manyPlanes_;
}

void PageAudit::checkPlace(const Band& band, BandPlace place) {
  const BandRecord& record = band.record;
  checkHeight(record, place);
  checkOrder(place);
  if (summary_.rowBits != 0 && record.rowBits != summary_.record.rowBits) {
    tell(bandOffset_ + band_record::kRowBitsOffset, Rule::kBandRowBits,
         "the band says " + counted(record.rowBits, "bit") + " a row, its page record " +
             std::to_string(summary_.record.rowBits));
  }
  checkFlags(record, place);
}

void PageAudit::checkHeight(const BandRecord& record, BandPlace place) {
  std::optional<ShortBand>& shortBand = shortBands_[indexOf(place.ink)];
  if (shortBand) {
    sink_({shortBand->offset + band_record::kRowsOffset, Rule::kBandHeight,
           pageName_ + ", " + BandPlace{place.ink, place.index - 1}.name(),
           "the band has " + counted(shortBand->rows, "row") + " and is not its plane's last"});
    shortBand.reset();
  }
  if (record.rows > 0 && record.rows < kBandHeight) {
    shortBand = {bandOffset_, record.rows};
  }
}

// The order depends on the page's rows: nobody knows it where the page record contradicts itself.
void PageAudit::checkOrder(BandPlace place) {
  const std::optional<Ink> expected = order_.expected();
  if (!summary_.isColor() || order_.take(place.ink) || !planesKnown_ || !rowsTold_.consistent) {
    return;
  }
  tell(bandOffset_, Rule::kBandOrder,
       expected ? std::string("a ") + nameOf(*expected) + " band should be here"
                : std::string("the page has all its bands"));
}

void PageAudit::checkFlags(const BandRecord& record, BandPlace place) {
  const std::uint64_t offset = bandOffset_ + band_record::kFlagsOffset;
  if (record.first() != (place.index == 0)) {
    tell(offset, Rule::kFirstFlag,
         record.first() ? "the flag of a plane's first band is set"
                        : "the flag of a plane's first band is missing");
  }
  const bool mayBeLast = !planesKnown_ || place.ink == summary_.lastInk();
  lastFlagTold_ = true;
  if (std::exchange(end_.closed, false)) {
    tell(bandOffset_, Rule::kLastFlag, "the band follows the page's last band");
  } else if (record.last() && !mayBeLast) {
    tell(offset, Rule::kLastFlag,
         std::string("the last band of such a page is ") + nameOf(summary_.lastInk()));
  } else {
    lastFlagTold_ = false;
  }
  end_.closed = record.last() && mayBeLast;
  end_.trailerTold = false;
  summary_.flaggedBlank = record.last() && record.pageBlank;
}

bool PageAudit::checkData(const Band& band, BandPlace place) {
  const BandRecord& record = band.record;
  if (!band.ink && !manyPlanes_) {
    tell(bandOffset_, Rule::kNotCompressed, "the band was not compressed: its rows are lost");
    return false;
  }
  if (band.data.empty() || record.rows == 0 || record.rows > kBandHeight ||
      record.rowBits != summary_.record.rowBits || summary_.rowBits == 0) {
    return false;
  }
  const BandDataReport report = examine(band);
  for (const Flaw& flaw : report.flaws) {
    const bool ofTheEnd = flaw.rule == Rule::kTrailer || flaw.rule == Rule::kBandEnd;
    if (!ofTheEnd || !lastFlagTold_) {
      tell(bandOffset_ + band_record::kLength + flaw.offset, flaw.rule, flaw.text);
    }
    end_.trailerTold =
        end_.trailerTold || (flaw.rule == Rule::kBandEnd && place.ink == summary_.lastInk() &&
                             band.data.size() - report.consumed == sizeof pc4sc4::kTrailer);
  }
  summary_.inked = summary_.inked || (report.complete && report.inked);
  return report.complete;
}

// Until there is ink, any length will do for the bands that have come; and what does not decode to
// rows of some length does not decode to shorter ones either.
BandDataReport PageAudit::examine(const Band& band) {
  const auto examineAs = [&band](std::uint32_t rowBits) {
    return examineBandData(band.data, band.record.rows, rowBits / 8, band.record.last());
  };
  BandDataReport report = examineAs(summary_.rowBits);
  if (report.complete || summary_.inked) {
    return report;
  }
  for (auto bits = nextLongerRow(summary_.rowBits); bits; bits = nextLongerRow(*bits)) {
    BandDataReport longer = examineAs(*bits);
    if (longer.complete) {
      tellOfPage(page_record::kRowBitsOffset, Rule::kWideRows,
                 "the page's rows are of " + std::to_string(*bits) +
                     " bits, which its paper's width does not suggest");
      summary_.rowBits = *bits;
      end_.widthUnknown = true;
      return longer;
    }
  }
  return report;
}

PageSummary PageAudit::finish(bool brokenOff) {
  summary_.brokenOff = brokenOff;
  if (!brokenOff && planesKnown_) {
    for (const Flaw& flaw : flawsOfPage(summary_, end_)) {
      tellOfPage(flaw.offset, flaw.rule, flaw.text);
    }
  }
  return summary_;
}

void PageAudit::tell(std::uint64_t offset, Rule rule, std::string text) const {
  sink_({offset, rule, recordName_, std::move(text)});
}

void PageAudit::tellOfPage(std::size_t offset, Rule rule, std::string text) const {
  sink_({summary_.offset + offset, rule, pageName_, std::move(text)});
}

}  // namespace gdi::reader
