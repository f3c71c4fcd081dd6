// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// One page held against the format, band by band as its bands come. Nothing of a band is kept.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "reader/HeldFindings.h"
#include "reader/LastBandFlag.h"
#include "reader/Page.h"
#include "reader/PageBandOrder.h"
#include "reader/RecordReader.h"
#include "reader/RowLength.h"
#include "reader/page_rules.h"
#include "reader/rules.h"

namespace gdi::reader {

struct BandVerdict {
  std::optional<BandPlace> place;  // none: the band has no place on the page
  bool sound = false;              // its rows can be decoded
};

class PageAudit {
 public:
  // The record is checked here as far as it has to fit the page; its own flaws are the caller's.
  // offset: of the record. bitsPerPixel: 1, 2 or 4; nothing when the job record does not tell.
  PageAudit(const PageRecord& record, std::uint32_t ordinal, std::uint64_t offset,
            std::optional<unsigned> bitsPerPixel, FindingSink tell);

  // A band record with its flaws, which stands at `offset`.
  BandVerdict addBand(const Band& band, std::uint64_t offset, std::span<const Flaw> flaws);

  // So many bytes that are no record stand among the page's bands: any of these may be in them.
  void addGap(std::uint64_t bytes);

  // The page is over. brokenOff: the stream ends inside it, and what is missing is not told.
  PageSummary finish(bool brokenOff);

  [[nodiscard]] const PageSummary& summary() const { return summary_; }
  // The page's last band has come.
  [[nodiscard]] bool closed() const { return lastFlag_.closed() && !lastFlag_.doubtful(); }
  // All its bands have come, the last one behind the others.
  [[nodiscard]] bool complete() const;

 private:
  [[nodiscard]] bool hasPlane(Ink ink) const;
  // The plane of a band: that of its length, or, when that does not tell, the one whose turn it is.
  [[nodiscard]] std::optional<Ink> inkOf(const Band& band) const;
  // Its place on the page, which counts from now on.
  BandPlace placeOf(Ink ink, const Band& band);
  void addMisplacedBand(const Band& band, std::optional<Ink> ink);
  void checkPlace(const Band& band, BandPlace place);
  void checkRowBits(const BandRecord& record);
  void checkHeight(const BandRecord& record, BandPlace place);
  void checkFlags(const BandRecord& record, BandPlace place);
  bool checkData(const Band& band, BandPlace place);
  void tellOtherRowBits();
  void tellOtherPlanes();
  void tell(std::uint64_t offset, Rule rule, std::string text) const;
  void tellOfPage(std::size_t offset, Rule rule, std::string text) const;

  FindingSink sink_;
  PageSummary summary_;
  std::string pageName_;
  std::string recordName_;        // of what is being looked at
  std::uint64_t bandOffset_ = 0;  // of the band record that is being looked at
  RowLength rowLength_;
  RowsTold rowsTold_;
  PageBandOrder order_;
  bool gapHadBands_ = false;  // possibly
  bool manyPlanes_ = false;   // of the band: more than one plane has a length
  LastBandFlag lastFlag_;
  HeldFindings otherRowBits_;  // bands that all say the same other number of bits a row
  std::uint16_t otherRowBitsTold_ = 0;
  HeldFindings otherPlanes_;  // bands of planes that the page does not have
  // Of each plane the band of less than kBandHeight rows that came last.
  struct ShortBand {
    std::uint64_t offset = 0;
    std::uint32_t rows = 0;
  };
  std::array<std::optional<ShortBand>, kInkCount> shortBands_;
  PageEnd end_;
};

}  // namespace gdi::reader
