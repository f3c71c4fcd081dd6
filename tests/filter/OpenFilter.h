// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A filter whose fields a test may read, and the arguments that the spooler would give it.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "filter/CUPSFilter.h"

namespace gdi::test {

class OpenFilter : public CUPSFilter {
 public:
  using CUPSFilter::collate;
  using CUPSFilter::copies;
  using CUPSFilter::cupsICCProfile;
  using CUPSFilter::duplex;
  using CUPSFilter::jobName;
  using CUPSFilter::longEdge;
  using CUPSFilter::needsPPD;
  using CUPSFilter::optionsDict;
  using CUPSFilter::ppd;
  using CUPSFilter::printerName;
  using CUPSFilter::shortEdge;
  using CUPSFilter::sidesImaged;
  using CUPSFilter::sourceFD;
  using CUPSFilter::uri;
};

// The argument vector of one job. It must outlive the filter that is given it.
class Arguments {
 public:
  explicit Arguments(std::vector<std::string> texts) : texts_(std::move(texts)) {
    for (const std::string& text : texts_) {
      pointers_.push_back(text.c_str());
    }
    pointers_.push_back(nullptr);
  }
  Arguments(const Arguments&) = delete;
  Arguments& operator=(const Arguments&) = delete;

  // The six arguments of a job read from standard input.
  static std::vector<std::string> job(const std::string& queue, const std::string& options) {
    return {queue, "17", "user", "title", "1", options};
  }

  [[nodiscard]] int count() const { return static_cast<int>(texts_.size()); }
  [[nodiscard]] const char** vector() { return pointers_.data(); }

 private:
  std::vector<std::string> texts_;
  std::vector<const char*> pointers_;
};

}  // namespace gdi::test
