// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The process entry: one print job from the spooler's arguments to an exit status of 0 or 1.

#include "filter/log/debug_log.h"
#include "platform/standard_descriptors.h"
#include "printer/GDIFilter.h"

int main(int argc, const char** argv) {
  gdi::fillStandardDescriptors();
  gdi::DebugStart();
  gdi::CPSDebugLog("rasterToGDI starting");
  int status = 1;
  {
    gdi::GDIFilter filter;
    if (filter.initWithArgc(argc, argv) && filter.run()) {
      status = 0;
    }
  }
  gdi::CPSDebugLog("rasterToGDI ending with result %d", status);
  gdi::DebugEnd();
  return status;
}
