// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/page_rules.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "reader/band_order.h"
#include "reader/counted.h"

namespace gdi::reader {

namespace {

constexpr std::uint32_t kToldRows = 65536;  // pages longer by this are told alike

// What a page record tells as its bands: docs/quirks.md, "One band too many".
std::uint16_t bandCountFor(std::uint64_t rows) {
  return static_cast<std::uint16_t>((rows + kBandHeight + 1) / kBandHeight);
}

Flaw wrongBandCount(const PageRecord& record, std::uint16_t bandCount) {
  return {page_record::kBandCountOffset, Rule::kBandCount,
          "the page says that it has " + counted(record.bandCount, "band") + ", not " +
              std::to_string(bandCount)};
}

class PageRules {
 public:
  PageRules(const PageSummary& page, const PageEnd& end)
      : page_(page), end_(end), blackRows_(page.summaryOf(Ink::kBlack).rows) {}

  std::vector<Flaw> run();

 private:
  // The rows of a page that ends after as many steps as it had; nothing when it does not end so.
  [[nodiscard]] std::optional<std::uint32_t> rowsWithStepsLeftOut() const;
  [[nodiscard]] bool isExpected(Ink ink) const;
  void checkRows();
  void checkEnd();
  void checkBandCount();
  void checkBlankness();
  void checkPaperSize();
  void tell(std::size_t offset, Rule rule, std::string text) {
    flaws_.push_back({offset, rule, std::move(text)});
  }

  const PageSummary& page_;
  const PageEnd& end_;
  std::uint64_t blackRows_;
  std::uint64_t rows_ = 0;  // that the page should have
  bool rowsTold_ = false;   // that they are not as they should be
  std::vector<Flaw> flaws_;
};

std::vector<Flaw> PageRules::run() {
  if (const std::optional<std::uint32_t> early = rowsWithStepsLeftOut()) {
    rows_ = *early;
    tell(0, Rule::kStepsLeftOut,
         "the page ends after its band step " +
             std::to_string(page_.summaryOf(Ink::kBlack).bands - 1) + ", as one of " +
             std::to_string(rows_) + " rows does");
  } else {
    rows_ = blackRows_ % kToldRows == page_.record.rowsModulo64K ? blackRows_
                                                                 : rowsToldBy(page_.record).rows;
    checkRows();
  }
  checkBandCount();
  checkBlankness();
  checkPaperSize();
  return std::move(flaws_);
}

// docs/quirks.md, "A page of 257 rows"
std::optional<std::uint32_t> PageRules::rowsWithStepsLeftOut() const {
  const std::uint32_t steps = page_.summaryOf(Ink::kBlack).bands;
  const std::uint32_t rows = steps * kBandHeight + 1;
  if (end_.lastFlagged || end_.strayRows > 0 || steps == 0 ||
      rows % kToldRows != page_.record.rowsModulo64K) {
    return std::nullopt;
  }
  const BandCounts sent = bandsOfSteps(steps, bandsFor(rows));
  const bool asSent = std::ranges::all_of(page_.inks(), [&](Ink ink) {
    const PlaneSummary& plane = page_.summaryOf(ink);
    return plane.bands == sent[indexOf(ink)] &&
           plane.rows == std::uint64_t{plane.bands} * kBandHeight;
  });
  return asSent ? std::optional(rows) : std::nullopt;
}

// Rows that are missing may be in bands that were not understood, which was told.
void PageRules::checkRows() {
  std::string planes;
  std::uint64_t missing = 0;
  bool tooMany = false;
  for (const Ink ink : {Ink::kBlack, Ink::kCyan, Ink::kMagenta, Ink::kYellow}) {
    const std::uint64_t have = page_.summaryOf(ink).rows;
    if (isExpected(ink) && have != rows_) {
      planes.append(planes.empty() ? "" : ", ").append(counted(have, "row"));
      planes.append(" of ").append(nameOf(ink));
      tooMany = tooMany || have > rows_;
      missing += have < rows_ ? rows_ - have : 0;
    }
  }
  rowsTold_ = !planes.empty();
  if (tooMany || missing > end_.strayRows) {
    tell(page_record::kRowsOffset, Rule::kPageRows,
         "the page has " + planes + ", not " + std::to_string(rows_));
  }
  checkEnd();
}

// Which planes a page of a strange number of planes has nobody knows, but for black.
bool PageRules::isExpected(Ink ink) const {
  return end_.planesKnown ? std::ranges::count(page_.inks(), ink) != 0 : ink == Ink::kBlack;
}

// A page that lacks the rows of its last band lacks the band: that is told once.
void PageRules::checkEnd() {
  const Ink lastInk = end_.planesKnown ? page_.lastInk() : Ink::kBlack;
  const bool lastPlaneIsShort = page_.summaryOf(lastInk).rows < rows_;
  if (!end_.lastFlagged && !end_.lastBandUnknown && !end_.trailerTold && !lastPlaneIsShort &&
      page_.bandCount > 0) {
    tell(0, Rule::kPageEnd, "the page's last band does not come");
  }
}

// Where fewer bands came than the page should have, a count that agrees with them is no fault of
// its own.
void PageRules::checkBandCount() {
  const std::uint16_t told = page_.record.bandCount;
  if (told != bandCountFor(rows_) && told != bandCountFor(blackRows_)) {
    flaws_.push_back(wrongBandCount(page_.record, bandCountFor(rows_)));
  }
}

void PageRules::checkBlankness() {
  if (end_.blanknessUnknown) {
    return;
  }
  if (page_.flaggedBlank && page_.inked) {
    tell(0, Rule::kBlankContent, "the page is flagged as blank and has ink");
  } else if (end_.lastFlagged && end_.strayRows == 0 && !page_.flaggedBlank && !page_.inked &&
             page_.lostBands == 0) {
    tell(0, Rule::kBlankContent, "the page has no ink and is not flagged as blank");
  }
}

// Rows that are not as they should be have no height to be held against the paper's.
void PageRules::checkPaperSize() {
  const std::uint64_t width = pixelsOnPaper(page_.record.widthMicrometres);
  const std::uint64_t height = pixelsOnPaper(page_.record.heightMicrometres);
  const std::uint64_t pixels = page_.widthPixels();
  const auto agree = [](std::uint64_t a, std::uint64_t b) {
    return a <= b + kPixelsPerPoint && b <= a + kPixelsPerPoint;
  };
  const bool widthAgrees = end_.widthUnknown || page_.rowBits == 0 || agree(width, pixels);
  if (!widthAgrees || (!rowsTold_ && !agree(height, rows_))) {
    tell(page_record::kWidthOffset, Rule::kPaperSize,
         "the page has " + std::to_string(pixels) + " x " + std::to_string(rows_) +
             " pixels; its paper has " + std::to_string(width) + " x " + std::to_string(height) +
             " at 600 dots an inch");
  }
}

}  // namespace

std::uint32_t bandsFor(std::uint32_t rows) {
  return (rows + kBandHeight - 1) / kBandHeight;
}

RowsTold rowsToldBy(const PageRecord& record) {
  const auto more =
      static_cast<std::uint16_t>(record.bandCount - bandCountFor(record.rowsModulo64K));
  if (more % (kToldRows / kBandHeight) != 0) {
    return {record.rowsModulo64K, false};
  }
  return {record.rowsModulo64K + more * kBandHeight, true};
}

std::vector<Flaw> flawsOfPage(const PageSummary& page, const PageEnd& end) {
  return PageRules(page, end).run();
}

std::vector<Flaw> flawsOfBrokenPage(const PageRecord& record) {
  if (rowsToldBy(record).consistent) {
    return {};
  }
  return {wrongBandCount(record, bandCountFor(record.rowsModulo64K))};
}

}  // namespace gdi::reader
