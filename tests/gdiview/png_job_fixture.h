// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Small jobs made into pictures in a folder of the test's own.
#pragma once

#include <istream>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "tests/gdiview/png_reader.h"
#include "tests/gdiview/small_jobs.h"
#include "tests/support/TemporaryFolder.h"
#include "tools/gdiview/png_job.h"

namespace gdi::gdiview {

class PngJob : public testing::Test {
 protected:
  PngJob() { options_.folder = scratch_.path() / "pictures"; }

  int run(std::istream& stream, std::ostream& out) {
    JobInput input(stream, "JOB");
    return pngJob(input, options_, progress_, out, errors_);
  }
  int run(const jobtest::JobBuilder& job) {
    std::istringstream stream = job.stream();
    return run(stream, lines_);
  }
  [[nodiscard]] std::string pathOf(const std::string& name) const {
    return (options_.folder / (name + ".png")).string();
  }
  [[nodiscard]] PngPicture picture(const std::string& name) const { return readPng(pathOf(name)); }

  test::TemporaryFolder scratch_;
  PngOptions options_;
  std::ostringstream lines_;
  std::ostringstream errors_;
  Progress progress_{errors_, false};
};

}  // namespace gdi::gdiview
