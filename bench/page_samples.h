// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Lines as pages have them, for every benchmark alike: A4 at 600 dpi, 4960 pixels.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace gdi::bench {

inline constexpr int kPixels = 4960;
inline constexpr int kChannels = 4;

enum class Content : std::uint8_t { kBlank, kText, kTint, kPhoto, kNoise };
inline constexpr int kContents = 5;
const char* nameOf(Content content);

// One chunky line of `channels` bytes a pixel.
std::vector<std::uint8_t> chunkyLine(Content content, int channels, int row);

}  // namespace gdi::bench
