// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// How two jobs differ, A and B, as lines: one a difference, or one for all of a kind on a page.
#pragma once

#include <cstdint>
#include <functional>
#include <ostream>
#include <span>
#include <string>
#include <vector>

#include "reader/JobReader.h"
#include "tools/gdiview/page_difference.h"

namespace gdi::gdiview {

// The name under which a difference of the prologues is ignored.
inline constexpr const char* kPrologueName = "prologue";

// What is neither of a job's prologue nor of a page.
struct OtherBytes {
  std::uint64_t count = 0;
  std::uint32_t pages = 0;    // of the job
  reader::Checksum checksum;  // of OtherSteps, but for what frames() compares
};

class DifferenceLines {
 public:
  // ignored: names of fields that are not told. out: must outlive this. beforeLine: called ahead of
  // each line.
  DifferenceLines(std::vector<std::string> ignored, std::ostream& out,
                  std::function<void()> beforeLine)
      : ignored_(std::move(ignored)), out_(out), beforeLine_(std::move(beforeLine)) {}

  void prologues(const reader::JobReader& a, const reader::JobReader& b);
  // The first job record of each job and its first host record, as far as they have been read.
  void frames(const reader::JobReader& a, const reader::JobReader& b);
  // The page records and the band records of two pages.
  void headers(const reader::Page& a, const reader::Page& b);
  // What the bands of two pages hold; difference: as differenceOf() tells it.
  void bands(const reader::Page& a, const reader::Page& b, const PageDifference& difference);
  // job: "A" or "B"
  void onlyIn(const char* job, const reader::Page& page);
  // Of both jobs at their end.
  void otherBytes(const OtherBytes& a, const OtherBytes& b);

  // There was something to tell.
  [[nodiscard]] bool found() const { return found_; }

 private:
  [[nodiscard]] bool isIgnored(const std::string& name) const;
  // A record that a job may lack: it is empty then.
  void record(const std::string& record, reader::RecordKind kind, std::span<const std::uint8_t> a,
              std::span<const std::uint8_t> b);
  void strayBytes(const reader::Page& a, const reader::Page& b);
  void plane(const std::string& plane, const PlaneDifference& difference);
  void line(const std::string& where, const std::string& what);

  std::vector<std::string> ignored_;
  std::ostream& out_;
  std::function<void()> beforeLine_;
  bool found_ = false;
};

}  // namespace gdi::gdiview
