// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/ComparedJob.h"

#include <utility>
#include <variant>

namespace gdi::gdiview {

ComparedJob::ComparedJob(JobInput& input, const DiffOptions& options, Progress& progress,
                         std::ostream& errors)
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
          options.prologueBytes, [this](const reader::RecordStep& step) { addOther(step); }) {
}

void ComparedJob::nextPage() {
  page_ = job_.nextPage();
  begun_ = true;
  if (page_) {
    bytesOfPages_ += lengthOf(reader::RecordKind::kPage) + page_->compressedBytes +
                     lengthOf(reader::RecordKind::kBand) * page_->bandRecords.size() +
                     page_->strayBytes.bytes();
  }
}

OtherBytes ComparedJob::otherBytes() const {
  return {job_.totals().bytes - job_.prologueBytes() - bytesOfPages_, job_.totals().pages,
          others_.checksum()};
}

bool ComparedJob::isReadable() const {
  return isJobStream(job_.walk(), start(), name_, errors_);
}

void ComparedJob::addOther(const reader::RecordStep& step) {
  if (!isFrame(step)) {
    others_.add(step, job_.totals().pages);
  }
}

bool ComparedJob::isFrame(const reader::RecordStep& step) {
  if (std::holds_alternative<reader::JobRecord>(step.record)) {
    return !std::exchange(seenJob_, true) && !begun_;
  }
  if (std::holds_alternative<reader::HostRecord>(step.record)) {
    return !std::exchange(seenHost_, true) && !begun_;
  }
  return false;
}

}  // namespace gdi::gdiview
