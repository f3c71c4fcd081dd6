// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// "1 row", "2 rows".
#pragma once

#include <cstdint>
#include <string>

namespace gdi::reader {

inline std::string counted(std::uint64_t count, const char* what) {
  std::string text = std::to_string(count);
  return text.append(" ").append(what).append(count == 1 ? "" : "s");
}

}  // namespace gdi::reader
