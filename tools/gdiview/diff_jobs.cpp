// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/diff_jobs.h"

#include <algorithm>
#include <sstream>

#include "reader/page_resolution.h"
#include "tools/gdiview/ComparedJob.h"
#include "tools/gdiview/DifferenceLines.h"
#include "tools/gdiview/DifferencePainter.h"
#include "tools/gdiview/escaped_text.h"
#include "tools/gdiview/page_difference.h"
#include "tools/gdiview/picture_file.h"
#include "tools/gdiview/record_fields.h"

namespace gdi::gdiview {

namespace {

using reader::RecordKind;

class JobComparison {
 public:
  JobComparison(JobInput& a, JobInput& b, const DiffOptions& options, Progress& progress,
                std::ostream& out, std::ostream& errors)
      : options_(options),
        progress_(progress),
        out_(out),
        errors_(errors),
        a_(a, options, progress, errors),
        b_(b, options, progress, errors),
        differences_(options.ignored, out, [&progress] { progress.clear(); }) {}

  // Answers the exit status.
  int run() {
    nextPages();
    if (!a_.isJob() || !b_.isJob()) {
      (void)areReadable();  // they are not: for its lines
      return kUnusable;
    }
    differences_.prologues(a_.job(), b_.job());
    differences_.frames(a_.job(), b_.job());
    for (; a_.page() || b_.page(); nextPages()) {
      progress_.update(a_.page() ? a_.page()->ordinal : b_.page()->ordinal,
                       a_.job().walk().offset() + b_.job().walk().offset());
      if (!a_.page() || !b_.page()) {
        differences_.onlyIn(a_.page() ? "A" : "B", a_.page() ? *a_.page() : *b_.page());
      } else if (!comparePages(*a_.page(), *b_.page())) {
        return kUnusable;
      }
    }
    differences_.otherBytes(a_.otherBytes(), b_.otherBytes());
    const int status = differences_.found() ? kFaulty : kSound;
    return areReadable() ? status : kUnusable;
  }

 private:
  void nextPages() {
    a_.nextPage();
    b_.nextPage();
  }

  // False when one is no job or could not be read on; each has its line then.
  [[nodiscard]] bool areReadable() const {
    progress_.clear();
    const bool readable = a_.isReadable();
    return b_.isReadable() && readable;
  }

  // False, with a line, when the picture of their difference cannot be written. With pictures,
  // comparing is half of the page's work.
  bool comparePages(const reader::Page& a, const reader::Page& b) {
    const std::uint64_t parts = options_.folder ? 2 : 1;
    differences_.headers(a, b);
    const PageDifference difference =
        differenceOf(a, b, [this, parts](std::uint64_t done, std::uint64_t all) {
          progress_.work(done, all * parts);
        });
    differences_.bands(a, b, difference);
    const bool picture = options_.folder && difference.comparable && !difference.samePixels();
    return !picture || writePictureOf(a, b);
  }

  // Two pages whose pixels differ; false, with a line, when it cannot be written.
  bool writePictureOf(const reader::Page& a, const reader::Page& b) {
    DifferencePainter painter(a, b, options_.reduction);
    const std::filesystem::path path =
        *options_.folder / ("page-" + std::to_string(a.ordinal) + "-diff.png");
    std::ostringstream trouble;
    const double samplesPerInch =
        static_cast<double>(reader::pixelsPerInchOf(a)) / options_.reduction;
    const auto tellRows = [this, height = std::uint64_t{painter.height()}](std::uint32_t rows) {
      progress_.work(height + rows, height * 2);
    };
    const bool written = writePicture(painter, samplesPerInch, path, trouble, tellRows);
    progress_.clear();
    errors_ << trouble.str();
    if (written) {
      out_ << "page " << a.ordinal << ": " << nameInLine(path.string()) << '\n';
    }
    return written;
  }

  const DiffOptions& options_;
  Progress& progress_;
  std::ostream& out_;
  std::ostream& errors_;
  ComparedJob a_;
  ComparedJob b_;
  DifferenceLines differences_;
};

}  // namespace

std::vector<std::string> fieldNames() {
  std::vector<std::string> names{kPrologueName};
  for (const RecordKind kind :
       {RecordKind::kJob, RecordKind::kHost, RecordKind::kPage, RecordKind::kBand}) {
    for (const Field& field : fieldsOf(kind, std::vector<std::uint8_t>(lengthOf(kind)))) {
      if (std::ranges::count(names, field.name) == 0) {
        names.push_back(field.name);
      }
    }
  }
  return names;
}

int diffJobs(JobInput& a, JobInput& b, const DiffOptions& options, Progress& progress,
             std::ostream& out, std::ostream& errors) {
  if (options.folder && !makeFolder(*options.folder, errors)) {
    return kUnusable;
  }
  JobComparison comparison(a, b, options, progress, out, errors);
  return statusAfterWriting(out, comparison.run(), errors);
}

}  // namespace gdi::gdiview
