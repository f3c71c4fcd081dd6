// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Prints the folder of its own main bundle; the tests run copies of it in several places.

#include <cstdio>

#include "platform/NSBundle.h"

int main() {
  return std::puts(gdi::NSBundle::mainBundle().resourcePath().c_str()) < 0 ? 1 : 0;
}
