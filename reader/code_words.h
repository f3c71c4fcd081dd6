// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The codes of one row record, taken apart one by one without being carried out.
//
// The codec's decoder says whether a record decodes; this says what stands in it, and where it goes
// wrong.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace gdi::reader {

enum class CodeKind : std::uint8_t {
  kNop,
  kClearRow,
  kLiteralRun,
  kPairLiteral,
  kCopy,
  kDoubleCopy,
};

struct Code {
  CodeKind kind = CodeKind::kNop;
  std::uint16_t word = 0;       // the code word
  std::size_t at = 0;           // where it stands: words from the record's first code word
  std::size_t skip = 0;         // pixel words
  std::size_t count = 0;        // pixel words stored; 0 of a NOP and of the clear-row command
  bool countExtended = false;   // the count stands in a word of its own
  bool skipExtended = false;    // the skip stands in a word of its own
  std::size_t distance = 0;     // of a copy, and of the first word of a double copy
  std::size_t distanceTwo = 0;  // of the second word of a double copy
  bool whole = true;            // its extension and data words lie within the record
};

class CodeWords {
 public:
  // record: the code words of one row record, without n; an odd last byte is never read.
  explicit CodeWords(std::span<const std::uint8_t> record);

  // Takes the next code; false at the record's end. Nothing follows a code that is not whole.
  bool next(Code& code);

 private:
  bool take(std::uint16_t& word);
  bool extend(bool escaped, std::size_t& value);
  void readLiteral(Code& code);
  void readCopy(Code& code);

  std::span<const std::uint8_t> record_;
  std::size_t words_;
  std::size_t position_ = 0;
};

// Says what keeps a record from decoding, for example "the copy in code word 3 leaves the row on
// the right"; empty when it decodes. Code words count from 1. A row has `rowWords` pixel words.
std::string troubleOf(std::span<const std::uint8_t> record, std::size_t rowWords);

}  // namespace gdi::reader
