// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/diff_jobs.h"

#include <algorithm>
#include <sstream>
#include <utility>

#include "reader/JobReader.h"
#include "reader/page_resolution.h"
#include "tools/gdiview/DifferenceLines.h"
#include "tools/gdiview/DifferencePainter.h"
#include "tools/gdiview/FindingLines.h"
#include "tools/gdiview/OtherSteps.h"
#include "tools/gdiview/escaped_text.h"
#include "tools/gdiview/page_difference.h"
#include "tools/gdiview/picture_file.h"
#include "tools/gdiview/record_fields.h"

namespace gdi::gdiview {

namespace {

using reader::RecordKind;

// One of the two jobs, read page by page; what is wrong with it becomes lines in `errors`.
class Side {
 public:
  Side(JobInput& input, const DiffOptions& options, Progress& progress, std::ostream& errors)
      : name_(input.name()),
        errors_(errors),
        others_(options.ignored),
        lines_(errors, input.name()),
        job_(
            input.stream(),
            [this, &progress](const reader::Finding& finding) {
              progress.clear();
              lines_.tell(finding);
            },
            options.prologueBytes, [this](const reader::RecordStep& step) { addOther(step); }) {}

  // Reads the next page; there is none in page() when there are no more.
  void nextPage() {
    page_ = job_.nextPage();
    begun_ = true;
    if (page_) {
      bytesOfPages_ += lengthOf(RecordKind::kPage) + page_->compressedBytes +
                       lengthOf(RecordKind::kBand) * page_->bandRecords.size() +
                       page_->strayBytes.bytes();
    }
  }
  [[nodiscard]] const std::optional<reader::Page>& page() const { return page_; }
  [[nodiscard]] const reader::JobReader& job() const { return job_; }
  // Of the job, which has been read to its end, all that is not of its prologue or of a page.
  [[nodiscard]] OtherBytes otherBytes() const {
    return {job_.totals().bytes - job_.prologueBytes() - bytesOfPages_, job_.totals().pages,
            others_.checksum()};
  }
  // Of what nextPage() has read.
  [[nodiscard]] bool isJob() const { return holdsJob(job_.walk(), start()); }
  // False, with a line, when it is no job stream or could not be read on.
  [[nodiscard]] bool isReadable() const {
    return isJobStream(job_.walk(), start(), name_, errors_);
  }

 private:
  [[nodiscard]] JobStart start() const { return {job_.prologue(), job_.prologueBytes()}; }
  // The records that DifferenceLines::frames() compares stay out.
  void addOther(const reader::RecordStep& step) {
    bool& seen = std::holds_alternative<reader::JobRecord>(step.record) ? seenJob_ : seenHost_;
    const bool isFrame = std::holds_alternative<reader::JobRecord>(step.record) ||
                         std::holds_alternative<reader::HostRecord>(step.record);
    if (!isFrame || std::exchange(seen, true) || begun_) {
      others_.add(step, job_.totals().pages);
    }
  }

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

// The picture of two pages whose pixels differ; false, with a line, when it cannot be written.
bool writeDifference(const reader::Page& a, const reader::Page& b, const DiffOptions& options,
                     Progress& progress, std::ostream& out, std::ostream& errors) {
  DifferencePainter painter(a, b, options.reduction);
  const std::filesystem::path path =
      *options.folder / ("page-" + std::to_string(a.ordinal) + "-diff.png");
  std::ostringstream trouble;
  const double samplesPerInch = static_cast<double>(reader::pixelsPerInchOf(a)) / options.reduction;
  const bool written =
      writePicture(painter, samplesPerInch, path, trouble,
                   [&](std::uint32_t rows) { progress.work(rows, painter.height()); });
  progress.clear();
  errors << trouble.str();
  if (written) {
    out << "page " << a.ordinal << ": " << nameInLine(path.string()) << '\n';
  }
  return written;
}

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
  Side sideA(a, options, progress, errors);
  Side sideB(b, options, progress, errors);
  const auto nextPages = [&] {
    sideA.nextPage();
    sideB.nextPage();
  };
  const auto bothReadable = [&] {
    progress.clear();
    const bool readable = sideA.isReadable();
    return sideB.isReadable() && readable;
  };
  nextPages();
  if (!sideA.isJob() || !sideB.isJob()) {
    (void)bothReadable();
    return kUnusable;
  }
  DifferenceLines differences(options.ignored, out, [&progress] { progress.clear(); });
  differences.prologues(sideA.job(), sideB.job());
  differences.frames(sideA.job(), sideB.job());
  for (; sideA.page() || sideB.page(); nextPages()) {
    const std::optional<reader::Page>& pageA = sideA.page();
    const std::optional<reader::Page>& pageB = sideB.page();
    progress.update(pageA ? pageA->ordinal : pageB->ordinal, sideA.job().walk().offset());
    if (!pageA || !pageB) {
      differences.onlyIn(pageA ? "A" : "B", pageA ? *pageA : *pageB);
      continue;
    }
    differences.headers(*pageA, *pageB);
    const PageDifference difference = differenceOf(*pageA, *pageB);
    differences.bands(*pageA, *pageB, difference);
    const bool picture = options.folder && difference.comparable && !difference.samePixels();
    if (picture && !writeDifference(*pageA, *pageB, options, progress, out, errors)) {
      return statusAfterWriting(out, kUnusable, errors);
    }
  }
  differences.otherBytes(sideA.otherBytes(), sideB.otherBytes());
  const int status = differences.found() ? kFaulty : kSound;
  return statusAfterWriting(out, bothReadable() ? status : kUnusable, errors);
}

}  // namespace gdi::gdiview
