// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What is done to a raster line as bytes: mirroring it, and noting whether it holds any ink.
#pragma once

#include <cstdint>
#include <span>

namespace gdi {

// Reverses a line of one byte a pixel. The whole buffer is reversed, the padding byte of an odd
// width included: docs/quirks.md, "Odd mirrored lines begin with padding".
void mirrorRaster8(std::span<std::uint8_t> line);

// Reverses the pixels of a line of four bytes a pixel; each keeps the order of its bytes.
// requires: line.size() is a multiple of 4
void mirrorRaster32(std::span<std::uint8_t> line);

// The OR of all bytes: 0 for a blank line.
std::uint8_t inkOf(std::span<const std::uint8_t> line);

}  // namespace gdi
