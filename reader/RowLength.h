// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// How long a page's rows are, found while its bands come: the records tell the low 16 bits alone,
// and a page record and its bands may contradict each other.
#pragma once

#include <cstdint>
#include <optional>

#include "reader/RecordReader.h"
#include "reader/band_data.h"

namespace gdi::reader {

class RowLength {
 public:
  // bitsPerPixel: 1, 2 or 4; nothing when the job record does not tell.
  RowLength(const PageRecord& record, std::optional<unsigned> bitsPerPixel);

  // Padded bits a row, a multiple of 128; 0 while nobody has told such a number.
  [[nodiscard]] std::uint32_t bits() const { return bits_; }
  // The pixels of a row cannot be told, or are not those that the paper suggests.
  [[nodiscard]] bool widthUnknown() const { return widthUnknown_; }

  // Takes a band's figure where the page record's is no multiple of 128, or where the paper vouches
  // for the band's alone.
  void hear(const BandRecord& band);

  struct Examined {
    BandDataReport report;
    bool longer = false;      // the page's rows have become longer than the paper suggests
    bool ofOwnWidth = false;  // the rows are as long as the band record says, not as the page's
  };
  // A band's data held against the rules. Until there is ink, the page's rows may turn out to be as
  // long as the band record says. Where the paper does not vouch for the length, longer rows are
  // tried whenever data do not decode or have ink in a row's last 32 bits: what does not decode to
  // rows of some length does not decode to shorter ones either, and what does decode has the same
  // words in longer ones.
  // requires: bits() != 0; the band has data and 1 to 256 rows
  Examined examine(const Band& band);

 private:
  [[nodiscard]] bool vouched(std::uint32_t rowBits) const;
  std::optional<BandDataReport> examineAsLonger(const Band& band);

  PageRecord record_;
  unsigned bitsPerPixel_;
  std::uint32_t bits_ = 0;
  bool widthUnknown_;
  bool inked_ = false;  // rows with ink were decoded, and so are of that length or longer
};

}  // namespace gdi::reader
