// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// One bitmap row coded against its reference row: the inner part of the band encoder.
//
// Runs on the widest instructions that the processor has; the codes are the same on all. Keeps its
// working rows in static storage: not reentrant.
#pragma once

#include <cstddef>
#include <cstdint>

namespace gdi::pc4sc4 {

// Codes the pixel words of `row` that differ from `reference`, up to the end of the last 32-bit
// unit that does, writing from `output`.
//   units   32-bit units of both rows, 0 to kMaxEncodableRowBytes / 4
//   output  room for maxRowCodeWords(units) stream words (codec/band_size.h)
// Returns the new output position: `output` when the rows are the same.
std::uint8_t* cmpCompressRow(const std::uint8_t* reference, const std::uint8_t* row,
                             std::size_t units, std::uint8_t* output);

}  // namespace gdi::pc4sc4
