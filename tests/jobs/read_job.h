// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A whole job stream read at once, with all that was found in it.
#pragma once

#include <cstdint>
#include <istream>
#include <optional>
#include <string>
#include <vector>

#include "reader/JobReader.h"
#include "tests/jobs/job_builder.h"

namespace gdi::jobtest {

struct ReadJob {
  std::vector<reader::Page> pages;
  std::vector<reader::Finding> findings;
  reader::JobTotals totals;
  reader::Prologue prologue;
  std::uint64_t prologueBytes = 0;
  bool foundRecord = false;
  bool failed = false;

  // All findings as they are printed, each with a line feed, so that a failing test shows them.
  [[nodiscard]] std::string told() const;
  // Their rules' names in the order in which they were told, with blanks between them.
  [[nodiscard]] std::string rules() const;
};

ReadJob readJob(std::istream& input, std::optional<std::uint64_t> prologueBytes = {});
ReadJob readJob(const Bytes& bytes, std::optional<std::uint64_t> prologueBytes = {});
ReadJob readJob(const JobBuilder& job);

// The rows of all bands of a plane one after the other.
Bytes rowsOf(const reader::StoredPlane& plane);

}  // namespace gdi::jobtest
