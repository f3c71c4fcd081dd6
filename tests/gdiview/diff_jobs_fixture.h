// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Two small jobs compared, and what diff prints of them.
#pragma once

#include <cstddef>
#include <istream>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "tests/gdiview/small_jobs.h"
#include "tests/support/TemporaryFolder.h"
#include "tools/gdiview/diff_jobs.h"

namespace gdi::gdiview {

class DiffJobs : public testing::Test {
 protected:
  int run(std::istream& a, std::istream& b) {
    JobInput inputA(a, "ONE");
    JobInput inputB(b, "TWO");
    return diffJobs(inputA, inputB, options_, progress_, lines_, errors_);
  }
  int run(const jobtest::JobBuilder& a, const jobtest::JobBuilder& b) {
    std::istringstream streamA = a.stream();
    std::istringstream streamB = b.stream();
    return run(streamA, streamB);
  }
  // The lines for two jobs that differ.
  std::string told(const jobtest::JobBuilder& a, const jobtest::JobBuilder& b) {
    lines_.str("");
    EXPECT_EQ(run(a, b), kFaulty);
    return lines_.str();
  }
  // The lines for twoPages() and the same with other bytes in one field.
  std::string toldOf(std::size_t record, std::size_t field, const jobtest::Bytes& bytes) {
    return told(twoPages(), twoPages().patch(record, field, bytes));
  }

  test::TemporaryFolder scratch_;
  DiffOptions options_;
  std::ostringstream lines_;
  std::ostringstream errors_;
  Progress progress_{errors_, false};
};

// One black page whose pixels have so many bits.
inline jobtest::JobBuilder blackPage(unsigned bitsPerPixel, const jobtest::Rows& rows) {
  jobtest::JobBuilder job;
  job.jobRecord(bitsPerPixel).hostRecord();
  job.pageRecord({.rows = static_cast<std::uint32_t>(rows.size())});
  job.band(reader::Ink::kBlack, jobtest::kFirst | jobtest::kLast, rows);
  return job.end();
}

// Where the data of the first band of twoPages() begin.
inline constexpr std::size_t kData1Offset = kBand1Offset + 32;

}  // namespace gdi::gdiview
