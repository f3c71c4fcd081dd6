// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The words of a parameter line, and words for messages about it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace gdi::makescreens {

// The fields of a line, parted by blanks, without the remark behind a "#"; valid as long as the
// line.
std::vector<std::string_view> fieldsOf(std::string_view line);

// The text in double quotes.
std::string quoted(std::string_view text);

// The number in decimal; zeros behind the point are left out.
std::string decimal(double value);

}  // namespace gdi::makescreens
