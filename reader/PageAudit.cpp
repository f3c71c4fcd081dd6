// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/PageAudit.h"

#include <algorithm>
#include <utility>

#include "reader/counted.h"

namespace gdi::reader {

namespace {

constexpr std::uint32_t kToldRows = 65536;  // pages longer by this are told alike

std::uint32_t bandsFor(std::uint32_t rows) {
  return (rows + kBandHeight - 1) / kBandHeight;
}

// What a page record tells as its bands: docs/quirks.md, "One band too many".
std::uint16_t bandCountFor(std::uint64_t rows) {
  return static_cast<std::uint16_t>((rows + kBandHeight + 1) / kBandHeight);
}

// The page's rows, of which the record's field has the low 16 bits, as its band count completes
// them; nothing when no number of rows has both.
std::optional<std::uint32_t> rowsToldBy(const PageRecord& record) {
  const auto more =
      static_cast<std::uint16_t>(record.bandCount - bandCountFor(record.rowsModulo64K));
  if (more % (kToldRows / kBandHeight) != 0) {
    return std::nullopt;
  }
  return record.rowsModulo64K + more * kBandHeight;
}

}  // namespace

PageAudit::PageAudit(const PageRecord& record, std::uint32_t ordinal, std::uint64_t offset,
                     unsigned bitsPerPixel, FindingSink tell)
    : sink_(std::move(tell)),
      pageName_("page " + std::to_string(ordinal)),
      recordName_(pageName_),
      rowsTold_(rowsToldBy(record).value_or(record.rowsModulo64K)),
      bandCountIsPossible_(rowsToldBy(record).has_value()),
      order_(bandsFor(rowsTold_)) {
  summary_.record = record;
  summary_.ordinal = ordinal;
  summary_.offset = offset;
  summary_.bitsPerPixel = bitsPerPixel;
  if (record.rowBits % kRowBitsMultiple == 0) {
    summary_.rowBits = likelyRowBits(record, bitsPerPixel);
  }
}

BandVerdict PageAudit::addBand(const Band& band, std::uint64_t offset,
                               std::span<const Flaw> flaws) {
  ++summary_.bandCount;
  summary_.compressedBytes += band.data.size();
  bandOffset_ = offset;
  std::optional<Ink> ink = band.ink;
  const bool manyPlanes =
      std::ranges::any_of(flaws, [](const Flaw& flaw) { return flaw.rule == Rule::kBandPlane; });
  if (!ink && !manyPlanes) {
    ink = summary_.isColor() ? order_.expected() : Ink::kBlack;
  }
  const bool onPage = ink && hasPlane(*ink);
  const std::optional<BandPlace> place = onPage ? std::optional(placeOf(*ink, band)) : std::nullopt;
  recordName_ = pageName_ + ", " + (place ? place->name() : "band record");
  for (const Flaw& flaw : flaws) {
    tell(offset + flaw.offset, flaw.rule, flaw.text);
  }
  BandVerdict verdict{place, false};
  if (ink && !onPage) {
    tell(offset + lengthOffsetOf(*ink), Rule::kBandPlane,
         std::string("a ") + nameOf(*ink) + " band on a page of black alone");
  }
  if (place) {
    checkPlace(band, *place);
    verdict.sound = checkData(band);
  }
  summary_.lostBands += verdict.sound ? 0 : 1;
  recordName_ = pageName_;
  return verdict;
}

bool PageAudit::hasPlane(Ink ink) const {
  return std::ranges::count(summary_.inks(), ink) != 0;
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

void PageAudit::checkPlace(const Band& band, BandPlace place) {
  const BandRecord& record = band.record;
  std::optional<ShortBand>& shortBand = shortBands_[indexOf(place.ink)];
  if (shortBand) {
    sink_({shortBand->offset + band_record::kRowsOffset, Rule::kBandHeight,
           pageName_ + ", " + BandPlace{place.ink, place.index - 1}.name(),
           "the band has " + counted(shortBand->rows, "row") + " and is not its plane's last"});
    shortBand.reset();
  }
  if (record.rows < kBandHeight) {
    shortBand = {bandOffset_, record.rows};
  }
  const std::optional<Ink> expected = order_.expected();
  if (summary_.isColor() && !order_.take(place.ink)) {
    tell(bandOffset_, Rule::kBandOrder,
         expected ? std::string("a ") + nameOf(*expected) + " band should be here"
                  : std::string("the page has all its bands"));
  }
  if (record.rowBits != summary_.record.rowBits) {
    tell(bandOffset_ + band_record::kRowBitsOffset, Rule::kBandRowBits,
         "the band says " + counted(record.rowBits, "bit") + " a row, its page record " +
             std::to_string(summary_.record.rowBits));
  }
  checkFlags(record, place);
}

void PageAudit::checkFlags(const BandRecord& record, BandPlace place) {
  const std::uint64_t offset = bandOffset_ + band_record::kFlagsOffset;
  if (record.first() != (place.index == 0)) {
    tell(offset, Rule::kFirstFlag,
         record.first() ? "the flag of a plane's first band is set"
                        : "the flag of a plane's first band is missing");
  }
  const Ink lastInk = summary_.isColor() ? Ink::kYellow : Ink::kBlack;
  if (std::exchange(closed_, false)) {
    tell(bandOffset_, Rule::kLastFlag, "the band follows the page's last band");
  } else if (record.last() && place.ink != lastInk) {
    tell(offset, Rule::kLastFlag,
         std::string("the last band of such a page is ") + nameOf(lastInk));
  }
  closed_ = record.last();
  summary_.flaggedBlank = record.last() && record.pageBlank;
}

bool PageAudit::checkData(const Band& band) {
  const BandRecord& record = band.record;
  if (!band.ink) {
    tell(bandOffset_, Rule::kNotCompressed, "the band was not compressed: its rows are lost");
    return false;
  }
  if (band.data.empty() || record.rows == 0 || record.rows > kBandHeight ||
      record.rowBits != summary_.record.rowBits || summary_.rowBits == 0) {
    return false;
  }
  const BandDataReport report = examine(band);
  for (const Flaw& flaw : report.flaws) {
    tell(bandOffset_ + band_record::kLength + flaw.offset, flaw.rule, flaw.text);
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
      return longer;
    }
  }
  return report;
}

// docs/quirks.md, "A page of 257 rows"
std::optional<std::uint32_t> PageAudit::rowsWithStepsLeftOut() const {
  const std::uint32_t steps = summary_.summaryOf(Ink::kBlack).bands;
  const std::uint32_t rows = steps * kBandHeight + 1;
  if (closed_ || steps == 0 || rows % kToldRows != summary_.record.rowsModulo64K) {
    return std::nullopt;
  }
  const BandCounts sent = bandsOfSteps(steps, bandsFor(rows));
  const bool asSent = std::ranges::all_of(summary_.inks(), [&](Ink ink) {
    const PlaneSummary& plane = summary_.summaryOf(ink);
    return plane.bands == sent[indexOf(ink)] &&
           plane.rows == std::uint64_t{plane.bands} * kBandHeight;
  });
  return asSent ? std::optional(rows) : std::nullopt;
}

PageSummary PageAudit::finish(bool brokenOff) {
  summary_.brokenOff = brokenOff;
  const std::uint8_t channels = summary_.record.channels;
  if (brokenOff || (channels != 1 && channels != kInkCount)) {
    return summary_;
  }
  std::uint64_t rows = summary_.summaryOf(Ink::kBlack).rows;
  if (const std::optional<std::uint32_t> early = rowsWithStepsLeftOut()) {
    rows = *early;
    tellOfPage(0, Rule::kStepsLeftOut,
               "the page ends after its band step " +
                   std::to_string(summary_.summaryOf(Ink::kBlack).bands - 1) + ", as one of " +
                   std::to_string(rows) + " rows does");
  } else {
    if (rows % kToldRows != summary_.record.rowsModulo64K) {
      rows = rowsTold_;
    }
    checkRows(rows);
  }
  checkBandCount(rows);
  checkBlankness();
  checkPaperSize(rows);
  return summary_;
}

void PageAudit::checkRows(std::uint64_t rows) {
  for (const Ink ink : {Ink::kBlack, Ink::kCyan, Ink::kMagenta, Ink::kYellow}) {
    const std::uint64_t have = summary_.summaryOf(ink).rows;
    if (hasPlane(ink) && have != rows) {
      tellOfPage(page_record::kRowsOffset, Rule::kPageRows,
                 "the page has " + counted(have, "row") + " of " + nameOf(ink) + ", not " +
                     std::to_string(rows));
    }
  }
  if (!closed_ && summary_.bandCount > 0) {
    tellOfPage(0, Rule::kPageEnd, "the page's last band does not come");
  }
}

void PageAudit::checkBandCount(std::uint64_t rows) {
  const std::uint16_t told = summary_.record.bandCount;
  if (!bandCountIsPossible_ || told != bandCountFor(rows)) {
    tellOfPage(page_record::kBandCountOffset, Rule::kBandCount,
               "the page says that it has " + counted(told, "band") + ", not " +
                   std::to_string(bandCountFor(rows)));
  }
}

void PageAudit::checkBlankness() {
  if (summary_.flaggedBlank && summary_.inked) {
    tellOfPage(0, Rule::kBlankContent, "the page is flagged as blank and has ink");
  } else if (closed_ && !summary_.flaggedBlank && !summary_.inked && summary_.lostBands == 0) {
    tellOfPage(0, Rule::kBlankContent, "the page has no ink and is not flagged as blank");
  }
}

void PageAudit::checkPaperSize(std::uint64_t rows) {
  const std::uint64_t width = pixelsOnPaper(summary_.record.widthMicrometres);
  const std::uint64_t height = pixelsOnPaper(summary_.record.heightMicrometres);
  const std::uint64_t pixels = summary_.widthPixels();
  const auto agree = [](std::uint64_t a, std::uint64_t b) {
    return a <= b + kPixelsPerPoint && b <= a + kPixelsPerPoint;
  };
  if (summary_.rowBits != 0 && (!agree(width, pixels) || !agree(height, rows))) {
    tellOfPage(page_record::kWidthOffset, Rule::kPaperSize,
               "the page has " + std::to_string(pixels) + " x " + std::to_string(rows) +
                   " pixels; its paper has " + std::to_string(width) + " x " +
                   std::to_string(height) + " at 600 dots an inch");
  }
}

void PageAudit::tell(std::uint64_t offset, Rule rule, std::string text) const {
  sink_({offset, rule, recordName_, std::move(text)});
}

void PageAudit::tellOfPage(std::size_t offset, Rule rule, std::string text) const {
  sink_({summary_.offset + offset, rule, pageName_, std::move(text)});
}

}  // namespace gdi::reader
