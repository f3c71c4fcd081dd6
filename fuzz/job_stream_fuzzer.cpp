// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Any bytes as a job stream: walked, read page by page, judged, painted, told and compared with
// themselves. Every byte is part of one step, and whoever reads the stream finds the same in it.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "reader/JobReader.h"
#include "tools/gdiview/PagePainter.h"
#include "tools/gdiview/diff_jobs.h"
#include "tools/gdiview/info_job.h"

namespace {

using gdi::gdiview::JobInput;
using gdi::reader::Finding;
using gdi::reader::JobTotals;
using gdi::reader::PageSummary;

void expect(bool holds, const char* what) {
  if (!holds) {
    std::cerr << "not so: " << what << '\n';
    std::abort();
  }
}

struct Walked {
  std::vector<PageSummary> pages;
  JobTotals totals;
  bool readable = false;
};

Walked walk(const std::string& bytes) {
  std::istringstream input(bytes);
  std::uint64_t violations = 0;
  std::uint64_t remarks = 0;
  gdi::reader::JobWalk job(input, [&](const Finding& finding) {
    expect(finding.offset <= bytes.size(), "a finding lies within the input");
    expect(!finding.text.empty() && lineOf(finding).find('\n') == std::string::npos,
           "a finding is told in one line");
    ++(finding.remark() ? remarks : violations);
  });
  Walked walked;
  std::uint64_t seen = 0;
  while (const auto step = job.next()) {
    expect(step->step.offset == seen, "a step begins where the last one ended");
    seen += step->step.bytes;
    if (step->endedPage) {
      walked.pages.push_back(*step->endedPage);
    }
  }
  expect(seen == bytes.size(), "the steps end with the input");
  walked.totals = job.totals();
  walked.readable = job.foundRecord();
  expect(walked.totals.bytes == bytes.size(), "the totals count every byte");
  expect(walked.totals.pages == walked.pages.size(), "every page comes to its end");
  expect(walked.totals.violations == violations && walked.totals.remarks == remarks,
         "every finding is counted");
  return walked;
}

void paint(const gdi::reader::Page& page, bool upright) {
  if (page.rows() == 0 || page.widthPixels() == 0) {
    return;
  }
  gdi::gdiview::PagePainter painter(page, {.reduction = 64, .upright = upright});
  for (std::uint32_t row = 0; row < painter.height(); ++row) {
    expect(!painter.nextRow().empty(), "a picture has all its rows");
  }
}

void readPages(const std::string& bytes, const Walked& walked) {
  std::istringstream input(bytes);
  gdi::reader::JobReader reader(input, [](const Finding&) {});
  std::size_t pages = 0;
  std::uint64_t compressed = 0;
  while (const auto page = reader.nextPage()) {
    expect(pages < walked.pages.size(), "no page is read that was not walked over");
    const PageSummary& summary = walked.pages[pages++];
    expect(page->ordinal == pages && summary.ordinal == pages, "pages count from 1");
    expect(page->offset == summary.offset && page->bandCount == summary.bandCount &&
               page->lostBands == summary.lostBands && page->inked == summary.inked &&
               page->rowBits == summary.rowBits && page->brokenOff == summary.brokenOff &&
               page->compressedBytes == summary.compressedBytes,
           "a page is read as it was walked over");
    expect(page->bandRecords.size() == page->bandCount, "every band record is kept");
    compressed += page->compressedBytes;
    paint(*page, bytes.size() % 2 != 0);
  }
  const JobTotals& totals = reader.totals();
  expect(pages == walked.pages.size(), "every page is read");
  expect(totals.violations == walked.totals.violations && totals.remarks == walked.totals.remarks &&
             totals.bytes == walked.totals.bytes &&
             totals.compressedBytes == walked.totals.compressedBytes,
         "the totals of the pages are those of the walk");
  expect(compressed <= totals.compressedBytes, "pages have no more bytes than all bands");
}

void compare(const std::string& bytes, bool readable) {
  std::istringstream a(bytes);
  std::istringstream b(bytes);
  std::ostringstream out;
  std::ostringstream errors;
  JobInput jobA(a, "A");
  JobInput jobB(b, "B");
  gdi::gdiview::Progress progress(errors, false);
  const int status = gdi::gdiview::diffJobs(jobA, jobB, {}, progress, out, errors);
  expect(status == (readable ? gdi::gdiview::kSound : gdi::gdiview::kUnusable),
         "a job is the same as itself");
  expect(out.str().empty(), "no difference is told of a job and itself");
}

void tell(const std::string& bytes, const Walked& walked) {
  std::istringstream stream(bytes);
  std::ostringstream out;
  std::ostringstream errors;
  JobInput job(stream, "JOB");
  gdi::gdiview::InfoOptions options;
  options.json = true;
  gdi::gdiview::Progress progress(errors, false);
  const int status = gdi::gdiview::infoJob(job, options, progress, out, errors);
  const int faulty = walked.totals.violations > 0 ? gdi::gdiview::kFaulty : gdi::gdiview::kSound;
  expect(status == (walked.readable ? faulty : gdi::gdiview::kUnusable),
         "violations and nothing else make a job faulty");
  if (walked.readable) {
    const auto document = nlohmann::json::parse(out.str(), nullptr, false);
    expect(!document.is_discarded(), "what is told is JSON");
    expect(document["job"]["pages"] == walked.totals.pages, "every page is told");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(data, data + size);
  const Walked walked = walk(bytes);
  readPages(bytes, walked);
  compare(bytes, walked.readable);
  tell(bytes, walked);
  return 0;
}
