// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A job of one page, and what info prints of jobs.
#pragma once

#include <istream>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "tests/gdiview/small_jobs.h"
#include "tests/jobs/sound_page.h"
#include "tools/gdiview/info_job.h"

namespace gdi::gdiview {

inline constexpr char kPrologue[] = "\x1b%P\"\r\n";
inline constexpr std::size_t kPrologueBytes = 6;
inline constexpr std::size_t kBandOffset = 342;  // 6 + 120 + 152 + 64

// One black page of 96 x 2 pixels whose band has 64 bytes: 442 bytes in all.
inline jobtest::JobBuilder onePage() {
  jobtest::JobBuilder job;
  job.text(kPrologue).jobRecord(1).hostRecord();
  return jobtest::addPage(job, {}).end();
}

class InfoJob : public testing::Test {
 protected:
  InfoJob() { options_.prologueBytes = kPrologueBytes; }

  int run(std::istream& stream) {
    JobInput input(stream, "JOB");
    return infoJob(input, options_, progress_, out_, errors_);
  }
  int run(const jobtest::JobBuilder& job) {
    std::istringstream stream = job.stream();
    return run(stream);
  }

  InfoOptions options_;
  std::ostringstream out_;
  std::ostringstream errors_;
  Progress progress_{errors_, false};
};

}  // namespace gdi::gdiview
