// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What the codes of one band have that this project's writer never writes, counted by its kind.
//
// All of it decodes. A stream that has some was made, or changed, by somebody else.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "reader/code_words.h"
#include "reader/rules.h"

namespace gdi::reader {

class CodecHabits {
 public:
  // Looks at the codes of a record that decodes. record: its code words, without n; offset: bytes
  // from the start of the band's data to the first of them; first: it is the band's first record.
  void look(std::span<const std::uint8_t> record, std::uint64_t offset, bool first);
  // Counts a record that ends with more NOPs than the writer puts there. offset: that of its n.
  void addSurplusNops(std::uint64_t offset) { count(kSurplusNops, offset); }

  // Adds one flaw for each kind that was met, at the place where it was met first.
  void report(std::vector<Flaw>& flaws) const;

 private:
  enum Kind : std::uint8_t {
    kOddNop,
    kNopWithin,
    kSurplusNops,
    kClearRowWithin,
    kClearRowCount,
    kBothExtensions,
    kNeedlessExtension,
    kKinds,
  };
  struct Tally {
    std::size_t count = 0;
    std::uint64_t first = 0;  // offset
  };

  void count(Kind kind, std::uint64_t offset, std::size_t times = 1);
  void lookAtClearRow(const Code& code, std::uint64_t offset, bool first);
  void lookAtExtensions(const Code& code, std::uint64_t offset);

  std::array<Tally, kKinds> tallies_;
};

// How many NOPs stand at the end of a record's code words.
std::size_t nopsAtEnd(std::span<const std::uint8_t> record);

}  // namespace gdi::reader
