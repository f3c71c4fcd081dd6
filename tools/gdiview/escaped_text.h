// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Bytes of anybody's making as text that is safe to print: in one line, and without controls.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace gdi::gdiview {

// Bytes as text in one line: controls, quotes, backslashes and each byte that is of no whole
// character in UTF-8 escaped as in C.
std::string escaped(std::span<const std::uint8_t> bytes);
// The same between quotes.
std::string quoted(std::span<const std::uint8_t> bytes);
// A file's name as it is, but for controls and bytes of no character, which are escaped: it can be
// part of a line.
std::string nameInLine(std::string_view name);

}  // namespace gdi::gdiview
