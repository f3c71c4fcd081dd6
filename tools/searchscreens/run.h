// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The program's work behind its command line.
#pragma once

#include <ostream>

#include "tools/searchscreens/command_line.h"

namespace gdi::searchscreens {

// Exit statuses.
inline constexpr int kSearched = 0;
inline constexpr int kUnusable = 2;  // wrong words or parameters, or nothing can be written

// Searches, and writes a remark with J before and after and the `screen` lines to `out`; progress,
// or a line with what is wrong, to `errors`. Answers the exit status.
int run(const CommandLine& line, std::ostream& out, std::ostream& errors);

}  // namespace gdi::searchscreens
