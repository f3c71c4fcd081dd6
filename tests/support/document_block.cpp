// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/document_block.h"

#include <fstream>
#include <sstream>

namespace gdi::test {

std::vector<std::string> linesOfBlock(const std::filesystem::path& document,
                                      std::string_view language) {
  std::ifstream input(document);
  std::vector<std::string> lines;
  bool inside = false;
  for (std::string line; std::getline(input, line);) {
    if (line.starts_with("```")) {
      inside = line.substr(3) == language;
      continue;
    }
    line = line.substr(0, line.find('#'));
    if (inside && line.find_first_not_of(' ') != std::string::npos) {
      lines.push_back(line);
    }
  }
  return lines;
}

std::vector<std::uint16_t> hexNumbers(const std::string& line) {
  std::vector<std::uint16_t> numbers;
  std::istringstream words(line);
  for (std::string word; words >> word;) {
    numbers.push_back(static_cast<std::uint16_t>(std::stoul(word, nullptr, 16)));
  }
  return numbers;
}

std::vector<std::uint8_t> bytesOfHexBlock(const std::filesystem::path& document) {
  std::vector<std::uint8_t> bytes;
  for (const std::string& line : linesOfBlock(document, "hex")) {
    for (const std::uint16_t number : hexNumbers(line)) {
      bytes.push_back(static_cast<std::uint8_t>(number));
    }
  }
  return bytes;
}

}  // namespace gdi::test
