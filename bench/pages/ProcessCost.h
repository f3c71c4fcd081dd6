// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What a program costs from its start to its end, as the system counts it.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace gdi::bench {

struct ProcessCost {
  double seconds = 0;    // of the processor, user and system
  double mebibytes = 0;  // most memory resident at a time, mapped files included
};

// Runs the program with `words`, of which the first is its own name, on standard input from
// `input`; its output is thrown away. Nothing, and a line on standard error that says why, when it
// cannot be started or does not end with status 0.
std::optional<ProcessCost> costOfProcess(const std::filesystem::path& program,
                                         std::vector<std::string> words,
                                         const std::filesystem::path& input);

}  // namespace gdi::bench
