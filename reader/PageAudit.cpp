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
      rowLength_(record, bitsPerPixel),
      rowsTold_(rowsToldBy(record)),
      order_(sink_, bandsFor(rowsTold_.rows)),
      lastFlag_(sink_),
      otherRowBits_(sink_),
      otherPlanes_(sink_) {
  summary_.record = record;
  summary_.ordinal = ordinal;
  summary_.offset = offset;
  summary_.bitsPerPixel = bitsPerPixel.value_or(1);
  summary_.rowBits = rowLength_.bits();
  end_.planesKnown = record.channels == 1 || record.channels == kInkCount;
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
  end_.strayRows += broken(Rule::kBandRows) ? kBandHeight : 0;
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
    addMisplacedBand(band, ink);
  }
  summary_.lostBands += verdict.sound ? 0 : 1;
  recordName_ = pageName_;
  return verdict;
}

// A band is a record and at least 16 bytes.
void PageAudit::addGap(std::uint64_t bytes) {
  const std::uint64_t bands = bytes / (band_record::kLength + pc4sc4::kBandAlignment);
  end_.strayRows += bands * kBandHeight;
  end_.lastBandUnknown = end_.lastBandUnknown || bands > 0;
  gapHadBands_ = gapHadBands_ || bands > 0;
  order_.pardon(bands);
}

bool PageAudit::complete() const {
  return closed() && end_.strayRows == 0 && rowsTold_.consistent &&
         std::ranges::all_of(summary_.inks(), [this](Ink ink) {
           return summary_.summaryOf(ink).rows == rowsTold_.rows;
         });
}

bool PageAudit::hasPlane(Ink ink) const {
  return !end_.planesKnown || std::ranges::count(summary_.inks(), ink) != 0;
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
  plane.rows += band.record.rows <= kBandHeight ? band.record.rows : 0;
  plane.compressedBytes += band.data.size();
  const auto bytes = static_cast<std::uint32_t>(band.data.size());
  if (bytes > summary_.largestBandBytes) {
    summary_.largestBandBytes = bytes;
    summary_.largestBand = place;
  }
  return place;
}

// Whatever it is, it may be the band that some plane lacks.
void PageAudit::addMisplacedBand(const Band& band, std::optional<Ink> ink) {
  if (ink) {
    otherPlanes_.add({bandOffset_ + lengthOffsetOf(*ink), Rule::kBandPlane, recordName_,
                      std::string("a ") + nameOf(*ink) + " band on a page of black alone"});
    end_.lastFlagged = end_.lastFlagged || band.record.last();
  } else if (!manyPlanes_ && lastFlag_.closed()) {
    tell(bandOffset_, Rule::kLastFlag, "the band follows the page's last band");
  } else if (!manyPlanes_) {
    tell(bandOffset_, Rule::kNotCompressed,
         "the band was not compressed, and its plane cannot be told");
  }
  if (ink || manyPlanes_) {
    end_.strayRows += kBandHeight;
    end_.lastBandUnknown = end_.lastBandUnknown || manyPlanes_;
    order_.pardon(1);
  }
}

void PageAudit::checkPlace(const Band& band, BandPlace place) {
  checkHeight(band.record, place);
  if (summary_.isColor()) {
    order_.take(place, bandOffset_, recordName_);
  }
  checkRowBits(band.record);
  checkFlags(band.record, place);
}

// Where all bands contradict the page record alike, it is the page record that is wrong.
void PageAudit::checkRowBits(const BandRecord& record) {
  rowLength_.hear(record);
  const std::uint16_t told = summary_.record.rowBits;
  if (record.rowBits == told || told % kRowBitsMultiple != 0) {
    otherRowBits_.release();
    return;
  }
  if (otherRowBits_.count() > 0 && record.rowBits != otherRowBitsTold_) {
    otherRowBits_.release();
  }
  otherRowBitsTold_ = record.rowBits;
  otherRowBits_.add({bandOffset_ + band_record::kRowBitsOffset, Rule::kBandRowBits, recordName_,
                     "the band says " + counted(record.rowBits, "bit") +
                         " a row, its page record " + std::to_string(told)});
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

void PageAudit::checkFlags(const BandRecord& record, BandPlace place) {
  const std::uint64_t offset = bandOffset_ + band_record::kFlagsOffset;
  const bool mayLackFirst = place.index == 0 && gapHadBands_;
  if (record.first() != (place.index == 0) && !mayLackFirst) {
    tell(offset, Rule::kFirstFlag,
         record.first() ? "the flag of a plane's first band is set"
                        : "the flag of a plane's first band is missing");
  }
  LastBandFlag::Seen seen{bandOffset_, offset, recordName_, place.ink, record.last()};
  if (end_.planesKnown && place.ink != summary_.lastInk()) {
    seen.notItsPlane = summary_.lastInk();
  }
  seen.early = end_.planesKnown && rowsTold_.consistent &&
               std::uint64_t{place.index} + 1 < bandsFor(rowsTold_.rows);
  lastFlag_.take(seen);
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
      rowLength_.bits() == 0) {
    return false;
  }
  const RowLength::Examined examined = rowLength_.examine(band);
  const BandDataReport& report = examined.report;
  summary_.rowBits = rowLength_.bits();
  if (examined.longer) {
    tellOfPage(page_record::kRowBitsOffset, Rule::kWideRows,
               "the page's rows are of " + std::to_string(summary_.rowBits) +
                   " bits, which its paper's width does not suggest");
  }
  for (const Flaw& flaw : report.flaws) {
    const std::uint64_t offset = bandOffset_ + band_record::kLength + flaw.offset;
    if (flaw.rule == Rule::kTrailer || flaw.rule == Rule::kBandEnd) {
      lastFlag_.tellTrailer({offset, flaw.rule, recordName_, flaw.text});
    } else if (flaw.rule != Rule::kBandData || !examined.ofOwnWidth) {
      tell(offset, flaw.rule, flaw.text);
    }
    end_.trailerTold =
        end_.trailerTold || (flaw.rule == Rule::kBandEnd && place.ink == summary_.lastInk() &&
                             band.data.size() - report.consumed == sizeof pc4sc4::kTrailer);
  }
  summary_.inked = summary_.inked || (report.complete && report.inked);
  return report.complete;
}

PageSummary PageAudit::finish(bool brokenOff) {
  summary_.brokenOff = brokenOff;
  tellOtherRowBits();
  tellOtherPlanes();
  end_.lastFlagged = end_.lastFlagged || lastFlag_.closed();
  end_.widthUnknown = rowLength_.widthUnknown();
  for (const Flaw& flaw :
       brokenOff ? flawsOfBrokenPage(summary_.record) : flawsOfPage(summary_, end_)) {
    tellOfPage(flaw.offset, flaw.rule, flaw.text);
    summary_.stepsLeftOut = summary_.stepsLeftOut || flaw.rule == Rule::kStepsLeftOut;
  }
  return summary_;
}

// What all bands say differs from the page record is told of the page record.
void PageAudit::tellOtherRowBits() {
  if (otherRowBits_.count() > 1 && otherRowBits_.count() == summary_.bandCount) {
    otherRowBits_.drop();
    tellOfPage(page_record::kRowBitsOffset, Rule::kBandRowBits,
               "the page record says " + counted(summary_.record.rowBits, "bit") +
                   " a row, all its bands " + std::to_string(otherRowBitsTold_));
  }
  otherRowBits_.release();
}

// More bands of other planes than go astray are of a page that has these planes.
void PageAudit::tellOtherPlanes() {
  constexpr std::uint64_t kStrayBands = 2;
  const bool hasMore = otherPlanes_.count() > kStrayBands;
  const bool blackAlone =
      summary_.bandCount == summary_.summaryOf(Ink::kBlack).bands && lastFlag_.closedByBlack();
  if (hasMore) {
    otherPlanes_.drop();
    tellOfPage(page_record::kChannelsOffset, Rule::kBandPlane,
               "the page is of black alone and has " + counted(otherPlanes_.count(), "band") +
                   " of other planes");
  } else if (blackAlone) {
    tellOfPage(page_record::kChannelsOffset, Rule::kBandPlane,
               "the page is of four planes and has bands of black alone");
    end_.planesKnown = false;
    end_.lastFlagged = true;
  }
  otherPlanes_.release();
  lastFlag_.finish(blackAlone);
  if (end_.planesKnown && rowsTold_.consistent) {
    order_.finish();
  }
}

void PageAudit::tell(std::uint64_t offset, Rule rule, std::string text) const {
  sink_({offset, rule, recordName_, std::move(text)});
}

void PageAudit::tellOfPage(std::size_t offset, Rule rule, std::string text) const {
  sink_({summary_.offset + offset, rule, pageName_, std::move(text)});
}

}  // namespace gdi::reader
