// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// One of the two jobs that diff compares, read page by page.
#pragma once

#include <cstdint>
#include <optional>
#include <ostream>
#include <string>

#include "reader/JobReader.h"
#include "tools/gdiview/DifferenceLines.h"
#include "tools/gdiview/FindingLines.h"
#include "tools/gdiview/JobInput.h"
#include "tools/gdiview/OtherSteps.h"
#include "tools/gdiview/Progress.h"
#include "tools/gdiview/diff_jobs.h"

namespace gdi::gdiview {

class ComparedJob {
 public:
  // What is wrong with the job becomes lines in `errors`, ahead of which the progress line is
  // wiped. input, progress, errors: must outlive this.
  ComparedJob(JobInput& input, const DiffOptions& options, Progress& progress,
              std::ostream& errors);
  ComparedJob(const ComparedJob&) = delete;
  ComparedJob& operator=(const ComparedJob&) = delete;

  // Reads the next page; there is none in page() when there are no more.
  void nextPage();
  [[nodiscard]] const std::optional<reader::Page>& page() const { return page_; }
  [[nodiscard]] const reader::JobReader& job() const { return job_; }
  // Of the job, which has been read to its end, all that is not of its prologue or of a page.
  [[nodiscard]] OtherBytes otherBytes() const;
  // Of what nextPage() has read.
  [[nodiscard]] bool isJob() const { return holdsJob(job_.walk(), start()); }
  // False, with a line, when it is no job stream or could not be read on.
  [[nodiscard]] bool isReadable() const;

 private:
  [[nodiscard]] JobStart start() const { return {job_.prologue(), job_.prologueBytes()}; }
  void addOther(const reader::RecordStep& step);
  // One of the two records that DifferenceLines::frames() compares: the first of its kind, ahead of
  // all pages.
  bool isFrame(const reader::RecordStep& step);

  std::string name_;
  std::ostream& errors_;
  bool begun_ = false;  // the first page has come, if there is one
  bool seenJob_ = false;
  bool seenHost_ = false;
  OtherSteps others_;
  FindingLines lines_;
  reader::JobReader job_;
  std::optional<reader::Page> page_;
  std::uint64_t bytesOfPages_ = 0;
};

}  // namespace gdi::gdiview
