// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// One page put together from its bands: four planes of which a black-only page uses the last.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "reader/Checksum.h"
#include "reader/StoredPlane.h"
#include "reader/records.h"
#include "reader/row_width.h"

namespace gdi::reader {

// A band as people name it: "cyan band 3".
struct BandPlace {
  Ink ink = Ink::kBlack;
  std::uint32_t index = 0;  // of its plane, from 0

  [[nodiscard]] std::string name() const {
    std::string text = nameOf(ink);
    return text.append(" band ").append(std::to_string(index));
  }
  bool operator==(const BandPlace&) const = default;
};

// What arrived of one plane. Bands that were lost count.
struct PlaneSummary {
  std::uint32_t bands = 0;
  std::uint64_t rows = 0;
  std::uint64_t compressedBytes = 0;
};

// What is known of a page when its bands are gone.
struct PageSummary {
  PageRecord record;
  std::uint32_t ordinal = 0;  // in the job, from 1
  std::uint64_t offset = 0;   // of the page record, bytes
  unsigned bitsPerPixel = 1;  // 1, 2 or 4
  // Padded bits a row, of which the record tells the low 16. A multiple of 128; 0 when the record's
  // bits are not.
  std::uint32_t rowBits = 0;
  std::uint32_t bandCount = 0;        // band records that arrived
  std::uint32_t lostBands = 0;        // of these, bands whose rows cannot be told
  std::uint64_t compressedBytes = 0;  // of all bands that arrived
  std::uint32_t largestBandBytes = 0;
  BandPlace largestBand;
  bool flaggedBlank = false;  // the last band record says that the page is blank
  bool inked = false;         // a pixel is not blank
  bool brokenOff = false;     // the stream ended inside the page
  bool stepsLeftOut = false;  // it ended as a page of 256 k + 1 rows does
  std::array<PlaneSummary, kInkCount> planeSummaries;  // indexed by indexOf(ink)

  // By the page record or, where that tells no number of planes that exists, by the bands.
  [[nodiscard]] bool isColor() const;
  // The planes of a page, in the order of kInks: all four or black alone.
  [[nodiscard]] std::span<const Ink> inks() const;
  // The plane that the page's last band is of.
  [[nodiscard]] Ink lastInk() const { return isColor() ? Ink::kYellow : Ink::kBlack; }
  [[nodiscard]] const PlaneSummary& summaryOf(Ink ink) const {
    return planeSummaries[indexOf(ink)];
  }
  // Bytes that the planes' rows take when they are not compressed.
  [[nodiscard]] std::uint64_t bytesOfRows() const;
  // Pixels of a row that belong to the page. A row is padded, and its padding only bounds where the
  // pixels end. Within these bounds it is the width on paper at pixelsPerInchOf(); when the paper
  // is more than a point narrower than the least such width, it is all that the row has room for.
  [[nodiscard]] std::uint32_t widthPixels() const;
};

// A band record as it stands, and what became of it.
struct BandOnPage {
  std::array<std::uint8_t, band_record::kLength> header{};
  std::optional<BandPlace> place;  // none: the page has none for it
  std::uint64_t dataBytes = 0;     // that followed it
};

struct Page : PageSummary {
  std::vector<std::uint8_t> header;     // the page record as it stands
  std::vector<BandOnPage> bandRecords;  // in the order in which they came
  // What else came inside the page, and behind how many bands: bytes that are no record, data of
  // bands without a place, and that there were records which are no page's. Only the first are
  // counted.
  Checksum strayBytes;
  // A band of a plane has the index of its place.
  std::array<StoredPlane, kInkCount> planes;

  [[nodiscard]] const StoredPlane& plane(Ink ink) const { return planes[indexOf(ink)]; }
  // Rows of the longest plane: what arrived, not what the page record claims.
  [[nodiscard]] std::uint32_t rows() const;
};

}  // namespace gdi::reader
