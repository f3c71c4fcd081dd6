// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A job stream as pictures, and a line about each page.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <ostream>

#include "tools/gdiview/JobInput.h"
#include "tools/gdiview/Progress.h"

namespace gdi::gdiview {

// Which pages are turned by 180 degrees. The stream does not tell which are stored turned; the back
// sides of a duplex job have odd numbers in their page records, which count from 0.
enum class Turned : std::uint8_t { kNone, kBacks, kFronts, kAll };

struct PngOptions {
  std::filesystem::path folder;       // where page-1.png and so on go; made for the first one
  std::uint32_t reduction = 1;        // pixels a sample, each way; > 0
  std::optional<std::uint32_t> page;  // this page alone, from 1
  bool planes = false;                // each plane too, as page-1-cyan.png and so on
  Turned turned = Turned::kNone;
  std::optional<std::uint64_t> prologueBytes;
};

// Writes the pictures and a line a page to `out`, and the job's violations to `errors`. What
// can be shown is shown. Answers kSound, kFaulty when the job has violations, or kUnusable when it
// is none, when a picture cannot be written or the page that was asked for is not there.
int pngJob(JobInput& input, const PngOptions& options, Progress& progress, std::ostream& out,
           std::ostream& errors);

}  // namespace gdi::gdiview
