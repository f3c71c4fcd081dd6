// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The job stream's records: tags, lengths, field offsets and constants, for writer and reader.
//
// Every integer is big-endian, text is NUL-padded. docs/job-stream.md tells the order of records.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace gdi {

using Tag = std::array<std::uint8_t, 4>;

inline constexpr std::size_t kTagOffset = 0;
inline constexpr std::size_t kRecordLengthOffset = 4;  // of job, host and page records
inline constexpr std::size_t kTextBytes = 64;          // job, host and user name fields

// Bytes of a record that are written as zero.
struct ZeroField {
  std::size_t offset;
  std::size_t bytes;
};

// Job record: once, ahead of the first page.
namespace job_record {
inline constexpr Tag kTag{'G', 'D', 'I', 'J'};
inline constexpr std::size_t kLength = 120;
inline constexpr std::size_t kConstant100Offset = 8;  // 16 bits
inline constexpr std::uint16_t kConstant100 = 100;
inline constexpr std::size_t kCopiesOffset = 10;            // 16 bits
inline constexpr std::size_t kHostRecordLengthOffset = 18;  // 16 bits
inline constexpr std::size_t kDateOffset = 20;              // 32 bits, Solvane packed date
inline constexpr std::size_t kColorOffset = 24;             // 1 = colour, and yet 0 is sent
inline constexpr std::size_t kConstant1Offset = 32;
inline constexpr std::uint8_t kConstant1 = 0x01;
inline constexpr std::size_t kBitsPerPixelMinus1Offset = 33;
inline constexpr std::size_t kConstant0Offset = 34;
inline constexpr std::uint8_t kConstant0 = 0x00;
inline constexpr std::size_t kConstant2Offset = 35;
inline constexpr std::uint8_t kConstant2 = 0x02;
inline constexpr std::size_t kJobNameOffset = 56;
inline constexpr std::array<ZeroField, 4> kZeroFields{{{12, 4}, {16, 2}, {25, 7}, {36, 20}}};
}  // namespace job_record

// Host record: follows the job record.
namespace host_record {
inline constexpr Tag kTag{'G', 'J', 'E', 'T'};
inline constexpr std::size_t kLength = 152;
inline constexpr std::size_t kHostNameOffset = 8;
inline constexpr std::size_t kUserNameOffset = 72;
inline constexpr std::array<ZeroField, 1> kZeroFields{{{136, 16}}};
}  // namespace host_record

// Page record: ahead of each page's bands.
namespace page_record {
inline constexpr Tag kTag{'G', 'D', 'I', 'P'};
inline constexpr std::size_t kLength = 64;
inline constexpr std::size_t kMediaSizeOffset = 8;
inline constexpr std::size_t kInputTrayOffset = 9;
inline constexpr std::size_t kPaperTypeOffset = 10;
inline constexpr std::size_t kRowBitsOffset = 12;  // 16 bits, the low ones of a row's bits
inline constexpr std::size_t kRowsOffset = 14;     // 16 bits
inline constexpr std::size_t kChannelsOffset = 32;
inline constexpr std::size_t kConstant1Offset = 33;
inline constexpr std::uint8_t kConstant1 = 1;
inline constexpr std::size_t kPageNumberOffset = 34;  // 16 bits, from 0
inline constexpr std::size_t kBandCountOffset = 54;   // 16 bits
inline constexpr std::size_t kWidthOffset = 56;       // 32 bits, micrometres
inline constexpr std::size_t kHeightOffset = 60;      // 32 bits, micrometres
inline constexpr std::array<ZeroField, 3> kZeroFields{{{11, 1}, {16, 16}, {36, 18}}};
}  // namespace page_record

// Band record: ahead of each compressed band. It carries no length of its own; the one non-zero
// length slot tells the plane, and a band that failed to compress has none.
namespace band_record {
inline constexpr Tag kTag{'G', 'D', 'I', 'B'};
inline constexpr std::size_t kLength = 32;
inline constexpr std::size_t kFlagsOffset = 4;  // 32 bits
inline constexpr std::uint32_t kFirstBandFlag = 1;
inline constexpr std::uint32_t kLastBandFlag = 2;
inline constexpr std::size_t kBlackLengthOffset = 8;  // 32 bits each
inline constexpr std::size_t kYellowLengthOffset = 12;
inline constexpr std::size_t kMagentaLengthOffset = 16;
inline constexpr std::size_t kCyanLengthOffset = 20;
inline constexpr std::size_t kRowBitsOffset = 24;  // 16 bits
inline constexpr std::size_t kRowsOffset = 26;     // 16 bits
inline constexpr std::size_t kBlankPageOffset = 30;
inline constexpr std::array<ZeroField, 2> kZeroFields{{{28, 2}, {31, 1}}};
}  // namespace band_record

// End-of-job mark: a tag without fields.
inline constexpr Tag kEndOfJobTag{'J', 'I', 'D', 'G'};

// A row is its pixels and at least so much slack, brought up to a multiple; bits.
inline constexpr std::uint32_t kRowSlackBits = 32;
inline constexpr std::uint32_t kRowBitsMultiple = 128;
// The longest row that is sent, bits.
inline constexpr std::uint32_t kMaxRowBits = 8 * 28672;

// Rows a band, but for a page's last; a plane's bands trail black's by these many bands.
inline constexpr std::uint32_t kBandHeight = 256;
inline constexpr int kCyanLag = 6;
inline constexpr int kMagentaLag = 12;
inline constexpr int kYellowLag = 18;

}  // namespace gdi
