// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/check_job.h"

#include "reader/JobWalk.h"
#include "reader/counted.h"
#include "tools/gdiview/escaped_text.h"

namespace gdi::gdiview {

int checkJob(JobInput& input, const CheckOptions& options, Progress& progress, std::ostream& out,
             std::ostream& errors) {
  const std::string name = nameInLine(input.name());
  const auto tell = [&](const reader::Finding& finding) {
    if (!options.quiet || !finding.remark()) {
      progress.clear();
      out << name << ": " << reader::lineOf(finding) << '\n';
    }
  };
  reader::JobWalk walk(input.stream(), tell, options.prologueBytes);
  JobStart start;
  std::uint64_t bands = 0;
  while (std::optional<reader::JobStep> job = walk.next()) {
    progress.update(walk.totals().pages, walk.offset());
    bands += std::holds_alternative<reader::Band>(job->step.record) ? 1 : 0;
    if (auto* prologue = std::get_if<reader::Prologue>(&job->step.record)) {
      start = {std::move(*prologue), job->step.bytes};
    }
  }
  progress.clear();
  if (!isJobStream(walk, start, input.name(), errors)) {
    return statusAfterWriting(out, kUnusable, errors);
  }
  const reader::JobTotals& totals = walk.totals();
  if (!options.quiet) {
    out << name << ": " << reader::counted(totals.pages, "page") << ", "
        << reader::counted(bands, "band") << ", " << reader::counted(totals.violations, "violation")
        << ", " << reader::counted(totals.remarks, "note") << '\n';
  }
  return statusAfterWriting(out, totals.violations == 0 ? kSound : kFaulty, errors);
}

}  // namespace gdi::gdiview
