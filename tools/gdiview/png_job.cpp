// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/png_job.h"

#include "reader/JobReader.h"
#include "tools/gdiview/FindingLines.h"
#include "tools/gdiview/PagePictures.h"
#include "tools/gdiview/escaped_text.h"

namespace gdi::gdiview {

int pngJob(JobInput& input, const PngOptions& options, Progress& progress, std::ostream& out,
           std::ostream& errors) {
  FindingLines lines(errors, input.name());
  const auto tell = [&](const reader::Finding& finding) {
    progress.clear();
    lines.tell(finding);
  };
  reader::JobReader job(input.stream(), tell, options.prologueBytes);
  bool shown = false;
  while (const std::optional<reader::Page> page = job.nextPage()) {
    progress.update(page->ordinal, job.walk().offset());
    if (options.page && *options.page != page->ordinal) {
      continue;
    }
    shown = true;
    if (!PagePictures(*page, options, progress, out, errors).write()) {
      return kUnusable;
    }
    if (options.page) {
      break;
    }
  }
  progress.clear();
  if (!isJobStream(job.walk(), {job.prologue(), job.prologueBytes()}, input.name(), errors)) {
    return statusAfterWriting(out, kUnusable, errors);
  }
  if (options.page && !shown) {
    tellMissingPage(input.name(), *options.page, job.totals(), errors);
    return kUnusable;
  }
  if (job.totals().pages == 0) {
    out << nameInLine(input.name()) << ": 0 pages, no picture\n";
  }
  return statusAfterWriting(out, job.totals().violations == 0 ? kSound : kFaulty, errors);
}

}  // namespace gdi::gdiview
