// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// One compressed band held against every rule that there is for its bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "reader/rules.h"

namespace gdi::reader {

struct BandDataReport {
  bool complete = false;          // every row record was decoded, in that row width
  std::size_t consumed = 0;       // bytes of the row records, when complete
  bool inked = false;             // some bit of a decoded row is set, its last 32 included
  std::uint32_t decodedRows = 0;  // rows before the first one that does not decode
  std::vector<Flaw> flaws;        // offsets from the start of the data, rising
};

// Examines a band's data, which may be anything. Rows and their records count from 0.
//   data      the compressed bytes; whether their number is a multiple of 16 is not looked at
//   rows      1 to 256
//   rowBytes  a multiple of 16
//   last      the band record's last-band flag
// Ends at the first row that does not decode, and before the first one if the data are too short
// for so many rows. What a row's number of code words or the missing clear-row command tells is
// told of that row too; codec habits and the rows' last bits only of those that decode. Allocates
// two rows and the flaws, of which there is at most one a row and a few a band.
BandDataReport examineBandData(std::span<const std::uint8_t> data, std::uint32_t rows,
                               std::size_t rowBytes, bool last);

}  // namespace gdi::reader
