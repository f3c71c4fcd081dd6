// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Where else in the current row a run of pixel words stands: the encoder's match search.
//
// Process-wide state, rebuilt for every row; not reentrant.
#pragma once

#include <array>
#include <cstdint>

#include "codec/pc4sc4.h"
#include "codec/stream_word.h"

namespace gdi::pc4sc4 {

struct SearchNode {
  Position position;
  SearchNode* next;
};

// One chain for each sum of a pixel word's two bytes, 0-510, in ascending order of position. Heads
// of sums that the current row does not have are left over from earlier rows.
extern std::array<SearchNode*, 512> pSearchHead;
extern std::array<SearchNode, kMaxEncodableRowBytes / 2> searchIdx;

// An earlier run of the same row; length 0 when there is none.
struct Match {
  Position source;
  Position length;  // pixel words; may overlap the place it is to be copied to
};

// Chains the positions 0 to `last` of `row`. `last` is below searchIdx's size.
void buildSearchChains(const std::uint8_t* row, Position last);

// The run to copy to position `p`. Within a row, `p` must never go back: what has fallen out of
// the window is dropped from its chain. `row` and `last` are those of buildSearchChains.
Match findMatch(const std::uint8_t* row, Position p, Position last);

}  // namespace gdi::pc4sc4
