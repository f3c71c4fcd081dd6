// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What is done to a raster line as bytes: mirroring it, and noting which channels hold any ink.
// With the widest instructions that the processor has.
#pragma once

#include <array>
#include <cstdint>
#include <span>

namespace gdi {

// Reverses a line of one byte a pixel. The whole buffer is reversed, the padding byte of an odd
// width included: docs/quirks.md, "Odd mirrored lines begin with padding".
void mirrorRaster8(std::span<std::uint8_t> line);

// Reverses the pixels of a line of four bytes a pixel; each keeps the order of its bytes.
// requires: line.size() is a multiple of 4
void mirrorRaster32(std::span<std::uint8_t> line);

// Element c is the OR of the bytes c, c + 4, c + 8 and so on of a line of any length: 0 where that
// channel of a line of four bytes a pixel is blank. A line of one byte a pixel is blank when all
// are 0.
[[nodiscard]] std::array<std::uint8_t, 4> inkOf(std::span<const std::uint8_t> line);

}  // namespace gdi
