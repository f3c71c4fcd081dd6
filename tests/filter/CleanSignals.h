// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The signal flags at 0 for one test, and the process's handlers put back after it.
#pragma once

#include <csignal>

#include "filter/signals.h"

namespace gdi::test {

class CleanSignals {
 public:
  CleanSignals() {
    clearFlags();
    sigaction(SIGTERM, nullptr, &terminate_);
    sigaction(SIGPIPE, nullptr, &pipe_);
  }
  ~CleanSignals() {
    clearFlags();
    sigaction(SIGTERM, &terminate_, nullptr);
    sigaction(SIGPIPE, &pipe_, nullptr);
  }
  CleanSignals(const CleanSignals&) = delete;
  CleanSignals& operator=(const CleanSignals&) = delete;

 private:
  static void clearFlags() {
    gSigTerm = 0;
    gSigPipe = 0;
  }
  struct sigaction terminate_ {};
  struct sigaction pipe_ {};
};

}  // namespace gdi::test
