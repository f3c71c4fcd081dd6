// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "codec/search_chains.h"

namespace gdi::pc4sc4 {

std::array<SearchNode*, 512> pSearchHead;
std::array<SearchNode, kMaxEncodableRowBytes / 2> searchIdx;

namespace {

// A match longer than this is taken at once.
constexpr Position kGoodEnoughLength = 9;

SearchNode*& chainOf(const std::uint8_t* row, Position p) {
  return pSearchHead[static_cast<std::size_t>(row[2 * p]) + row[2 * p + 1]];
}

}  // namespace

void buildSearchChains(const std::uint8_t* row, Position last) {
  SearchNode* node = searchIdx.data();
  for (Position p = last; p >= 0; --p, ++node) {
    SearchNode*& head = chainOf(row, p);
    *node = {p, head};
    head = node;
  }
}

// docs/quirks.md, "The farthest good match wins"
//
// Every walk ends at the latest at the node of `p` itself, which stands in the same chain; nodes
// of earlier rows come after it and are never reached.
Match findMatch(const std::uint8_t* row, Position p, Position last) {
  SearchNode*& head = chainOf(row, p);
  while (head->position < p - static_cast<Position>(kMaxDistance)) {
    head = head->next;
  }

  const Position limit = last - p + 1;
  Match best{0, 0};
  for (const SearchNode* node = head; node->position < p; node = node->next) {
    const Position q = node->position;
    if (loadPixelWord(row, p + best.length) != loadPixelWord(row, q + best.length)) {
      continue;
    }
    const Position length = equalWords(row + 2 * q, row + 2 * p, limit);
    if (length <= best.length) {
      continue;
    }
    best = {q, length};
    // Nothing is strictly longer than a match that reaches the end.
    if (length > kGoodEnoughLength || length == limit) {
      break;
    }
  }
  return best;
}

}  // namespace gdi::pc4sc4
