// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// searchscreens as a program: its command line, then the work.

#include <exception>
#include <iostream>
#include <string>
#include <variant>
#include <vector>

#include "tools/searchscreens/command_line.h"
#include "tools/searchscreens/run.h"

int main(int argc, char** argv) {
  using namespace gdi::searchscreens;
  try {
    const std::variant<CommandLine, int> line =
        readCommandLine(std::vector<std::string>(argv + 1, argv + argc), std::cout, std::cerr);
    const int* const status = std::get_if<int>(&line);
    return status != nullptr ? *status : run(std::get<CommandLine>(line), std::cout, std::cerr);
  } catch (const std::exception& error) {
    std::cerr << "searchscreens: " << error.what() << '\n';
    return kUnusable;
  }
}
