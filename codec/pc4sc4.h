// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// PC4SC4: the band codec of the printer, one byte-exact encoder and one bounds-checked decoder.
//
// Not reentrant: the encoder keeps its working state in process-wide static storage.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace gdi {

// The widest row, in bytes, that the encoder can index (28,672 pixel words).
inline constexpr std::uint32_t kMaxEncodableRowBytes = 57344;
// What qbx_Compress_PC4SC4 answers when the output does not fit.
inline constexpr std::uint32_t kCompressionOverflow = 0xFFFFFFFF;

// The most bytes that a band of `rows` rows of `rowBytes` bytes can compress to, and the capacity
// with which the encoder never runs out of room. Saturates at UINT64_MAX never being reached for
// 32-bit arguments. The derivation stands with the definition.
std::uint64_t worstCaseBandBytes(std::uint32_t rows, std::uint32_t rowBytes);

// Compresses one band.
//   source       the band's rows, stored with a stride of rowBytes rounded up to a multiple of 4
//   byteCount    rows x rowBytes, bytes
//   destination  `capacity` bytes; caller keeps
//   rowBytes     bytes a row, 1 to kMaxEncodableRowBytes
//   seedBuffer   scratch row of rowBytes rounded up to a multiple of 4 bytes; zeroed at every call
//   finalBand    append the end-of-page trailer
// Returns the compressed length in bytes, a multiple of 16; 0 for a band of no rows;
// kCompressionOverflow when the output does not fit, and then nothing of it may be used.
std::uint32_t qbx_Compress_PC4SC4(const std::uint8_t* source, std::uint32_t byteCount,
                                  std::uint8_t* destination, std::uint32_t capacity,
                                  std::uint32_t rowBytes, std::uint8_t* seedBuffer, bool finalBand);

// Decompresses `rows` row records of a band, checking every bound.
//   source       the band's bytes; an odd last byte is never read
//   destination  at least rows x (rowBytes rounded up to a multiple of 4) bytes
//   rowBytes     bytes a row
//   rows         row records to decode; a value whose low 16 bits are 0 decodes nothing, and no
//                more than 32,767 are decoded
//   rowBuffer    the reference row, at least rowBytes rounded up to a multiple of 4 bytes; holds
//                the last decoded row afterwards
// Returns the stream words consumed, or nothing when the stream leaves its bounds, leaves the row,
// or copies from before the row; rows decoded so far are then in `destination`.
std::optional<std::size_t> qbx_DeCompress_PC4SC4(std::span<const std::uint8_t> source,
                                                 std::span<std::uint8_t> destination,
                                                 std::uint32_t rowBytes, std::int32_t rows,
                                                 std::span<std::uint8_t> rowBuffer);

}  // namespace gdi
