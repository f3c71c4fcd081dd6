// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/JobReader.h"

#include <algorithm>
#include <utility>

namespace gdi::reader {

std::optional<Page> JobReader::nextPage() {
  while (std::optional<JobStep> job = walk_.next()) {
    std::optional<Page> finished;
    if (job->endedPage) {
      finished = finishPage(*job->endedPage);
    }
    if (auto* prologue = std::get_if<Prologue>(&job->step.record)) {
      prologue_ = std::move(*prologue);
      prologueBytes_ = job->step.bytes;
    } else if (const auto* page = std::get_if<PageRecord>(&job->step.record)) {
      startPage(*page, std::move(job->step.header));
    } else if (std::holds_alternative<Band>(job->step.record) && job->page != 0) {
      addBand(std::move(*job));
    }
    if (finished) {
      return finished;
    }
  }
  return std::nullopt;
}

void JobReader::startPage(const PageRecord& record, std::vector<std::uint8_t>&& header) {
  page_ = Page();
  page_.header = std::move(header);
  page_.planes.fill(StoredPlane(0, record.rowsModulo64K));
}

// A lost band keeps its place, so that the plane's later bands stand where they belong.
void JobReader::addBand(JobStep&& job) {
  auto& header = page_.bandHeaders.emplace_back();
  std::ranges::copy(job.step.header, header.begin());
  if (!job.place) {
    return;
  }
  Band& band = std::get<Band>(job.step.record);
  StoredPlane& plane = page_.planes[indexOf(job.place->ink)];
  if (job.sound) {
    plane.append(band.record.rows, std::move(band.data));
  } else if (band.record.rows > 0 && band.record.rows <= kBandHeight) {
    plane.appendLost(band.record.rows);
  }
}

// How long the rows are is known for sure only now.
Page JobReader::finishPage(const PageSummary& summary) {
  Page page = std::exchange(page_, {});
  static_cast<PageSummary&>(page) = summary;
  for (StoredPlane& plane : page.planes) {
    plane.setRowBytes(page.rowBits / 8);
  }
  return page;
}

}  // namespace gdi::reader
