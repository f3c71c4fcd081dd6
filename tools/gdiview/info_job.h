// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What a job stream says: its records one by one, a summary of each page and one of the job.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <ostream>
#include <string>

#include "reader/JobWalk.h"
#include "tools/gdiview/JobInput.h"
#include "tools/gdiview/Progress.h"

namespace gdi::gdiview {

// Where the records and summaries go, in the order of the stream.
class InfoReport {
 public:
  InfoReport() = default;
  virtual ~InfoReport() = default;
  InfoReport(const InfoReport&) = delete;
  InfoReport& operator=(const InfoReport&) = delete;

  virtual void record(const reader::JobStep& job) = 0;
  // Behind the page's last record.
  virtual void page(const reader::PageSummary& page) = 0;
  // Behind the job's last record.
  virtual void job(const reader::JobTotals& totals) = 0;
  // Nothing more comes.
  virtual void end() = 0;
};

// Why the stream ends at a BrokenOff; the record's other flaws come ahead of that one.
inline std::string brokenOffText(const reader::JobStep& job) {
  return job.step.flaws.empty() ? "the input cannot be read on" : job.step.flaws.back().text;
}

// Whether the page is known to be blank: all of it arrived and can be read, and none of it has ink.
inline bool isBlank(const reader::PageSummary& page) {
  return !page.inked && !page.brokenOff && page.lostBands == 0;
}

// Lines for people, and one JSON document whose schema docs/gdiview.md tells. `out` must outlive
// the report.
std::unique_ptr<InfoReport> textReport(std::ostream& out);
std::unique_ptr<InfoReport> jsonReport(std::ostream& out, const std::string& jobName);

struct InfoOptions {
  bool json = false;
  bool summary = false;               // no records, the summaries alone
  std::optional<std::uint32_t> page;  // this page alone, from 1: its records and its summary
  std::optional<std::uint64_t> prologueBytes;
};

// Answers kSound, kFaulty when there are violations in what was shown or ahead of it, or kUnusable.
// The report does not clear the progress line: both must not go to one terminal.
int infoJob(JobInput& input, const InfoOptions& options, Progress& progress, std::ostream& out,
            std::ostream& errors);

}  // namespace gdi::gdiview
