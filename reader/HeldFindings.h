// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Findings kept back until it is known whether each of them is a fault or all come from one.
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "reader/rules.h"

namespace gdi::reader {

class HeldFindings {
 public:
  explicit HeldFindings(FindingSink sink) : sink_(std::move(sink)) {}

  // Keeps a finding back; tells it when findings are no longer kept back.
  void add(Finding finding) {
    held_.push_back(std::move(finding));
    if (released_ || held_.size() > kMostHeld) {
      release();
    }
  }
  // Each is a fault: tells them, and from now on every one at once.
  void release() {
    released_ = true;
    for (const Finding& finding : std::exchange(held_, {})) {
      sink_(finding);
    }
  }
  // All come from one fault, which is told in their place.
  void replaceBy(const Finding& finding) {
    held_.clear();
    sink_(finding);
  }

  [[nodiscard]] std::size_t count() const { return held_.size(); }

 private:
  static constexpr std::size_t kMostHeld = 1024;

  FindingSink sink_;
  std::vector<Finding> held_;
  bool released_ = false;
};

}  // namespace gdi::reader
