// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/TextTable.h"

#include <algorithm>
#include <iomanip>
#include <sstream>
#include <utility>

namespace gdi::screenquality {

TextTable::TextTable(std::vector<std::string> heads, std::size_t words) : words_(words) {
  rows_.push_back(std::move(heads));
}

void TextTable::add(std::vector<std::string> cells) {
  rows_.push_back(std::move(cells));
}

void TextTable::write(std::ostream& out) const {
  std::vector<std::size_t> widths(rows_.front().size(), 0);
  for (const auto& row : rows_) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      widths[i] = std::max(widths[i], row[i].size());
    }
  }
  for (const auto& row : rows_) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) {
      const std::string room(widths[i] - row[i].size(), ' ');
      line.append(i == 0 ? "" : "  ").append(i < words_ ? row[i] + room : room + row[i]);
    }
    line.erase(line.find_last_not_of(' ') + 1);
    out << line << '\n';
  }
}

std::string figure(double number, int digits) {
  std::ostringstream text;
  text << std::fixed << std::setprecision(digits) << number;
  return text.str();
}

}  // namespace gdi::screenquality
