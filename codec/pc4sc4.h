// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// PC4SC4: the band codec of the printer, one byte-exact encoder and one bounds-checked decoder.
//
// Neither allocates. The encoder keeps its working state in process-wide static storage: one band
// at a time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace gdi {

// The widest row, in bytes, that the encoder can index (28,672 pixel words).
inline constexpr std::uint32_t kMaxEncodableRowBytes = 57344;
// The most rows that the decoder counts.
inline constexpr std::int32_t kMaxDecodableRows = 32767;
// What qbx_Compress_PC4SC4 answers when it refuses a band or the output does not fit.
inline constexpr std::uint32_t kCompressionOverflow = 0xFFFFFFFF;

// The most bytes that a band of `rows` rows of `rowBytes` bytes can compress to, which is also the
// capacity with which the encoder never runs out of room: rows x (1.5 x rowBytes + 18) + rowBytes
// + 64, rounded up. Stays at UINT64_MAX where that would be more. The derivation stands with the
// definition.
std::uint64_t worstCaseBandBytes(std::uint32_t rows, std::uint32_t rowBytes);

// Compresses one band.
//   source       the band's rows, stored with a stride of rowBytes rounded up to a multiple of 4;
//                the bytes that fill up a row are coded like pixels
//   byteCount    rows x rowBytes, bytes. Rows are counted as a signed 16-bit number
//   destination  `capacity` bytes, at any alignment; never written past
//   rowBytes     bytes a row, 1 to kMaxEncodableRowBytes
//   seedBuffer   scratch row of rowBytes rounded up to a multiple of 4 bytes; zeroed at every call
//   finalBand    append the end-of-page trailer
// Returns the compressed length in bytes, a multiple of 16, or 0 for a band of no rows without
// finalBand. Returns kCompressionOverflow, and nothing of the output may be used, when the output
// does not fit, a pointer is null, rowBytes is out of range, or finalBand is set on a band of no
// rows, which has no record for the trailer to follow.
std::uint32_t qbx_Compress_PC4SC4(const std::uint8_t* source, std::uint32_t byteCount,
                                  std::uint8_t* destination, std::uint32_t capacity,
                                  std::uint32_t rowBytes, std::uint8_t* seedBuffer, bool finalBand);

// Decompresses `rows` row records of a band, checking every bound. Keeps no state of its own.
//   source       the band's bytes; an odd last byte is never read
//   destination  at least rows x (rowBytes rounded up to a multiple of 4) bytes
//   rowBytes     bytes a row
//   rows         row records to decode; a value that is negative or whose low 16 bits are 0
//                decodes nothing, and no more than kMaxDecodableRows are decoded
//   rowBuffer    the reference row, at least rowBytes rounded up to a multiple of 4 bytes; holds
//                the last decoded row afterwards, from which a next call may go on
// Returns the stream words consumed, or nothing when the stream ends early, a code leaves its
// record or the row, a copy begins before the row, or a buffer is too small. The rows decoded so
// far are then in `destination`, and rowBuffer holds part of the next.
std::optional<std::size_t> qbx_DeCompress_PC4SC4(std::span<const std::uint8_t> source,
                                                 std::span<std::uint8_t> destination,
                                                 std::uint32_t rowBytes, std::int32_t rows,
                                                 std::span<std::uint8_t> rowBuffer);

}  // namespace gdi
