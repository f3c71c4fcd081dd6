// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/swallowed_record.h"

#include <span>

#include "codec/pc4sc4_format.h"
#include "reader/band_data.h"
#include "reader/record_start.h"

namespace gdi::reader {

namespace {

// Data may be full of what looks like records; each try costs a band.
constexpr int kMostTries = 2;

}  // namespace

std::optional<std::size_t> swallowedRecord(const Band& swallowing, std::uint32_t rowBits) {
  const std::span<const std::uint8_t> data(swallowing.data);
  const std::uint32_t rows = swallowing.record.rows;
  if (rowBits == 0 || rows == 0 || rows > kBandHeight) {
    return std::nullopt;
  }
  int tries = 0;
  for (std::size_t at = pc4sc4::kBandAlignment; at + kRecordStartBytes <= data.size();
       at += pc4sc4::kBandAlignment) {
    if (!beginsRecord(data.subspan(at))) {
      continue;
    }
    const BandDataReport band = examineBandData(data.first(at), rows, rowBits / 8, false);
    const std::size_t left = at - band.consumed;
    if (band.complete && (left == 0 || left == sizeof pc4sc4::kTrailer)) {
      return at;
    }
    if (++tries == kMostTries) {
      break;
    }
  }
  return std::nullopt;
}

}  // namespace gdi::reader
