// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "codec/row_coder.h"

#include "codec/byte_alphabet.h"
#include "codec/search_chains.h"

namespace gdi::pc4sc4 {

std::uint8_t* cmpBuf = nullptr;
Position cmpAnchor = 0;
const std::uint8_t* pCurRowHead = nullptr;
Position pCurRowEnd = -1;

namespace {

void put(Position word) {
  std::uint8_t* const at = cmpBuf;
  storeStreamWord(at, static_cast<Word>(word));
  cmpBuf = at + sizeof(Word);
}

// Rows end below word 28,672, so that no skip is ever mistaken for the clear-row command's.
void putLiteralRun(Position first, Position count) {
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

  std::uint8_t* at = cmpBuf;
  const std::uint8_t* const row = pCurRowHead;
  for (Position p = first; p < first + count; ++p, at += sizeof(Word)) {
    storeStreamWord(at, literalDataWord(row, p));
  }
  cmpBuf = at;
  cmpAnchor = first + count;
}

// docs/quirks.md, "A long copy after a long skip is cut to 15 words"
void putCopy(Position p, const Match& match) {
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

}  // namespace

// docs/quirks.md, "Pair literals stop at the first word outside the alphabet"
void cmpEncodeLiteral(Position first, Position last) {
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

void cmpEncodeSegment(Position first, Position last) {
  bool pairable = false;     // the code word just written is a one-word copy with no skip
  Position pairSource = 0;   // its source
  Position pending = first;  // the first word not coded yet
  Position p = first;
  while (p <= last) {
    const Match match = findMatch(pCurRowHead, p, pCurRowEnd);
    if (match.length == 0) {
      pairable = false;
      ++p;
      continue;
    }
    if (pending < p) {
      cmpEncodeLiteral(pending, p - 1);
    }
    if (match.length == 1 && pairable) {
      const Position firstDistance = p - 1 - pairSource;
      const Position secondDistance = p - match.source;
      cmpBuf -= sizeof(Word);
      put(kTypeDoubleCopy | ((firstDistance - 1) << kDoubleCopyFirstShift) | (secondDistance - 1));
      cmpAnchor = p + 1;
      pairable = false;
    } else {
      pairable = match.length == 1 && p == cmpAnchor;
      pairSource = match.source;
      putCopy(p, match);
    }
    pending = p = cmpAnchor;
  }
  if (pending <= last) {
    cmpEncodeLiteral(pending, last);
  }
}

std::uint8_t* cmpCompressRow(const std::uint8_t* reference, const std::uint8_t* row,
                             std::uint8_t* output) {
  cmpBuf = output;
  cmpAnchor = 0;
  pCurRowHead = row;
  const Position end = pCurRowEnd;
  for (Position p = 0; p <= end; p = cmpAnchor) {
    p += equalWords(row + 2 * p, reference + 2 * p, end - p + 1);
    if (p > end) {
      break;
    }
    const Position first = p;
    while (p <= end && loadPixelWord(row, p) != loadPixelWord(reference, p)) {
      ++p;
    }
    cmpEncodeSegment(first, p - 1);
  }
  return cmpBuf;
}

}  // namespace gdi::pc4sc4
