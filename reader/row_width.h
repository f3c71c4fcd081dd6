// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// How many bits a row has, of which the records tell the low 16 alone.
#pragma once

#include <cstdint>
#include <optional>

#include "reader/records.h"

namespace gdi::reader {

inline constexpr std::uint32_t kPixelsPerInch = 600;
// The paper's size is told in whole points, so the raster may be larger than it by this much.
inline constexpr std::uint32_t kPixelsPerPoint = 9;

// A length on paper in pixels, to the nearest.
std::uint64_t pixelsOnPaper(std::uint32_t micrometres,
                            std::uint32_t pixelsPerInch = kPixelsPerInch);

// Of the lengths with the page record's low 16 bits, 1 to kMaxRowBits, the one that is nearest to
// the paper's width; the shortest when the paper is of no width or wider than any row.
std::uint32_t likelyRowBits(const PageRecord& record, unsigned bitsPerPixel);

// Whether a row of that length may be as wide as the paper.
bool paperVouchesFor(std::uint32_t rowBits, const PageRecord& record, unsigned bitsPerPixel);

// The next longer row with the same low 16 bits; nothing when that were longer than kMaxRowBits.
std::optional<std::uint32_t> nextLongerRow(std::uint32_t rowBits);

}  // namespace gdi::reader
