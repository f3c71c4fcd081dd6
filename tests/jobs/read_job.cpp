// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/jobs/read_job.h"

#include <utility>

namespace gdi::jobtest {

std::string ReadJob::told() const {
  std::string text;
  for (const reader::Finding& finding : findings) {
    text.append(reader::lineOf(finding)).append("\n");
  }
  return text;
}

std::string ReadJob::rules() const {
  std::string text;
  for (const reader::Finding& finding : findings) {
    text.append(text.empty() ? "" : " ").append(reader::textOf(finding.rule).name);
  }
  return text;
}

ReadJob readJob(std::istream& input, std::optional<std::uint64_t> prologueBytes) {
  ReadJob job;
  reader::JobReader reader(
      input, [&job](const reader::Finding& finding) { job.findings.push_back(finding); },
      prologueBytes);
  while (std::optional<reader::Page> page = reader.nextPage()) {
    job.pages.push_back(std::move(*page));
  }
  job.totals = reader.totals();
  job.prologue = reader.prologue();
  job.prologueBytes = reader.prologueBytes();
  job.foundRecord = reader.walk().foundRecord();
  job.failed = reader.walk().failed();
  return job;
}

ReadJob readJob(const Bytes& bytes, std::optional<std::uint64_t> prologueBytes) {
  std::istringstream input = streamOf(bytes);
  return readJob(input, prologueBytes);
}

ReadJob readJob(const JobBuilder& job) {
  return readJob(job.bytes());
}

Bytes rowsOf(const reader::StoredPlane& plane) {
  Bytes rows;
  for (std::size_t band = 0; band < plane.bands().size(); ++band) {
    const Bytes decoded = plane.rowsOfBand(band);
    rows.insert(rows.end(), decoded.begin(), decoded.end());
  }
  return rows;
}

}  // namespace gdi::jobtest
