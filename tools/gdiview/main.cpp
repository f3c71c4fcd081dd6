// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// gdiview as a program: its command line, then the command.

#include <cstdint>
#include <exception>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include <unistd.h>

#include "platform/standard_descriptors.h"
#include "tools/gdiview/command_line.h"
#include "tools/gdiview/prologue_bytes.h"

namespace {

using namespace gdi::gdiview;

int run(CommandLine line) {
  const std::optional<std::uint64_t> prologueBytes = prologueBytesOf(line.resources);
  line.info.prologueBytes = prologueBytes;
  line.check.prologueBytes = prologueBytes;
  line.png.prologueBytes = prologueBytes;
  line.diff.prologueBytes = prologueBytes;
  JobInput job(line.job);
  if (!job.isOpen(std::cerr)) {
    return kUnusable;
  }
  std::optional<JobInput> otherJob;
  if (line.command == Command::kDiff && !otherJob.emplace(line.otherJob).isOpen(std::cerr)) {
    return kUnusable;
  }
  // What info prints would run into the progress line of the same terminal.
  const bool terminal =
      isatty(STDERR_FILENO) != 0 && (line.command != Command::kInfo || isatty(STDOUT_FILENO) == 0);
  Progress progress(std::cerr, terminal, otherJob ? sizeOfBoth(job, *otherJob) : job.size());
  switch (line.command) {
    case Command::kInfo:
      return infoJob(job, line.info, progress, std::cout, std::cerr);
    case Command::kCheck:
      return checkJob(job, line.check, progress, std::cout, std::cerr);
    case Command::kPng:
      return pngJob(job, line.png, progress, std::cout, std::cerr);
    case Command::kDiff:
      break;
  }
  return diffJobs(job, *otherJob, line.diff, progress, std::cout, std::cerr);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    gdi::fillStandardDescriptors();
    // Of stdio's standard input nobody would learn that it cannot be read.
    std::ios::sync_with_stdio(false);
    std::variant<CommandLine, int> line =
        readCommandLine(std::vector<std::string>(argv + 1, argv + argc), std::cout, std::cerr);
    const int* const status = std::get_if<int>(&line);
    return status != nullptr ? *status : run(std::get<CommandLine>(std::move(line)));
  } catch (const std::exception& error) {
    std::cerr << "gdiview: " << error.what() << '\n';
    return kUnusable;
  }
}
