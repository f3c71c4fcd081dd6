// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/info_job.h"

namespace gdi::gdiview {

int infoJob(JobInput& input, const InfoOptions& options, Progress& progress, std::ostream& out,
            std::ostream& errors) {
  const std::unique_ptr<InfoReport> report =
      options.json ? jsonReport(out, input.name()) : textReport(out);
  reader::JobWalk walk(
      input.stream(), [](const reader::Finding&) {}, options.prologueBytes);
  JobStart start;
  std::optional<reader::JobStep> held;  // the prologue, until what follows shows it to be one
  const auto wanted = [&options](std::uint32_t page) {
    return !options.page || *options.page == page;
  };
  bool shown = false;
  std::uint32_t page = 0;  // that is under way
  while (std::optional<reader::JobStep> job = walk.next()) {
    progress.update(walk.totals().pages, walk.offset());
    if (job->endedPage && wanted(job->endedPage->ordinal)) {
      report->page(*job->endedPage);
      shown = true;
      if (options.page) {
        break;
      }
    }
    if (const auto* prologue = std::get_if<reader::Prologue>(&job->step.record)) {
      start = {*prologue, job->step.bytes};
      held = std::move(job);
      continue;
    }
    if (!holdsJob(walk, start)) {
      continue;
    }
    if (held && !options.summary && !options.page) {
      report->record(*held);
    }
    held.reset();
    // What is no record belongs to the page inside which it stands.
    if (job->endedPage || job->page != 0) {
      page = job->page;
    }
    if (!options.summary && wanted(page)) {
      report->record(*job);
    }
  }
  progress.clear();
  const bool readable = isJobStream(walk, start, input.name(), errors);
  if (!holdsJob(walk, start)) {
    return statusAfterWriting(out, kUnusable, errors);
  }
  if (!options.page) {
    report->job(walk.totals());
  } else if (!shown) {
    if (readable) {
      tellMissingPage(input.name(), *options.page, walk.totals(), errors);
    }
    return kUnusable;
  }
  report->end();
  const int status = walk.totals().violations == 0 ? kSound : kFaulty;
  return statusAfterWriting(out, readable ? status : kUnusable, errors);
}

}  // namespace gdi::gdiview
