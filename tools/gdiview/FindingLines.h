// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The violations found in a job while it is shown: the first few lines of them. Notes are left to
// gdiview check.
#pragma once

#include <ostream>
#include <string>

#include "reader/rules.h"
#include "tools/gdiview/escaped_text.h"

namespace gdi::gdiview {

class FindingLines {
 public:
  static constexpr unsigned kMostLines = 20;

  // out: must outlive this.
  FindingLines(std::ostream& out, const std::string& jobName)
      : out_(out), jobName_(nameInLine(jobName)) {}

  void tell(const reader::Finding& finding) {
    if (finding.remark()) {
      return;
    }
    if (told_ < kMostLines) {
      out_ << "gdiview: " << jobName_ << ": " << reader::lineOf(finding) << '\n';
    } else if (told_ == kMostLines) {
      out_ << "gdiview: " << jobName_ << ": there is more, which gdiview check tells\n";
    } else {
      return;
    }
    ++told_;
  }

 private:
  std::ostream& out_;
  std::string jobName_;
  unsigned told_ = 0;
};

}  // namespace gdi::gdiview
