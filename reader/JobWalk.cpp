// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/JobWalk.h"

#include <utility>

#include "reader/swallowed_record.h"

namespace gdi::reader {

namespace {

// The filler page completes a two-sided job of two pages or more.
constexpr std::uint32_t kFirstFillerPage = 3;

bool endsPage(const RecordStep& step) {
  return std::holds_alternative<JobRecord>(step.record) ||
         std::holds_alternative<PageRecord>(step.record) ||
         std::holds_alternative<EndOfJob>(step.record) ||
         std::holds_alternative<BrokenOff>(step.record);
}

const char* nameOf(const RecordStep& step) {
  struct Names {
    const char* operator()(const Prologue& /*record*/) const { return "prologue"; }
    const char* operator()(const JobRecord& /*record*/) const { return "job record"; }
    const char* operator()(const HostRecord& /*record*/) const { return "host record"; }
    const char* operator()(const PageRecord& /*record*/) const { return "page record"; }
    const char* operator()(const Band& /*record*/) const { return "band record"; }
    const char* operator()(const EndOfJob& /*record*/) const { return "end-of-job mark"; }
    const char* operator()(const Gap& /*record*/) const { return "no record"; }
    const char* operator()(const BrokenOff& /*record*/) const { return "end of the stream"; }
  };
  return std::visit(Names{}, step.record);
}

}  // namespace

JobWalk::JobWalk(std::istream& input, FindingSink tell, std::optional<std::uint64_t> prologueBytes)
    : records_(input, prologueBytes), sink_(std::move(tell)) {
}

std::optional<JobStep> JobWalk::next() {
  std::optional<RecordStep> step = records_.next();
  if (!step) {
    return std::nullopt;
  }
  JobStep job;
  job.step = std::move(*step);
  const auto* band = std::get_if<Band>(&job.step.record);
  if (band != nullptr && page_) {
    if (const auto bytes = swallowedRecord(*band, page_->summary().rowBits)) {
      records_.cutBand(job.step, *bytes);
    }
  }
  totals_.bytes = job.step.offset + job.step.bytes;
  totals_.compressedBytes += band != nullptr ? band->data.size() : 0;
  if (page_ && endsPage(job.step)) {
    endPage(job);
  }
  if (missesPageRecord(job) && page_) {
    endPage(job);
  }
  if (band != nullptr && page_) {
    addBand(*band, job);
  } else if (const auto* page = std::get_if<PageRecord>(&job.step.record)) {
    startPage(*page, job);
  } else {
    takeOther(job.step);
  }
  return job;
}

void JobWalk::addBand(const Band& band, JobStep& job) {
  const BandVerdict verdict = page_->addBand(band, job.step.offset, job.step.flaws);
  job.page = totals_.pages;
  job.place = verdict.place;
  job.sound = verdict.sound;
  job.rowBytes = page_->summary().rowBits / 8;
}

void JobWalk::takeOther(const RecordStep& step) {
  tellFlaws(step, nameOf(step));
  if (const auto* record = std::get_if<JobRecord>(&step.record)) {
    startJob(*record);
    if (totals_.job.empty()) {
      totals_.job = step.header;
    }
  } else if (std::holds_alternative<HostRecord>(step.record) && totals_.host.empty()) {
    totals_.host = step.header;
  } else if (std::holds_alternative<Gap>(step.record) && page_ && !step.flaws.empty()) {
    page_->addGap(step.bytes);
  } else if (std::holds_alternative<EndOfJob>(step.record) && std::exchange(pagesOfJob_, 0) == 0 &&
             step.flaws.empty()) {
    tell({step.offset, Rule::kNoPages, nameOf(step), "the job has no page"});
  }
}

void JobWalk::startJob(const JobRecord& record) {
  bitsPerPixel_.reset();
  if (isBitsPerPixel(record.bitsPerPixel)) {
    bitsPerPixel_ = record.bitsPerPixel;
  }
  pagesOfJob_ = 0;
  nextNumber_ = 0;
  numberUnknown_ = false;
  numberBehindWrongOne_.reset();
}

// What comes ahead of the first page or behind a page's last band, and is no record of the job, is
// of a page whose record is damaged or missing.
bool JobWalk::missesPageRecord(JobStep& job) {
  const bool damaged = std::holds_alternative<Gap>(job.step.record) && !job.step.flaws.empty() &&
                       (!page_ || page_->closed()) && job.step.bytes >= page_record::kLength;
  const bool missing =
      std::holds_alternative<Band>(job.step.record) && (!page_ || page_->complete());
  if (missing && page_) {
    job.step.flaws.insert(
        job.step.flaws.begin(),
        {0, Rule::kRecordOrder,
         "a band record (GDIB) follows a page's last band: no page record (GDIP)"});
  }
  numberUnknown_ = numberUnknown_ || damaged || missing;
  return damaged || missing;
}

// A stream that breaks off has told why its page is short. A page whose last band came is not.
void JobWalk::endPage(JobStep& job) {
  const bool brokenOff = std::holds_alternative<BrokenOff>(job.step.record) && !page_->closed();
  job.endedPage = page_->finish(brokenOff);
  page_.reset();
  if (std::exchange(numberLeftOut_, false) && !brokenOff) {
    checkFiller(*job.endedPage, !std::holds_alternative<PageRecord>(job.step.record));
  }
}

void JobWalk::startPage(const PageRecord& record, JobStep& job) {
  job.page = ++totals_.pages;
  ++pagesOfJob_;
  tellFlaws(job.step, ("page " + std::to_string(job.page)).c_str());
  checkNumber(record, job.step.offset);
  page_.emplace(record, job.page, job.step.offset, bitsPerPixel_,
                [this](const Finding& finding) { tell(finding); });
}

void JobWalk::checkNumber(const PageRecord& record, std::uint64_t offset) {
  const auto behindThatTold = std::exchange(numberBehindWrongOne_, std::nullopt);
  const bool unknown = std::exchange(numberUnknown_, false) || behindThatTold == record.number;
  const std::uint16_t expected = unknown ? record.number : nextNumber_;
  nextNumber_ = static_cast<std::uint16_t>(record.number + 1);
  numberLeftOut_ =
      pagesOfJob_ >= kFirstFillerPage && record.number == static_cast<std::uint16_t>(expected + 1);
  if (record.number != expected) {
    numberBehindWrongOne_ = static_cast<std::uint16_t>(expected + 1);
  }
  if (record.number != expected && !numberLeftOut_) {
    tell({offset + page_record::kPageNumberOffset, Rule::kPageNumber,
          "page " + std::to_string(totals_.pages),
          "the page's number is " + std::to_string(record.number) + ", not " +
              std::to_string(expected)});
  }
}

// docs/quirks.md, "The filler page's number"
void JobWalk::checkFiller(const PageSummary& page, bool last) {
  const bool mayBeBlank = page.flaggedBlank || !page.inked || page.stepsLeftOut;
  if (!last || !mayBeBlank) {
    tell({page.offset + page_record::kPageNumberOffset, Rule::kPageNumber,
          "page " + std::to_string(page.ordinal),
          "the page's number leaves one out, and it is no blank page at the job's end"});
  }
}

void JobWalk::tellFlaws(const RecordStep& step, const char* record) {
  for (const Flaw& flaw : step.flaws) {
    tell({step.offset + flaw.offset, flaw.rule, record, flaw.text});
  }
}

void JobWalk::tell(const Finding& finding) {
  ++(finding.remark() ? totals_.remarks : totals_.violations);
  sink_(finding);
}

}  // namespace gdi::reader
