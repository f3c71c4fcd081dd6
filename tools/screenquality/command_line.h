// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What the maintainer asks for, read from the words behind the program's name.
#pragma once

#include <filesystem>
#include <ostream>
#include <string>
#include <variant>
#include <vector>

namespace gdi::screenquality {

struct CommandLine {
  std::filesystem::path resources;
  std::string only;  // a key, or empty for all sets
  bool baselines = true;
  bool robust = false;
  bool bytes = false;
};

// The command line; or the exit status, when help has been written to `out` or a line with what is
// wrong to `errors`.
std::variant<CommandLine, int> readCommandLine(std::vector<std::string> words, std::ostream& out,
                                               std::ostream& errors);

}  // namespace gdi::screenquality
