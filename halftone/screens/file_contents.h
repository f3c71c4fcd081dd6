// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A whole file in memory.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <vector>

namespace gdi {

// The file's bytes; nothing when it cannot be opened or not read to its end. Writes no message.
[[nodiscard]] std::optional<std::vector<std::uint8_t>> contentsOfFile(
    const std::filesystem::path& path);

}  // namespace gdi
