// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A second PC4SC4 decoder to hold the first one against: no shortcuts, no speed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace gdi::codectest {

// What a band's records hold, each decoded by itself whatever became of those above it.
struct PlainRecords {
  std::vector<std::uint8_t> rows;   // of the records before the first fault
  std::vector<std::size_t> faults;  // where records stand that do not decode or are cut off, bytes
  bool framed = true;               // all are there; faults end with the one that is not
  std::size_t bytes = 0;            // of the records that are there

  [[nodiscard]] bool sound() const { return faults.empty(); }
};

// Decodes `rows` records of rows of `rowWords` pixel words; an odd last byte is never read.
PlainRecords plainDecompress(std::span<const std::uint8_t> band, std::size_t rows,
                             std::size_t rowWords);

}  // namespace gdi::codectest
