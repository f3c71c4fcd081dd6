// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The walk through a whole job: each record in its place, held against the format as it comes.
// Occupies the memory of one record or, where a band's length lies, of what is searched for its
// end: at most a few times the longest band, whatever the stream's length.
#pragma once

#include <cstdint>
#include <istream>
#include <optional>
#include <string>

#include "reader/Page.h"
#include "reader/PageAudit.h"
#include "reader/RecordReader.h"
#include "reader/rules.h"

namespace gdi::reader {

struct JobStep {
  RecordStep step;
  // The page that this record brought to its end: it is over before this record begins.
  std::optional<PageSummary> endedPage;
  std::uint32_t page = 0;          // of a page record or a band: which page of the job, from 1
  std::optional<BandPlace> place;  // of a band that has a place on its page
  bool sound = false;              // of a band: its rows can be decoded
  std::uint32_t rowBytes = 0;      // of a band, as far as it can be told
};

struct JobTotals {
  std::uint32_t pages = 0;
  std::uint64_t bytes = 0;            // of the stream
  std::uint64_t compressedBytes = 0;  // of all bands
  std::uint64_t violations = 0;
  std::uint64_t remarks = 0;
  std::vector<std::uint8_t> job;   // the first job record, if there is one
  std::vector<std::uint8_t> host;  // the first host record, if there is one
};

class JobWalk {
 public:
  // `input` stays the caller's and must outlive the walk. tell: takes what is found, page by page
  // and ahead of the step in which it is found. prologueBytes: as RecordReader takes them.
  JobWalk(std::istream& input, FindingSink tell, std::optional<std::uint64_t> prologueBytes = {});
  JobWalk(const JobWalk&) = delete;
  JobWalk& operator=(const JobWalk&) = delete;

  std::optional<JobStep> next();

  [[nodiscard]] const JobTotals& totals() const { return totals_; }
  [[nodiscard]] bool foundRecord() const { return records_.foundRecord(); }
  [[nodiscard]] bool failed() const { return records_.failed(); }
  [[nodiscard]] std::uint64_t offset() const { return records_.offset(); }

 private:
  bool missesPageRecord(JobStep& job);
  void addBand(const Band& band, JobStep& job);
  void takeOther(const RecordStep& step);
  void startJob(const JobRecord& record);
  void endPage(JobStep& job);
  void startPage(const PageRecord& record, JobStep& job);
  void checkNumber(const PageRecord& record, std::uint64_t offset);
  // The page that left a number out is over: `last` says whether it is the job's last one.
  void checkFiller(const PageSummary& page, bool last);
  void tellFlaws(const RecordStep& step, const char* record);
  void tell(const Finding& finding);

  RecordReader records_;
  FindingSink sink_;
  JobTotals totals_;
  std::optional<unsigned> bitsPerPixel_;
  std::optional<PageAudit> page_;
  std::uint32_t pagesOfJob_ = 0;  // totals_ may count those of several jobs
  std::uint16_t nextNumber_ = 0;
  bool numberUnknown_ = false;  // of the next page: the record of one ahead of it is not there
  // What the next page's number may be if that of the page before was wrong.
  std::optional<std::uint16_t> numberBehindWrongOne_;
  bool numberLeftOut_ = false;  // by the page that is under way
};

}  // namespace gdi::reader
