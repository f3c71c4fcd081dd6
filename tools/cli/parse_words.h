// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// How the maintainers' tools take their words: help to standard output, faults in one line.
#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

namespace gdi::cli {

// Fills what `app` was told to fill. Nothing when the program may go on; otherwise the exit status:
// 0 when help was asked for and written, `refused` when that failed or a word is wrong, which
// `errors` is told in a line.
std::optional<int> parseWords(CLI::App& app, std::vector<std::string> words, int refused,
                              std::ostream& out, std::ostream& errors);

// Writes "NAME: FAULT; NAME --help tells more" with the program's name.
void tellFault(const CLI::App& app, const std::string& fault, std::ostream& errors);

}  // namespace gdi::cli
