// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A job stream read page by page, each page with its planes. Occupies the compressed bands of one
// page.
#pragma once

#include <cstdint>
#include <istream>
#include <optional>

#include "reader/JobWalk.h"
#include "reader/Page.h"

namespace gdi::reader {

class JobReader {
 public:
  // As JobWalk takes them. A band that does not decode costs that band only: its rows are blank.
  JobReader(std::istream& input, FindingSink tell, std::optional<std::uint64_t> prologueBytes = {})
      : walk_(input, std::move(tell), prologueBytes) {}

  // The next page; nothing when the stream has come to its end. A page in which the stream breaks
  // off is given with what arrived of it.
  std::optional<Page> nextPage();

  // What comes ahead of the first record, once a page or the end was read.
  [[nodiscard]] const Prologue& prologue() const { return prologue_; }
  [[nodiscard]] std::uint64_t prologueBytes() const { return prologueBytes_; }
  [[nodiscard]] const JobWalk& walk() const { return walk_; }
  [[nodiscard]] const JobTotals& totals() const { return walk_.totals(); }

 private:
  void startPage(const PageRecord& record, std::vector<std::uint8_t>&& header);
  void addBand(JobStep&& job);
  Page finishPage(const PageSummary& summary);

  JobWalk walk_;
  Prologue prologue_;
  std::uint64_t prologueBytes_ = 0;
  Page page_;  // what has come of the page that is being put together
};

}  // namespace gdi::reader
