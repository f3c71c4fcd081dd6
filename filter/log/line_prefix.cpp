// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "filter/log/line_prefix.h"

#include <array>
#include <cstdio>

namespace gdi {

std::string logLinePrefix(const std::tm& local, int microseconds, int process) {
  std::array<char, 104> text{};  // holds eight integers at their longest
  (void)std::snprintf(text.data(), text.size(), "%2.2d/%2.2d/%2.2d %2.2d:%2.2d:%2.2d.%4.4d (%d) ",
                      local.tm_mon, local.tm_mday, 1900 + local.tm_year, local.tm_hour,
                      local.tm_min, local.tm_sec, microseconds, process);
  return text.data();
}

}  // namespace gdi
