// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The encoder's match search for processors without wide instructions: positions of the same hash
// are chained and tried one by one.
#pragma once

#include <array>
#include <cstdint>
#include <cstring>

#include "codec/code_writer.h"
#include "codec/pc4sc4.h"
#include "codec/stream_word.h"

namespace gdi::pc4sc4 {

class ChainSearch {
 public:
  // Takes the words 0 to `last` of `row`, which stays the caller's, as the row to search.
  void begin(const std::uint8_t* row, Position last) {
    row_ = row;
    last_ = last;
    SearchNode* node = searchIdx.data();
    for (Position p = last; p >= 0; --p, ++node) {
      SearchNode*& head = chainOf(p);
      *node = {p, head};
      head = node;
    }
  }

  // The run to copy to position `p`, as MatchSearch finds it. Within a row, `p` must never go back:
  // what has fallen out of the window is dropped from its chain.
  //
  // Every walk ends at the latest at the node of `p` itself, which stands in the same chain; nodes
  // of earlier rows come after it and are never reached.
  Match find(Position p) {
    SearchNode*& head = chainOf(p);
    while (head->position < p - Position{kMaxDistance}) {
      head = head->next;
    }
    const Position limit = last_ - p + 1;
    Match best{0, 0};
    for (const SearchNode* node = head; node->position < p; node = node->next) {
      const Position q = node->position;
      if (loadPixelWord(row_, p + best.length) != loadPixelWord(row_, q + best.length)) {
        continue;
      }
      const Position length = equalWords(row_ + 2 * q, row_ + 2 * p, limit);
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

 private:
  struct SearchNode {
    Position position;
    SearchNode* next;
  };

  // The chain of the sum of a word's two bytes, 0 to 510.
  SearchNode*& chainOf(Position p) {
    return pSearchHead[static_cast<std::size_t>(row_[2 * p]) + row_[2 * p + 1]];
  }

  // How many of the `limit` pixel words at `a` and at `b` agree before the first that does not.
  static Position equalWords(const std::uint8_t* a, const std::uint8_t* b, Position limit) {
    Position count = 0;
    while (count + 4 <= limit && std::memcmp(a + 2 * count, b + 2 * count, 8) == 0) {
      count += 4;
    }
    while (count < limit && loadPixelWord(a, count) == loadPixelWord(b, count)) {
      ++count;
    }
    return count;
  }

  const std::uint8_t* row_ = nullptr;
  Position last_ = 0;
  // In ascending order of position. Heads of sums that the row does not have are left over from
  // earlier rows.
  std::array<SearchNode*, 512> pSearchHead{};
  std::array<SearchNode, kMaxEncodableRowBytes / 2> searchIdx{};
};

}  // namespace gdi::pc4sc4
