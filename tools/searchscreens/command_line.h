// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What the maintainer asks for, read from the words behind the program's name.
#pragma once

#include <filesystem>
#include <ostream>
#include <string>
#include <variant>
#include <vector>

#include "tools/searchscreens/search.h"

namespace gdi::searchscreens {

struct CommandLine {
  std::filesystem::path parameters;
  std::string paperClass;
  std::string quality;
  std::string mode;
  Limits limits;
};

// The command line; or the exit status, when help has been written to `out` or a line with what is
// wrong to `errors`.
std::variant<CommandLine, int> readCommandLine(std::vector<std::string> words, std::ostream& out,
                                               std::ostream& errors);

}  // namespace gdi::searchscreens
