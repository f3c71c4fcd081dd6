// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// How long the prologue of a job is, as the filter's resources tell it.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace gdi::gdiview {

// Bytes of the prologue that a filter with these resources sends; the resources are those beside
// the program or installed with it when no folder is given. Nothing when there are none.
std::optional<std::uint64_t> prologueBytesOf(const std::optional<std::filesystem::path>& resources);

// What is wrong with a folder that shall be the resources, in words without its name; empty when it
// has an Info.plist that can be read.
std::string faultOfResources(const std::filesystem::path& folder);

}  // namespace gdi::gdiview
