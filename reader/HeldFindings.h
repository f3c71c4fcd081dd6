// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Findings kept back until it is known whether each of them is a fault or all come from one.
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "reader/rules.h"

namespace gdi::reader {

class HeldFindings {
 public:
  explicit HeldFindings(FindingSink sink) : sink_(std::move(sink)) {}

  // Keeps a finding back, or tells it once findings have been told. Of many more than a sound page
  // has bands only the first are kept, and the others are counted.
  void add(Finding finding) {
    ++count_;
    if (released_) {
      sink_(finding);
    } else if (held_.size() < kMostHeld) {
      held_.push_back(std::move(finding));
    }
  }
  // Each is a fault: tells them, and from now on every one at once.
  void release() {
    released_ = true;
    const std::uint64_t more = count_ - held_.size();
    if (!held_.empty() && more > 0) {
      held_.back().text.append(", and ").append(std::to_string(more)).append(" bands more like it");
    }
    for (const Finding& finding : std::exchange(held_, {})) {
      sink_(finding);
    }
  }
  // All come from another fault, which is told.
  void drop() {
    released_ = true;
    held_.clear();
  }

  // Added so far.
  [[nodiscard]] std::uint64_t count() const { return count_; }

 private:
  static constexpr std::size_t kMostHeld = 1024;

  FindingSink sink_;
  std::vector<Finding> held_;
  std::uint64_t count_ = 0;
  bool released_ = false;
};

}  // namespace gdi::reader
