// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A row of CMYK pixels matched in runs: pages are mostly runs of one colour, which need only one of
// their pixels matched.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

namespace gdi {

// Calls matchPixels(pixels, count), which turns `count` pixels in place, for stretches of the row;
// what it makes of a pixel must depend on that pixel alone. Runs of equal pixels are filled with
// what it made of their first one. `row` holds whole pixels of 4 bytes.
template <typename MatchPixels>
void matchRow(std::span<std::uint8_t> row, const MatchPixels& matchPixels) {
  constexpr std::size_t kPixelBytes = 4;
  constexpr std::size_t kWorthFilling = 8;  // pixels; a shorter run costs less in its stretch
  const std::size_t count = row.size() / kPixelBytes;
  const auto pixel = [&](std::size_t at) { return row.data() + at * kPixelBytes; };
  std::size_t unmatched = 0;  // where the stretch begins that is still to be matched
  for (std::size_t begin = 0, end = 0; begin < count; begin = end) {
    for (end = begin + 1; end < count; ++end) {
      if (std::memcmp(pixel(begin), pixel(end), kPixelBytes) != 0) {
        break;
      }
    }
    if (end - begin >= kWorthFilling) {
      matchPixels(pixel(unmatched), begin - unmatched + 1);
      for (std::size_t at = begin + 1; at < end; ++at) {
        std::memcpy(pixel(at), pixel(begin), kPixelBytes);
      }
      unmatched = end;
    }
  }
  if (unmatched < count) {
    matchPixels(pixel(unmatched), count - unmatched);
  }
}

}  // namespace gdi
