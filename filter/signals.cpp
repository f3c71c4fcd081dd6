// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "filter/signals.h"

#include <cstdio>

namespace gdi {

volatile std::sig_atomic_t gSigTerm = 0;
volatile std::sig_atomic_t gSigPipe = 0;

extern "C" void signalHandler(int signal) {
  if (signal == SIGPIPE) {
    gSigPipe = 1;
  } else if (signal == SIGTERM) {
    gSigTerm = 1;
  }
}

namespace {

void handlerWithDetails(int signal, siginfo_t* /*details*/, void* /*context*/) {
  signalHandler(signal);
}

void installHandler(int signal, const char* failure) {
  struct sigaction action {};
  action.sa_sigaction = handlerWithDetails;
  sigemptyset(&action.sa_mask);
  action.sa_flags = SA_RESTART | SA_SIGINFO;
  if (sigaction(signal, &action, nullptr) != 0) {
    std::perror(failure);
  }
}

}  // namespace

void installSignalHandlers() {
  installHandler(SIGTERM, "DEBUG: Failed to set SIGTERM handler");
  installHandler(SIGPIPE, "DEBUG: Failed to set SIGPIPE handler");
}

}  // namespace gdi
