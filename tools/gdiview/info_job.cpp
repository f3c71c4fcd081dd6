// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/info_job.h"

namespace gdi::gdiview {

int infoJob(JobInput& input, const InfoOptions& options, std::ostream& out, std::ostream& errors) {
  const std::unique_ptr<InfoReport> report =
      options.json ? jsonReport(out, input.name()) : textReport(out);
  reader::JobWalk walk(
      input.stream(), [](const reader::Finding&) {}, options.prologueBytes);
  reader::Prologue prologue;
  const auto wanted = [&options](std::uint32_t page) {
    return !options.page || *options.page == page;
  };
  bool shown = false;
  while (const std::optional<reader::JobStep> job = walk.next()) {
    if (job->endedPage && wanted(job->endedPage->ordinal)) {
      report->page(*job->endedPage);
      shown = true;
      if (options.page) {
        break;
      }
    }
    if (const auto* start = std::get_if<reader::Prologue>(&job->step.record)) {
      prologue = *start;
      if (!walk.foundRecord()) {
        continue;
      }
    }
    if (!options.summary && wanted(job->page)) {
      report->record(*job);
    }
  }
  if (!shown && !isJobStream(walk, prologue, input.name(), errors)) {
    return statusAfterWriting(out, kUnusable, errors);
  }
  if (!options.page) {
    report->job(walk.totals());
  } else if (!shown) {
    errors << "gdiview: " << input.name() << ": there is no page " << *options.page
           << "; the job has " << walk.totals().pages << '\n';
    return kUnusable;
  }
  report->end();
  return statusAfterWriting(out, walk.totals().violations == 0 ? kSound : kFaulty, errors);
}

}  // namespace gdi::gdiview
