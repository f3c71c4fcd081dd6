// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "codec/band_size.h"

#include <limits>

namespace gdi {
namespace {

std::uint64_t saturatingSum(std::uint64_t a, std::uint64_t b) {
  return a > std::numeric_limits<std::uint64_t>::max() - b
             ? std::numeric_limits<std::uint64_t>::max()
             : a + b;
}

}  // namespace

// rows x (1.5 x rowBytes + 18) + rowBytes + 64, rounded up.
//
// A row's codes take 1.5 bytes for each byte of the rounded row, which is up to 3 bytes more than
// rowBytes: 4.5 of the 18 bytes. The count word takes 2, and a record padded to 8 code words has
// 18 altogether. Added once: 4 bytes of clear-row command, up to 14 of padding before the trailer
// and the trailer's 8, or up to 14 of final padding: fewer than 64. And the check before each row
// asks for the rounded row and more than 8 bytes: rowBytes + 3 + 9, beyond the 4 and also within
// what is added once.
std::uint64_t worstCaseBandBytes(std::uint32_t rows, std::uint32_t rowBytes) {
  const std::uint64_t bitmap = std::uint64_t{rows} * rowBytes;
  const std::uint64_t half = bitmap / 2 + bitmap % 2;
  const std::uint64_t extra = std::uint64_t{rows} * 18 + rowBytes + 64;
  return saturatingSum(saturatingSum(bitmap, half), extra);
}

}  // namespace gdi
