// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A look over a binary property list before it is read, because its objects may refer to one
// another at will: a small file can describe an endless or enormous list.
#pragma once

#include <cstdint>
#include <span>

namespace gdi {

// Whether all objects that the root reaches lie within the file, are nested at most
// kPropertyListMaxDepth deep, and take a bearable amount of memory when every reference is
// followed.
[[nodiscard]] bool isBearableBinaryPropertyList(std::span<const std::uint8_t> data);

}  // namespace gdi
