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
  reader::Prologue prologue;
  const auto wanted = [&options](std::uint32_t page) {
    return !options.page || *options.page == page;
  };
  bool shown = false;
  std::uint32_t page = 0;  // that is under way
  while (const std::optional<reader::JobStep> job = walk.next()) {
    progress.update(walk.totals().pages, walk.offset());
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
    // What is no record belongs to the page inside which it stands.
    if (job->endedPage || job->page != 0) {
      page = job->page;
    }
    if (!options.summary && wanted(page)) {
      report->record(*job);
    }
  }
  progress.clear();
  const bool readable = isJobStream(walk, prologue, input.name(), errors);
  if (!walk.foundRecord()) {
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
