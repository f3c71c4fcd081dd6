// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A picture written to a PNG file in a folder.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <ostream>

#include "tools/gdiview/Picture.h"

namespace gdi::gdiview {

// Makes the folder when it is missing; false, with a line, when it cannot be made.
bool makeFolder(const std::filesystem::path& folder, std::ostream& errors);

// Writes the picture and calls `written` behind each row with the rows so far; false, with a line,
// when it cannot be written. requires: the picture has a row and a column
bool writePicture(Picture& picture, double samplesPerInch, const std::filesystem::path& path,
                  std::ostream& errors, const std::function<void(std::uint32_t)>& written);

}  // namespace gdi::gdiview
