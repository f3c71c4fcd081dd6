// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A job stream held against the whole format.
#pragma once

#include <cstdint>
#include <optional>
#include <ostream>

#include "tools/gdiview/JobInput.h"
#include "tools/gdiview/Progress.h"

namespace gdi::gdiview {

struct CheckOptions {
  bool quiet = false;  // violations alone: no remarks and no last line
  std::optional<std::uint64_t> prologueBytes;
};

// Writes a line a finding, page by page in the order in which they are found, and a last line that
// counts them. Answers kSound, kFaulty when there are violations, or kUnusable.
int checkJob(JobInput& input, const CheckOptions& options, Progress& progress, std::ostream& out,
             std::ostream& errors);

}  // namespace gdi::gdiview
