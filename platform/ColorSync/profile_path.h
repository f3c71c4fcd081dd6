// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Where profiles are that are given by name instead of a path.
#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string_view>

namespace gdi {

// The folders of this system that hold ICC profiles, in the order in which they are searched.
[[nodiscard]] std::span<const std::string_view> systemProfileFolders();

// An absolute path as it stands, whether or not there is a file. A relative one is that of a file
// in the main bundle, else in the first of `folders` that has it; nothing when none has, or when it
// is empty.
[[nodiscard]] std::optional<std::filesystem::path> profilePath(
    std::string_view name, std::span<const std::string_view> folders = systemProfileFolders());

}  // namespace gdi
