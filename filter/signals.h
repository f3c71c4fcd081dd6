// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The two signals of a print job, turned into flags that are never cleared.
#pragma once

#include <csignal>

namespace gdi {

// What a signal handler may write by the language's rules.
extern volatile std::sig_atomic_t gSigTerm;  // 1 after SIGTERM: the job was cancelled
extern volatile std::sig_atomic_t gSigPipe;  // 1 after SIGPIPE: the output pipe is broken

// Sets the flag of SIGTERM or SIGPIPE; does nothing else.
extern "C" void signalHandler(int signal);

// Installs signalHandler for SIGTERM, then for SIGPIPE. A failure is told on standard error and
// changes nothing else.
void installSignalHandlers();

}  // namespace gdi
