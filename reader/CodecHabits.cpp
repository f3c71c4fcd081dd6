// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/CodecHabits.h"

#include "codec/pc4sc4_format.h"

namespace gdi::reader {

namespace {

struct KindText {
  std::string_view one;
  std::string_view many;
};

// In the order of CodecHabits::Kind.
constexpr std::array<KindText, 7> kTexts{{
    {"NOP has other bits than 00FE", "NOPs have other bits than 00FE"},
    {"NOP stands before a record's last code", "NOPs stand before their records' last codes"},
    {"record ends with more NOPs than it needs", "records end with more NOPs than they need"},
    {"clear-row command stands elsewhere than at the band's start",
     "clear-row commands stand elsewhere than at the band's start"},
    {"clear-row command has another code word than 3F00",
     "clear-row commands have other code words than 3F00"},
    {"code has both extension words", "codes have both extension words"},
    {"extension word holds a value that fits the code's field",
     "extension words hold values that fit their codes' fields"},
}};

std::size_t needlessExtensionsOf(const Code& code) {
  const bool literal = code.kind == CodeKind::kLiteralRun;
  const std::size_t count = literal ? pc4sc4::kLiteralMaxInlineCount : pc4sc4::kCopyMaxInlineCount;
  const std::size_t skip =
      literal ? pc4sc4::kLiteralSkipEscape - std::size_t{1} : pc4sc4::kCopyMaxInlineSkip;
  return (code.countExtended && code.count <= count ? 1U : 0U) +
         (code.skipExtended && code.skip <= skip ? 1U : 0U);
}

}  // namespace

void CodecHabits::count(Kind kind, std::uint64_t offset, std::size_t times) {
  Tally& tally = tallies_[kind];
  if (tally.count == 0) {
    tally.first = offset;
  }
  tally.count += times;
}

void CodecHabits::look(std::span<const std::uint8_t> record, std::uint64_t offset, bool first) {
  CodeWords codes(record);
  std::size_t waitingNops = 0;  // since the last code that is none
  std::uint64_t firstWaiting = 0;
  for (Code code; codes.next(code);) {
    const std::uint64_t at = offset + sizeof(pc4sc4::Word) * code.at;
    if (code.kind == CodeKind::kNop) {
      firstWaiting = waitingNops++ == 0 ? at : firstWaiting;
      if (code.word != pc4sc4::kNop) {
        count(kOddNop, at);
      }
      continue;
    }
    if (waitingNops > 0) {
      count(kNopWithin, firstWaiting, waitingNops);
      waitingNops = 0;
    }
    if (code.kind == CodeKind::kClearRow) {
      lookAtClearRow(code, at, first);
    } else {
      lookAtExtensions(code, at);
    }
  }
}

void CodecHabits::lookAtClearRow(const Code& code, std::uint64_t offset, bool first) {
  if (!first || code.at != 0) {
    count(kClearRowWithin, offset);
  }
  if (code.word != pc4sc4::kClearRow) {
    count(kClearRowCount, offset);
  }
}

void CodecHabits::lookAtExtensions(const Code& code, std::uint64_t offset) {
  if (code.countExtended && code.skipExtended) {
    count(kBothExtensions, offset);
  }
  const std::size_t needless = needlessExtensionsOf(code);
  if (needless > 0) {
    count(kNeedlessExtension, offset, needless);
  }
}

void CodecHabits::report(std::vector<Flaw>& flaws) const {
  static_assert(kTexts.size() == kKinds);
  for (std::size_t kind = 0; kind < kKinds; ++kind) {
    const Tally& tally = tallies_[kind];
    if (tally.count > 0) {
      const KindText& text = kTexts[kind];
      flaws.push_back({tally.first, Rule::kCodecHabit,
                       std::to_string(tally.count)
                           .append(" ")
                           .append(tally.count == 1 ? text.one : text.many)});
    }
  }
}

std::size_t nopsAtEnd(std::span<const std::uint8_t> record) {
  CodeWords codes(record);
  std::size_t nops = 0;
  for (Code code; codes.next(code);) {
    nops = code.kind == CodeKind::kNop ? nops + 1 : 0;
  }
  return nops;
}

}  // namespace gdi::reader
