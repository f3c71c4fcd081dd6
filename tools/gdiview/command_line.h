// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What the user asks for, read from the words behind the program's name.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <ostream>
#include <string>
#include <variant>
#include <vector>

#include "tools/gdiview/check_job.h"
#include "tools/gdiview/diff_jobs.h"
#include "tools/gdiview/info_job.h"
#include "tools/gdiview/png_job.h"

namespace gdi::gdiview {

enum class Command : std::uint8_t { kInfo, kCheck, kPng, kDiff };

struct CommandLine {
  Command command = Command::kPng;
  std::string job;       // of diff: the first one
  std::string otherJob;  // of diff alone
  // Where Info.plist tells the prologue's length; the options below know nothing of it yet.
  std::optional<std::filesystem::path> resources;
  InfoOptions info;
  CheckOptions check;
  PngOptions png;
  DiffOptions diff;
};

// The command line; or the exit status, when help or the version has been written to `out` or a
// line with what is wrong to `errors`.
std::variant<CommandLine, int> readCommandLine(std::vector<std::string> words, std::ostream& out,
                                               std::ostream& errors);

}  // namespace gdi::gdiview
