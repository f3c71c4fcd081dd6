// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/makescreens/parameter_text.h"

#include <algorithm>

namespace gdi::makescreens {

std::vector<std::string_view> fieldsOf(std::string_view line) {
  line = line.substr(0, line.find('#'));
  std::vector<std::string_view> fields;
  while (true) {
    const std::size_t begin = line.find_first_not_of(" \t\r");
    if (begin == std::string_view::npos) {
      return fields;
    }
    line.remove_prefix(begin);
    const std::size_t end = std::min(line.find_first_of(" \t\r"), line.size());
    fields.push_back(line.substr(0, end));
    line.remove_prefix(end);
  }
}

std::string quoted(std::string_view text) {
  return "\"" + std::string(text) + "\"";
}

std::string decimal(double value) {
  std::string text = std::to_string(value);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') {
    text.pop_back();
  }
  return text;
}

}  // namespace gdi::makescreens
