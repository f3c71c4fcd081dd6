// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/codec/plain_row_coder.h"

#include "codec/ChainSearch.h"
#include "codec/code_writer.h"

namespace gdi::codectest {
namespace {

using pc4sc4::ChainSearch;
using pc4sc4::CodeWriter;
using pc4sc4::loadPixelWord;
using pc4sc4::Match;
using pc4sc4::Position;

ChainSearch search;

void encodeSegment(CodeWriter& writer, Position first, Position last) {
  bool pairable = false;
  Position pairSource = 0;
  Position pending = first;
  for (Position p = first; p <= last;) {
    const Match match = search.find(p);
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
  search.begin(row, rowEnd);
  CodeWriter writer(row, output);
  for (Position p = 0; p <= rowEnd;) {
    const Position first = p;
    while (p <= rowEnd && changed(p)) {
      ++p;
    }
    if (first == p) {
      ++p;
    } else {
      encodeSegment(writer, first, p - 1);
      p = writer.anchor();
    }
  }
  return writer.output();
}

}  // namespace gdi::codectest
