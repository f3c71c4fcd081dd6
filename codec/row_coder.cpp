// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "codec/row_coder.h"

#include "codec/ChainSearch.h"
#include "codec/code_writer.h"

// This file is compiled once for each kind of processor, too.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "codec/row_coder.cpp"
#include <hwy/foreach_target.h>

#include "codec/changed_words-inl.h"
#include "platform/processor/dispatch.h"

#if HWY_TARGET != HWY_SCALAR && HWY_TARGET != HWY_EMU128
#include "codec/MatchSearch-inl.h"
#endif

HWY_BEFORE_NAMESPACE();
namespace gdi::pc4sc4::HWY_NAMESPACE {
namespace {

#if HWY_TARGET == HWY_SCALAR || HWY_TARGET == HWY_EMU128
using MatchSearch = ChainSearch;
#endif

ChangedWords changedWords;
MatchSearch matchSearch;

// Codes the changed words `first` to `last` as copies and literals; the last copy may run on past
// `last`, up to the last word that is coded at all.
void cmpEncodeSegment(CodeWriter& writer, Position first, Position last) {
  bool pairable = false;     // the code word just written is a one-word copy with no skip
  Position pairSource = 0;   // its source
  Position pending = first;  // the first word not coded yet
  Position p = first;
  while (p <= last) {
    const Match match = matchSearch.find(p);
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

std::uint8_t* compressRow(const std::uint8_t* reference, const std::uint8_t* row, std::size_t units,
                          std::uint8_t* output) {
  if (!changedWords.compare(row, reference, static_cast<Position>(2 * units))) {
    return output;
  }
  // docs/quirks.md, "The coded part of a row ends on a 32-bit boundary"
  const Position pCurRowEnd = changedWords.last() | 1;
  matchSearch.begin(row, pCurRowEnd);
  CodeWriter writer(row, output);
  Position first = changedWords.nextChanged(0);
  while (first <= pCurRowEnd) {
    cmpEncodeSegment(writer, first, changedWords.nextEqual(first) - 1);
    first = changedWords.nextChanged(writer.anchor());
  }
  return writer.output();
}

}  // namespace
}  // namespace gdi::pc4sc4::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace gdi::pc4sc4 {

constexpr auto kCompressRow = GDI_VERSIONS(compressRow);

std::uint8_t* cmpCompressRow(const std::uint8_t* reference, const std::uint8_t* row,
                             std::size_t units, std::uint8_t* output) {
  return version(kCompressRow)(reference, row, units, output);
}

}  // namespace gdi::pc4sc4
#endif
