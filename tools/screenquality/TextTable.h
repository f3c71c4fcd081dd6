// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A table of words and figures in columns that are as wide as they need to be.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace gdi::screenquality {

class TextTable {
 public:
  // The first `words` columns hold words, which stand to the left; the others figures.
  TextTable(std::vector<std::string> heads, std::size_t words);

  // Requires: as many cells as there are heads.
  void add(std::vector<std::string> cells);

  void write(std::ostream& out) const;

 private:
  std::size_t words_;
  std::vector<std::vector<std::string>> rows_;  // the heads first
};

// The number with that many digits behind the point.
std::string figure(double number, int digits = 2);

}  // namespace gdi::screenquality
