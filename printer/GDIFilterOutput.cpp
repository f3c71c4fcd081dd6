// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <cerrno>
#include <cstdio>
#include <cstring>

#include <unistd.h>

#include "filter/log/debug_log.h"
#include "platform/NSBundle.h"
#include "printer/GDIFilter.h"

namespace gdi {

namespace {

constexpr useconds_t kReportInterval = 100000;  // microseconds

}  // namespace

// docs/quirks.md, "A blocked write outlasts a cancellation".
bool GDIFilter::sendData(std::span<const std::uint8_t> data) {
  return std::fwrite(data.data(), 1, data.size(), stdout) == data.size() || reportFailedWrite();
}

// A stream that was only accepted is not yet sent: a full disk shows here at the latest.
bool GDIFilter::flushData() {
  return std::fflush(stdout) == 0 || reportFailedWrite();
}

// The job waits to be cancelled: docs/quirks.md, "A failed write is never retried".
bool GDIFilter::reportFailedWrite() {
  CPSDebugAssert_("GDIFilter sendData: failed to write data: %s", std::strerror(errno));
  const std::string line =
      "ERROR: recoverable: " + NSBundle::mainBundle().localizedStringForKey(
                                   "DriverCommError", "Unable to communicate with printer");
  while (!cancelled()) {
    CPSDebugLog("%s", line.c_str());
    (void)std::fprintf(stderr, "%s\n", line.c_str());
    (void)usleep(kReportInterval);
  }
  return false;
}

}  // namespace gdi
