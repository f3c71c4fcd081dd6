// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A job stream read page by page, each page with its planes. Occupies the band records and
// the compressed bands of one page: a few times the bytes that came of it.
#pragma once

#include <cstdint>
#include <functional>
#include <istream>
#include <optional>

#include "reader/JobWalk.h"
#include "reader/Page.h"

namespace gdi::reader {

// Takes a step as it comes.
using StepSink = std::function<void(const RecordStep&)>;

class JobReader {
 public:
  // As JobWalk takes them. A band that does not decode costs that band only: its rows are blank.
  // others: takes what is neither the prologue nor part of a page.
  JobReader(
      std::istream& input, FindingSink tell, std::optional<std::uint64_t> prologueBytes = {},
      StepSink others = [](const RecordStep&) {})
      : walk_(input, std::move(tell), prologueBytes), others_(std::move(others)) {}

  // The next page; nothing when the stream has come to its end. A page in which the stream breaks
  // off is given with what arrived of it.
  std::optional<Page> nextPage();

  // What comes ahead of the first record, once a page or the end was read.
  [[nodiscard]] const Prologue& prologue() const { return prologue_; }
  [[nodiscard]] std::uint64_t prologueBytes() const { return prologueChecksum_.bytes(); }
  [[nodiscard]] const Checksum& prologueChecksum() const { return prologueChecksum_; }
  [[nodiscard]] const JobWalk& walk() const { return walk_; }
  [[nodiscard]] const JobTotals& totals() const { return walk_.totals(); }

 private:
  void startPage(const PageRecord& record, std::vector<std::uint8_t>&& header);
  void addBand(JobStep&& job);
  // A step that is none of the above.
  void addOther(const RecordStep& step);
  Page finishPage(const PageSummary& summary);

  JobWalk walk_;
  Prologue prologue_;
  Checksum prologueChecksum_;
  StepSink others_;
  bool onPage_ = false;
  Page page_;  // what has come of the page that is being put together
};

}  // namespace gdi::reader
