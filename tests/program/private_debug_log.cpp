// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Linked into the program under test only: keeps its debug log apart from the machine's, so that
// tests run side by side and touch nothing in /tmp. In all else the program is the one that ships.

#include <cstdlib>
#include <string>

#include "filter/log/debug_log.h"

namespace gdi {
namespace {

struct PrivateDebugLog {
  PrivateDebugLog() {
    const char* folder = std::getenv("GDI_TEST_LOG_FOLDER");
    marker = std::string(folder != nullptr ? folder : "/nonexistent") + "/gdidebug";
    log = std::string(folder != nullptr ? folder : "/nonexistent") + "/debug.log";
    gDebugMarkerPath = marker.c_str();
    gDebugLogPath = log.c_str();
  }
  std::string marker;
  std::string log;
};

const PrivateDebugLog kPrivateDebugLog;

}  // namespace
}  // namespace gdi
