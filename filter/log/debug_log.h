// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The process-wide debug log: off until a marker file exists, then one time-stamped line a call.
//
// For engineers only; what the spooler should see goes to standard error directly. One thread.
#pragma once

#include <cstdarg>
#include <cstdint>
#include <cstdio>

namespace gdi {

// The log stream; null while logging is off. Standard error when the log file could not be opened.
extern std::FILE* gDebugFile;

// Where the marker and the log are. Only tests point them elsewhere, before the first call.
// Caller keeps the strings.
extern const char* gDebugMarkerPath;  // "/tmp/gdidebug": its existence switches the log on
extern const char* gDebugLogPath;     // "/tmp/CUPSDebug.log": appended to, mode 0666

// Opens the log if it is not open and the marker exists. Every logging call begins with this, so a
// marker made in the middle of a job starts the log from the next line on.
void DebugStart();

// Closes the log file. A log on standard error is left as it is.
void DebugEnd();

// Writes "MM/DD/YYYY hh:mm:ss.uuuuuu (pid) " and the message as one line.
[[gnu::format(printf, 1, 2)]] void CPSDebugLog(const char* format, ...);

// The same with "ASSERT: " before the message. It reports and returns; it never stops the program.
[[gnu::format(printf, 1, 2)]] void CPSDebugAssert_(const char* format, ...);

// Writes `count` bytes as "0x%2.2x ", eight to a line, each line indented by four blanks.
void CPSDebugLogHexDump(const std::uint8_t* bytes, std::uint32_t count);

}  // namespace gdi
