// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Two job streams compared: fields by name, bands by their bytes, pages by their pixels.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "tools/gdiview/JobInput.h"
#include "tools/gdiview/Progress.h"

namespace gdi::gdiview {

struct DiffOptions {
  std::vector<std::string> ignored;             // names of fields that may differ
  std::optional<std::filesystem::path> folder;  // where page-1-diff.png and so on go
  std::uint32_t reduction = 1;                  // of these pictures; > 0
  std::optional<std::uint64_t> prologueBytes;
};

// The names that may be ignored: "prologue" and every field of fieldsOf().
std::vector<std::string> fieldNames();

// Writes a line a difference to `out`; what is wrong with a job goes to `errors`. Reads both page
// by page; progress is told of the bytes of both together. Answers kSound when nothing differs,
// kFaulty when something does, or kUnusable.
int diffJobs(JobInput& a, JobInput& b, const DiffOptions& options, Progress& progress,
             std::ostream& out, std::ostream& errors);

}  // namespace gdi::gdiview
