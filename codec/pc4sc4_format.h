// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The PC4SC4 band format's constants, shared by the encoder and the decoder.
//
// A band is a run of 16-bit stream words, each stored little-endian. docs/band-codec.md tells the
// format as a story; this file is where its numbers live.
#pragma once

#include <array>
#include <cstdint>

namespace gdi::pc4sc4 {

using Word = std::uint16_t;

// Code types: bits 15-14 of a code word.
inline constexpr Word kTypeMask = 0xC000;
inline constexpr Word kTypeLiteral = 0x0000;
inline constexpr Word kTypeDoubleCopy = 0x4000;
inline constexpr Word kTypePairLiteral = 0x8000;
inline constexpr Word kTypeCopy = 0xC000;

// No operation: a literal type whose low byte is 0xFE; bits 13-8 mean nothing to a reader.
inline constexpr Word kNop = 0x00FE;
inline constexpr Word kNopLowByte = 0xFE;

// Literal run: bits 13-8 skip, bits 7-0 count-1; then [count-1] [skip] and count data words.
inline constexpr unsigned kLiteralSkipShift = 8;
inline constexpr Word kLiteralSkipEscape = 63;     // the skip is in an extension word
inline constexpr Word kLiteralCountEscape = 0xFF;  // count-1 is in an extension word
inline constexpr unsigned kLiteralMaxInlineCount = 254;

// Clear-row command: a literal run whose skip extension word is 0xFFFF.
inline constexpr Word kClearRow = 0x3F00;
inline constexpr Word kClearRowSkip = 0xFFFF;

// Double copy: bits 13-7 first distance-1, bits 6-0 second distance-1.
inline constexpr unsigned kDoubleCopyFirstShift = 7;

// Pair literal: bits 13-12 skip, bits 11-6 and 5-0 alphabet indices of the two bytes.
inline constexpr unsigned kPairSkipShift = 12;
inline constexpr unsigned kPairMaxSkip = 3;
inline constexpr unsigned kPairFirstShift = 6;
inline constexpr Word kPairIndexMask = 63;

// Copy: bits 13-10 count-1, bits 9-7 skip, bits 6-0 distance-1; then [count-1] [skip].
inline constexpr unsigned kCopyCountShift = 10;
inline constexpr Word kCopyCountEscape = 15;
inline constexpr unsigned kCopyMaxInlineCount = 15;
inline constexpr unsigned kCopySkipShift = 7;
inline constexpr Word kCopySkipEscape = 7;
inline constexpr unsigned kCopyMaxInlineSkip = 6;
inline constexpr Word kDistanceMask = 127;     // of copy and double copy
inline constexpr unsigned kMaxDistance = 128;  // pixel words

// A row record whose codes are 1 to 7 words is padded with NOPs to this many.
inline constexpr unsigned kMinRecordWords = 8;
// A band's byte length is a multiple of this.
inline constexpr unsigned kBandAlignment = 16;
// The trailer of a page's final band: one record with the clear-row command, one empty record.
inline constexpr std::array<Word, 4> kTrailer = {0x0002, kClearRow, kClearRowSkip, 0x0000};

}  // namespace gdi::pc4sc4
