// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The record ahead of each compressed band, and what tells the four planes apart in the stream.
#pragma once

#include <array>
#include <cstdint>

#include "printer/format/job_stream_format.h"

namespace gdi {

// The planes in the order in which one band step sends them.
enum class Plane : std::uint8_t { kBlack, kCyan, kMagenta, kYellow };

struct BandRecordFields {
  Plane plane = Plane::kBlack;
  bool firstBand = false;    // band 0 of its plane
  bool lastBand = false;     // the page's final band
  bool blankPage = false;    // no byte of the page was non-zero; only said with lastBand
  std::uint32_t length = 0;  // bytes of the compressed band that follow; 0 when it failed
  std::uint16_t rowBits = 0;
  std::uint16_t rows = 0;
};

std::array<std::uint8_t, band_record::kLength> bandRecord(const BandRecordFields& fields);

// K, C, M or Y.
char planeLetter(Plane plane);

}  // namespace gdi
