// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/Checksum.h"

#include <array>

#include <zlib.h>

#include "printer/format/big_endian.h"

namespace gdi::reader {

namespace {

std::uint32_t continued(std::uint32_t value, std::span<const std::uint8_t> bytes) {
  return static_cast<std::uint32_t>(crc32_z(value, bytes.data(), bytes.size()));
}

}  // namespace

// Without any byte there may be no address to read from, and zlib would begin anew.
void Checksum::add(std::span<const std::uint8_t> bytes) {
  if (!bytes.empty()) {
    bytes_ += bytes.size();
    value_ = continued(value_, bytes);
  }
}

void Checksum::add(const Checksum& bytes) {
  mark(bytes.bytes_);
  mark(bytes.value_);
  bytes_ += bytes.bytes_;
}

void Checksum::mark(std::uint64_t number) {
  std::array<std::uint8_t, sizeof(number)> bytes{};
  putBigEndian32(bytes, 0, static_cast<std::uint32_t>(number >> 32));
  putBigEndian32(bytes, 4, static_cast<std::uint32_t>(number));
  value_ = continued(value_, bytes);
}

}  // namespace gdi::reader
