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
  bool complete = false;     // every row record was decoded, in that row width
  std::size_t consumed = 0;  // bytes of the row records, when all of them are there
  bool inked = false;        // some bit of a decoded row is set, its last 32 included
  std::vector<Flaw> flaws;   // offsets from the start of the data, rising
};

// Examines a band's data, which may be anything. Rows and their records count from 0.
//   data      the compressed bytes; whether their number is a multiple of 16 is not looked at
//   rows      1 to 256
//   rowBytes  a multiple of 16
//   last      the band record's last-band flag
// Every row that does not decode is told, each judged by its own codes. Once there is one the rows
// below it are unknown: of these the codes, their number and what follows the last row are still
// examined, but neither codec habits nor the rows' last bits. Ends where the data end before a row
// or inside one, and before the first row if they are too short for so many. Allocates two rows and
// the flaws, of which there are at most two a row and a few a band.
BandDataReport examineBandData(std::span<const std::uint8_t> data, std::uint32_t rows,
                               std::size_t rowBytes, bool last);

}  // namespace gdi::reader
