// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What is wrong with a page as a whole, once all its bands have come.
#pragma once

#include <cstdint>
#include <vector>

#include "reader/Page.h"
#include "reader/rules.h"

namespace gdi::reader {

// The rows that a page record's two fields tell together.
struct RowsTold {
  std::uint32_t rows = 0;
  bool consistent = true;  // false: no number of rows has both; rows is then the rows' field
};
RowsTold rowsToldBy(const PageRecord& record);

// Bands of a plane of so many rows.
std::uint32_t bandsFor(std::uint32_t rows);

// How the page ended, and what was told of its bands, so that a fault is not told twice.
struct PageEnd {
  bool planesKnown = true;        // the page record tells a number of planes that exists
  bool lastFlagged = false;       // its last band has come
  bool lastBandUnknown = false;   // its last band may have come and was not understood
  std::uint64_t strayRows = 0;    // at most so many rows came in bands that were not understood
  bool trailerTold = false;       // its final band has a trailer and no flag, which was told
  bool blanknessUnknown = false;  // its last band's page-blank flag is none
  bool widthUnknown = false;      // its rows' pixels cannot be told, or were told to be strange
};

// The flaws in the order in which they are told; offsets from the page record's start.
std::vector<Flaw> flawsOfPage(const PageSummary& page, const PageEnd& end);

// What is wrong with a page record whose page did not come to its end.
std::vector<Flaw> flawsOfBrokenPage(const PageRecord& record);

}  // namespace gdi::reader
