// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Parameters whose screens are small, so that searches are short.
#pragma once

#include <string>
#include <string_view>

#include "tools/makescreens/parameters.h"

namespace gdi::searchscreens {

// One quality, "Fast" of one bit, one class, "plain". The file of every screen has little more
// bytes than it has to. The mono screen is a poor one.
std::string smallParameters();

// `text` read; fails the test when it cannot be.
makescreens::Parameters parsed(std::string_view text);

}  // namespace gdi::searchscreens
