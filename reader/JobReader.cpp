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
      prologueChecksum_ = job->step.checksum;
    } else if (const auto* page = std::get_if<PageRecord>(&job->step.record)) {
      startPage(*page, std::move(job->step.header));
    } else if (std::holds_alternative<Band>(job->step.record) && job->page != 0) {
      addBand(std::move(*job));
    } else {
      addOther(job->step);
    }
    if (finished) {
      return finished;
    }
  }
  return std::nullopt;
}

void JobReader::startPage(const PageRecord& record, std::vector<std::uint8_t>&& header) {
  page_ = Page();
  onPage_ = true;
  page_.header = std::move(header);
  page_.planes.fill(StoredPlane(0, record.rowsModulo64K));
}

// A lost band keeps its place, so that the plane's later bands stand where they belong.
void JobReader::addBand(JobStep&& job) {
  Band& band = std::get<Band>(job.step.record);
  BandOnPage& record = page_.bandRecords.emplace_back();
  std::ranges::copy(job.step.header, record.header.begin());
  record.place = job.place;
  record.dataBytes = band.data.size();
  if (job.place && job.sound) {
    StoredPlane& plane = page_.planes[indexOf(job.place->ink)];
    page_.lostBands += plane.append(band.record.rows, std::move(band.data)) ? 0 : 1;
    return;
  }
  Checksum bytes;
  bytes.add(band.data);
  if (job.place) {
    const bool rowsAreKnown = band.record.rows <= kBandHeight;
    page_.planes[indexOf(job.place->ink)].appendLost(rowsAreKnown ? band.record.rows : 0, bytes);
  } else {
    page_.strayBytes.mark(page_.bandRecords.size());
    page_.strayBytes.mark(bytes.value());
  }
}

void JobReader::addOther(const RecordStep& step) {
  if (onPage_) {
    page_.strayBytes.mark(page_.bandRecords.size());
  }
  if (onPage_ && std::holds_alternative<Gap>(step.record)) {
    page_.strayBytes.add(step.checksum);
  } else {
    others_(step);
  }
}

// How long the rows are is known for sure only now.
Page JobReader::finishPage(const PageSummary& summary) {
  Page page = std::exchange(page_, {});
  onPage_ = false;
  const std::uint32_t keptOut = page.lostBands;
  static_cast<PageSummary&>(page) = summary;
  page.lostBands += keptOut;
  for (StoredPlane& plane : page.planes) {
    plane.setRowBytes(page.rowBits / 8);
  }
  return page;
}

}  // namespace gdi::reader
