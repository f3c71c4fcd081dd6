// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What the lines about two jobs' differences are made of.
#pragma once

#include <string>

#include "reader/Page.h"

namespace gdi::gdiview {

// One line, "WHERE: WHAT".
struct DifferenceLine {
  std::string where;
  std::string what;
};

inline std::string nameOf(const reader::Page& page) {
  return "page " + std::to_string(page.ordinal);
}

inline std::string inBoth(const std::string& a, const std::string& b) {
  return std::string(a).append(" in A, ").append(b).append(" in B");
}

}  // namespace gdi::gdiview
