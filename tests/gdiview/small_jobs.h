// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Job streams of a few pixels for the tests of gdiview's commands.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>

#include "tests/jobs/job_builder.h"

namespace gdi::gdiview {

// 96 pixels of a row, the first eight of which are `first`, and 32 bits of padding.
inline jobtest::Bytes rowOf(std::uint8_t first, std::uint8_t others = 0) {
  jobtest::Bytes row(16, others);
  row[0] = first;
  std::fill(row.end() - 4, row.end(), std::uint8_t{0});
  return row;
}

// Where the parts of twoPages() begin.
inline constexpr std::size_t kHostOffset = 120;
inline constexpr std::size_t kPage1Offset = 272;
inline constexpr std::size_t kBand1Offset = 336;
inline constexpr std::size_t kPage2Offset = 432;  // behind a band of 64 bytes
inline constexpr std::size_t kBand2Offset = 496;
inline constexpr std::size_t kEndOffset = 752;  // behind four bands of 32 bytes

// A black page of 96 x 2 pixels and a colour page of 96 x 1, of 1 bit each, without any fault. The
// rows of the first begin with `first`; the second page's cyan row is solid.
inline jobtest::JobBuilder twoPages(const std::string& name = "Report", std::uint8_t first = 0x0F) {
  using reader::Ink;
  jobtest::JobBuilder job;
  job.jobRecord(1, name).hostRecord();
  job.pageRecord({.rows = 2, .heightMicrometres = 85});
  job.band(Ink::kBlack, jobtest::kFirst | jobtest::kLast, {rowOf(first), rowOf(0xFF, 0xFF)});
  job.pageRecord({.rows = 1, .channels = 4, .number = 1, .heightMicrometres = 42});
  job.band(Ink::kBlack, jobtest::kFirst, {rowOf(0)});
  job.band(Ink::kCyan, jobtest::kFirst, {rowOf(0xFF, 0xFF)});
  job.band(Ink::kMagenta, jobtest::kFirst, {rowOf(0)});
  job.band(Ink::kYellow, jobtest::kFirst | jobtest::kLast, {rowOf(0)});
  return job.end();
}

}  // namespace gdi::gdiview
