// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Writes a job stream's pages as PNG files and tells about each page and each trouble in one line.
#pragma once

#include <cstdint>
#include <filesystem>
#include <istream>
#include <optional>
#include <ostream>
#include <string>

namespace gdi::gdiview {

struct ViewOptions {
  std::filesystem::path folder;       // where page-1.png and so on go; made when missing
  std::uint32_t reduction = 1;        // pixels a sample, each way; > 0
  std::optional<std::uint32_t> page;  // this page alone, from 1
};

// Reads the job from `input`, called `jobName` in messages. Lines about pages go to `pages`, lines
// about troubles, "gdiview: JOB: offset N: ...", to `troubles`. A note among them begins with
// "note: " behind its offset and does not count.
// Answers the exit status: 0 when the whole job was sound and all pictures and lines about pages
// were written, else 1.
int viewJob(std::istream& input, const std::string& jobName, const ViewOptions& options,
            std::ostream& pages, std::ostream& troubles);

}  // namespace gdi::gdiview
