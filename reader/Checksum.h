// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Bytes that nobody keeps, so that one can still tell whether others were the same.
#pragma once

#include <cstdint>
#include <span>

namespace gdi::reader {

class Checksum {
 public:
  void add(std::span<const std::uint8_t> bytes);
  // Adds bytes of which only their checksum is known.
  void add(const Checksum& bytes);
  // Adds what is no byte of its own: where bytes stand, or what they are.
  void mark(std::uint64_t number);

  // How many bytes were added; marks do not count.
  [[nodiscard]] std::uint64_t bytes() const { return bytes_; }
  // A CRC of 32 bits.
  [[nodiscard]] std::uint32_t value() const { return value_; }
  bool operator==(const Checksum&) const = default;

 private:
  std::uint64_t bytes_ = 0;
  std::uint32_t value_ = 0;
};

}  // namespace gdi::reader
