// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/codec/plain_row_coder.h"

#include <array>

#include "codec/code_writer.h"
#include "codec/pc4sc4.h"

namespace gdi::codectest {
namespace {

using pc4sc4::CodeWriter;
using pc4sc4::loadPixelWord;
using pc4sc4::Match;
using pc4sc4::Position;

struct SearchNode {
  Position position;
  SearchNode* next;
};

// One chain for each sum of a pixel word's two bytes, 0 to 510, in ascending order of position.
// Heads of sums that the row does not have are left over from earlier rows.
std::array<SearchNode*, 512> pSearchHead;
std::array<SearchNode, kMaxEncodableRowBytes / 2> searchIdx;

SearchNode*& chainOf(const std::uint8_t* row, Position p) {
  return pSearchHead[static_cast<std::size_t>(row[2 * p]) + row[2 * p + 1]];
}

void buildSearchChains(const std::uint8_t* row, Position last) {
  SearchNode* node = searchIdx.data();
  for (Position p = last; p >= 0; --p, ++node) {
    SearchNode*& head = chainOf(row, p);
    *node = {p, head};
    head = node;
  }
}

Position equalWords(const std::uint8_t* row, Position q, Position p, Position last) {
  Position count = 0;
  while (p + count <= last && loadPixelWord(row, q + count) == loadPixelWord(row, p + count)) {
    ++count;
  }
  return count;
}

// Every walk ends at the latest at the node of `p` itself, which stands in the same chain; nodes
// of earlier rows come after it and are never reached.
Match findMatch(const std::uint8_t* row, Position p, Position last) {
  SearchNode*& head = chainOf(row, p);
  while (head->position < p - Position{pc4sc4::kMaxDistance}) {
    head = head->next;
  }
  Match best{0, 0};
  for (const SearchNode* node = head; node->position < p; node = node->next) {
    const Position length = equalWords(row, node->position, p, last);
    if (length > best.length) {
      best = {node->position, length};
    }
    if (best.length > 9) {
      break;
    }
  }
  return best;
}

void encodeSegment(CodeWriter& writer, const std::uint8_t* row, Position first, Position last,
                   Position rowEnd) {
  bool pairable = false;
  Position pairSource = 0;
  Position pending = first;
  for (Position p = first; p <= last;) {
    const Match match = findMatch(row, p, rowEnd);
    if (match.length == 0) {
      pairable = false;
      ++p;
      continue;
    }
    if (pending < p) {
      writer.cmpEncodeLiteral(pending, p - 1);
    }
    if (match.length == 1 && pairable) {
      writer.pairWithCopy(p - 1 - pairSource, p - match.source);
      pairable = false;
    } else {
      pairable = match.length == 1 && p == writer.anchor();
      pairSource = match.source;
      writer.putCopy(p, match);
    }
    pending = p = writer.anchor();
  }
  if (pending <= last) {
    writer.cmpEncodeLiteral(pending, last);
  }
}

}  // namespace

std::uint8_t* plainCompressRow(const std::uint8_t* reference, const std::uint8_t* row,
                               std::size_t units, std::uint8_t* output) {
  const auto changed = [&](Position p) {
    return loadPixelWord(row, p) != loadPixelWord(reference, p);
  };
  Position rowEnd = 2 * static_cast<Position>(units) - 1;
  while (rowEnd > 0 && !changed(rowEnd) && !changed(rowEnd - 1)) {
    rowEnd -= 2;
  }
  if (rowEnd < 0) {
    return output;
  }
  buildSearchChains(row, rowEnd);
  CodeWriter writer(row, output);
  for (Position p = 0; p <= rowEnd;) {
    const Position first = p;
    while (p <= rowEnd && changed(p)) {
      ++p;
    }
    if (first == p) {
      ++p;
    } else {
      encodeSegment(writer, row, first, p - 1, rowEnd);
      p = writer.anchor();
    }
  }
  return writer.output();
}

}  // namespace gdi::codectest
