// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/code_words.h"

#include "codec/pc4sc4_format.h"
#include "codec/stream_word.h"

namespace gdi::reader {

namespace {

std::size_t distanceIn(unsigned field) {
  return (field & pc4sc4::kDistanceMask) + std::size_t{1};
}

std::string nameOf(CodeKind kind) {
  switch (kind) {
    case CodeKind::kClearRow:
      return "clear-row command";
    case CodeKind::kLiteralRun:
      return "literal run";
    case CodeKind::kPairLiteral:
      return "pair literal";
    case CodeKind::kCopy:
      return "copy";
    case CodeKind::kDoubleCopy:
      return "double copy";
    default:
      return "NOP";
  }
}

// What a code does wrong at a cursor that stands within the row; empty when it does nothing wrong.
std::string misdeedOf(const Code& code, std::size_t cursor, std::size_t rowWords) {
  if (!code.whole) {
    return " has words behind the record's end";
  }
  if (code.skip + code.count > rowWords - cursor) {
    return " leaves the row on the right";
  }
  const std::size_t first = cursor + code.skip;
  if (code.distance > first || code.distanceTwo > first + 1) {
    return " copies from the left of word 0";
  }
  return {};
}

}  // namespace

CodeWords::CodeWords(std::span<const std::uint8_t> record)
    : record_(record), words_(record.size() / sizeof(pc4sc4::Word)) {
}

bool CodeWords::take(std::uint16_t& word) {
  if (position_ == words_) {
    return false;
  }
  word = pc4sc4::loadStreamWord(record_.data() + sizeof(pc4sc4::Word) * position_++);
  return true;
}

// Reads `value` from an extension word if there must be one; false when it is not there.
bool CodeWords::extend(bool escaped, std::size_t& value) {
  std::uint16_t word = 0;
  if (!escaped) {
    return true;
  }
  if (!take(word)) {
    return false;
  }
  value = word;
  return true;
}

bool CodeWords::next(Code& code) {
  code = Code{.at = position_};
  if (!take(code.word)) {
    return false;
  }
  switch (code.word & pc4sc4::kTypeMask) {
    case pc4sc4::kTypeDoubleCopy:
      code.kind = CodeKind::kDoubleCopy;
      code.count = 2;
      code.distance = distanceIn(static_cast<unsigned>(code.word) >> pc4sc4::kDoubleCopyFirstShift);
      code.distanceTwo = distanceIn(code.word);
      break;
    case pc4sc4::kTypePairLiteral:
      code.kind = CodeKind::kPairLiteral;
      code.count = 1;
      code.skip = (code.word >> pc4sc4::kPairSkipShift) & pc4sc4::kPairMaxSkip;
      break;
    case pc4sc4::kTypeCopy:
      readCopy(code);
      break;
    default:
      readLiteral(code);
      break;
  }
  return true;
}

void CodeWords::readCopy(Code& code) {
  code.kind = CodeKind::kCopy;
  code.distance = distanceIn(code.word);
  code.count = (code.word >> pc4sc4::kCopyCountShift) & pc4sc4::kCopyCountEscape;
  code.skip = (code.word >> pc4sc4::kCopySkipShift) & pc4sc4::kCopySkipEscape;
  code.countExtended = code.count == pc4sc4::kCopyCountEscape;
  code.skipExtended = code.skip == pc4sc4::kCopySkipEscape;
  code.whole = extend(code.countExtended, code.count) && extend(code.skipExtended, code.skip);
  ++code.count;
}

void CodeWords::readLiteral(Code& code) {
  code.count = code.word & pc4sc4::kLiteralCountEscape;
  if (code.count == pc4sc4::kNopLowByte) {
    code.count = 0;
    return;
  }
  code.kind = CodeKind::kLiteralRun;
  code.skip = (code.word >> pc4sc4::kLiteralSkipShift) & pc4sc4::kLiteralSkipEscape;
  code.countExtended = code.count == pc4sc4::kLiteralCountEscape;
  code.skipExtended = code.skip == pc4sc4::kLiteralSkipEscape;
  code.whole = extend(code.countExtended, code.count) && extend(code.skipExtended, code.skip);
  if (code.skipExtended && code.whole && code.skip == pc4sc4::kClearRowSkip) {
    code.kind = CodeKind::kClearRow;
    code.skip = code.count = 0;
    return;
  }
  ++code.count;
  if (!code.whole || code.count > words_ - position_) {
    code.whole = false;
    position_ = words_;
    return;
  }
  position_ += code.count;
}

std::string troubleOf(std::span<const std::uint8_t> record, std::size_t rowWords) {
  CodeWords codes(record);
  std::size_t cursor = 0;
  for (Code code; codes.next(code); cursor += code.skip + code.count) {
    const std::string misdeed = misdeedOf(code, cursor, rowWords);
    if (!misdeed.empty()) {
      return "the " + nameOf(code.kind) + " in code word " + std::to_string(code.at + 1) + misdeed;
    }
  }
  return {};
}

}  // namespace gdi::reader
