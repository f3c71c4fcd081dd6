// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// One bitmap row coded against its reference row: the inner part of the band encoder.
//
// Process-wide state; not reentrant. Nothing here checks the room at the output: a row of W pixel
// words needs at most maxRowCodeWords(W) stream words (codec/band_size.h).
#pragma once

#include <cstdint>

#include "codec/stream_word.h"

namespace gdi::pc4sc4 {

extern std::uint8_t* cmpBuf;             // the next stream word to write
extern Position cmpAnchor;               // just after the last coded word; skips count from here
extern const std::uint8_t* pCurRowHead;  // the current row
extern Position pCurRowEnd;              // its last word that is coded; -1 for none

// Codes the words of `row` that differ from `reference`, up to pCurRowEnd, writing from `output`.
// pCurRowEnd and the search chains must stand for this row. Returns the new output position.
std::uint8_t* cmpCompressRow(const std::uint8_t* reference, const std::uint8_t* row,
                             std::uint8_t* output);

// Codes the changed words `first` to `last` as copies and literals; the last copy may run on past
// `last`, up to pCurRowEnd. Leaves cmpAnchor just after what it coded.
void cmpEncodeSegment(Position first, Position last);

// Codes the words `first` to `last` as pair literals and literal runs.
void cmpEncodeLiteral(Position first, Position last);

}  // namespace gdi::pc4sc4
