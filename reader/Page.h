// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// One page put together from its bands: four planes of which a black-only page uses the last.
#pragma once

#include <array>
#include <cstdint>

#include "reader/StoredPlane.h"
#include "reader/records.h"
#include "reader/row_width.h"

namespace gdi::reader {

struct Page {
  PageRecord record;
  unsigned bitsPerPixel = 1;          // 1, 2 or 4
  std::uint32_t rowBits = 0;          // padded bits a row; the record tells the low 16
  std::uint64_t offset = 0;           // of the page record, bytes
  std::uint32_t bandCount = 0;        // band records that arrived
  std::uint64_t compressedBytes = 0;  // of all bands that arrived
  bool flaggedBlank = false;          // the last band record says that the page is blank
  std::array<StoredPlane, kInkCount> planes;

  [[nodiscard]] bool isColor() const { return record.channels > 1; }
  [[nodiscard]] const StoredPlane& plane(Ink ink) const { return planes[indexOf(ink)]; }
  // Rows of the longest plane: what arrived, not what the page record claims.
  [[nodiscard]] std::uint32_t rows() const;
  // Pixels of a row that belong to the page. A row is padded, and its padding only bounds where the
  // pixels end. Within these bounds it is the width on paper at 600 dots an inch; when the paper is
  // more than a point narrower than the least such width, it is all that the row has room for.
  [[nodiscard]] std::uint32_t widthPixels() const;
};

}  // namespace gdi::reader
