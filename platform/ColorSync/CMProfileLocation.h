// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Where a profile is: here always a file, given by its path.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace gdi {

inline constexpr std::int16_t cmPathBasedProfile = 5;
inline constexpr std::size_t kProfilePathBytes = 1024;  // the longest path

struct CMProfileLocation {
  std::int16_t locType = 0;
  std::array<char, kProfilePathBytes + 1> path{};  // ends with a NUL, unless it was too long
};

// The location of that path or name, as much of it as there is room for.
[[nodiscard]] CMProfileLocation CMPathLocation(std::string_view path);

// The path of a location; nothing when it is of another kind, or was cut.
[[nodiscard]] std::optional<std::string_view> pathOfLocation(const CMProfileLocation& location);

}  // namespace gdi
