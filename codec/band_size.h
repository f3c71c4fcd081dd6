// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// How large coded rows can get, and the argument why.
//
// Count for every code the stream words it takes beyond the pixel words it moves past, skip
// included. A pair literal, a copy and a double copy never take more words than they move past:
// the extension word of a skip stands for at least 7 skipped words, that of a copy's count for at
// least 16 copied ones. Only a literal run costs more: one word, or two when it has more than 254
// words, and nothing when its skip needs an extension word. Two literal runs never touch, but for
// the one split off a run with a long skip, which has paid already. So in a row of W words, W
// even, there are at most W / 2 of them that cost anything, which is reached by one-word literal
// runs and one-word copies in turn. Hence 1.5 words for every pixel word.
#pragma once

#include <algorithm>
#include <cstddef>

#include "codec/pc4sc4.h"
#include "codec/pc4sc4_format.h"

namespace gdi::pc4sc4 {

// The most code words that a row of `units` 32-bit units needs: 1.5 for each of its pixel words.
constexpr std::size_t maxRowCodeWords(std::size_t units) {
  return 3 * units;
}

// The most bytes of one row record: the count word, the clear-row command of a band's first row,
// and the codes, padded where they are few.
constexpr std::size_t maxRecordBytes(std::size_t units) {
  return sizeof(Word) *
         (1 + std::max(std::size_t{2} + maxRowCodeWords(units), std::size_t{kMinRecordWords}));
}

inline constexpr std::size_t kMaxRecordBytes = maxRecordBytes(kMaxEncodableRowBytes / 4);

}  // namespace gdi::pc4sc4
