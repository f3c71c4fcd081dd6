// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Big-endian stores and loads: every integer of the job stream goes through one of these.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace gdi {

// requires: offset + width <= record.size()
inline void putBigEndian16(std::span<std::uint8_t> record, std::size_t offset,
                           std::uint16_t value) {
  record[offset] = static_cast<std::uint8_t>(value >> 8);
  record[offset + 1] = static_cast<std::uint8_t>(value);
}

inline void putBigEndian32(std::span<std::uint8_t> record, std::size_t offset,
                           std::uint32_t value) {
  putBigEndian16(record, offset, static_cast<std::uint16_t>(value >> 16));
  putBigEndian16(record, offset + 2, static_cast<std::uint16_t>(value));
}

inline std::uint16_t bigEndian16(std::span<const std::uint8_t> record, std::size_t offset) {
  return static_cast<std::uint16_t>(record[offset] << 8 | record[offset + 1]);
}

inline std::uint32_t bigEndian32(std::span<const std::uint8_t> record, std::size_t offset) {
  return static_cast<std::uint32_t>(bigEndian16(record, offset)) << 16 |
         bigEndian16(record, offset + 2);
}

}  // namespace gdi
