// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Writes the code words of one row: pair literals, literal runs, copies and double copies.
//
// Nothing here checks the room at the output: a row of W pixel words needs at most
// maxRowCodeWords(W / 2) stream words (codec/band_size.h).
#pragma once

#include <cstdint>

#include "codec/byte_alphabet.h"
#include "codec/stream_word.h"

namespace gdi::pc4sc4 {

// An earlier run of the same row; length 0 when there is none.
struct Match {
  Position source;
  Position length;  // pixel words; may overlap the place it is to be copied to
};

// A match longer than this is taken at once, even if a nearer one would be longer.
inline constexpr Position kGoodEnoughLength = 9;

class CodeWriter {
 public:
  CodeWriter(const std::uint8_t* row, std::uint8_t* output) : pCurRowHead(row), cmpBuf(output) {}

  // Just after the last coded word; skips count from here.
  [[nodiscard]] Position anchor() const { return cmpAnchor; }
  // The next stream word to write.
  [[nodiscard]] std::uint8_t* output() const { return cmpBuf; }

  // Codes the words `first` to `last` as pair literals and literal runs.
  void cmpEncodeLiteral(Position first, Position last);
  // Codes a copy to `p`, of the match's length or, after a long skip, of its first words.
  void putCopy(Position p, const Match& match);
  // Makes the last word written, a one-word copy, one that copies a second word, too; the two from
  // so many words before each.
  void pairWithCopy(Position firstDistance, Position secondDistance);

 private:
  void put(Position word) {
    storeStreamWord(cmpBuf, static_cast<Word>(word));
    cmpBuf += sizeof(Word);
  }
  void putLiteralRun(Position first, Position count);

  const std::uint8_t* pCurRowHead;
  std::uint8_t* cmpBuf;
  Position cmpAnchor = 0;
};

// Rows end below word 28,672, so that no skip is ever mistaken for the clear-row command's.
inline void CodeWriter::putLiteralRun(Position first, Position count) {
  const Position skip = first - cmpAnchor;
  const bool longCount = count > kLiteralMaxInlineCount;
  const bool longSkip = skip >= kLiteralSkipEscape;
  const Position countField = longCount ? kLiteralCountEscape : count - 1;
  const Position skipField = longSkip ? kLiteralSkipEscape : skip;
  put(kTypeLiteral | (skipField << kLiteralSkipShift) | countField);
  if (longCount) {
    put(count - 1);
  }
  if (longSkip) {
    put(skip);
  }
  for (Position p = first; p < first + count; ++p) {
    put(literalDataWord(pCurRowHead, p));
  }
  cmpAnchor = first + count;
}

// docs/quirks.md, "Pair literals stop at the first word outside the alphabet"
inline void CodeWriter::cmpEncodeLiteral(Position first, Position last) {
  Position skip = first - cmpAnchor;
  if (skip <= kPairMaxSkip) {
    for (; first <= last; ++first, skip = 0) {
      const std::uint16_t firstId = MapLiteralToId[pCurRowHead[2 * first]];
      const std::uint16_t secondId = MapLiteralToId[pCurRowHead[2 * first + 1]];
      if (firstId == kNotInAlphabet || secondId == kNotInAlphabet) {
        break;
      }
      put(kTypePairLiteral | (skip << kPairSkipShift) | (firstId << kPairFirstShift) | secondId);
      cmpAnchor = first + 1;
    }
    if (first > last) {
      return;
    }
  }
  // A literal run never has both extension words.
  if (skip >= kLiteralSkipEscape && last - first >= kLiteralMaxInlineCount) {
    putLiteralRun(first, kLiteralMaxInlineCount);
    first += kLiteralMaxInlineCount;
  }
  putLiteralRun(first, last - first + 1);
}

// docs/quirks.md, "A long copy after a long skip is cut to 15 words"
inline void CodeWriter::putCopy(Position p, const Match& match) {
  const Position skip = p - cmpAnchor;
  const bool longSkip = skip > kCopyMaxInlineSkip;
  const bool tooLong = match.length > kCopyMaxInlineCount;
  const Position length = tooLong && longSkip ? kCopyMaxInlineCount : match.length;
  const bool longCount = length > kCopyMaxInlineCount;
  const Position countField = longCount ? kCopyCountEscape : length - 1;
  const Position skipField = longSkip ? kCopySkipEscape : skip;
  put(kTypeCopy | (countField << kCopyCountShift) | (skipField << kCopySkipShift) |
      (p - match.source - 1));
  if (longCount) {
    put(length - 1);
  }
  if (longSkip) {
    put(skip);
  }
  cmpAnchor = p + length;
}

inline void CodeWriter::pairWithCopy(Position firstDistance, Position secondDistance) {
  cmpBuf -= sizeof(Word);
  put(kTypeDoubleCopy | ((firstDistance - 1) << kDoubleCopyFirstShift) | (secondDistance - 1));
  ++cmpAnchor;
}

}  // namespace gdi::pc4sc4
