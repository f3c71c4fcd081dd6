// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The program's work behind its command line.
#pragma once

#include <ostream>

#include "tools/screenquality/command_line.h"

namespace gdi::screenquality {

// Exit statuses.
inline constexpr int kReached = 0;   // all sets keep the rules and reach their goals
inline constexpr int kMissed = 1;    // one does not
inline constexpr int kUnusable = 2;  // a set cannot be loaded, or the tables not be written

// Writes the tables to `out`, and a line to `errors` for each broken rule, or else for each missed
// goal: screens that break a rule are not judged. Answers the exit status.
int run(const CommandLine& line, std::ostream& out, std::ostream& errors);

}  // namespace gdi::screenquality
