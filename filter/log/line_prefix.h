// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What stands before the message of every line of the debug log.
#pragma once

#include <ctime>
#include <string>

namespace gdi {

// "MM/DD/YYYY hh:mm:ss.uuuuuu (pid) ", the trailing blank included. The month is written as
// localtime gives it, 00 for January: docs/quirks.md, "Log months from 0". Microseconds below 1000
// are filled up to four digits only.
std::string logLinePrefix(const std::tm& local, int microseconds, int process);

}  // namespace gdi
