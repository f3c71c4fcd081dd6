// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The header of a screen file: five decimal numbers in ASCII, ended by a zero byte.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace gdi {

struct ScreenHeader {
  int version = 0;      // 1
  int width = 0;        // of the tile in pixels, at least 1
  int height = 0;       // of the tile in pixels, at least 1
  int inputDepth = 0;   // bits of a sample that choose an entry: 1, 2, 4 or 8
  int outputDepth = 0;  // bits of an entry: 1, 2, 4 or 8

  // Input levels: entries of one cell.
  [[nodiscard]] std::int64_t levels() const;
  // Entries of the whole table. Only for a table whose size has been compared with tableBytes().
  [[nodiscard]] std::size_t entries() const;
  // The packed table's size in bytes; INT64_MAX when it is larger than that.
  [[nodiscard]] std::int64_t tableBytes() const;
};

// Length of the header text that begins `data`, its zero byte left out: 0 to 1024. Nothing, with a
// message on standard error, when there is no zero byte at offset 1024 or before.
[[nodiscard]] std::optional<std::size_t> screenHeaderLength(std::span<const std::uint8_t> data);

// The numbers of a header text, all in the ranges above; nothing, with a message on standard
// error, for any other. Text after the fifth number is ignored.
[[nodiscard]] std::optional<ScreenHeader> parseScreenHeader(std::span<const std::uint8_t> text);

}  // namespace gdi
