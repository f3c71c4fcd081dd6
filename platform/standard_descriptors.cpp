// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/standard_descriptors.h"

#include <fcntl.h>
#include <unistd.h>

namespace gdi {

void fillStandardDescriptors() {
  // The lowest free descriptor is taken, which is the closed one, for those below are open.
  for (int descriptor = STDIN_FILENO; descriptor <= STDERR_FILENO; ++descriptor) {
    if (fcntl(descriptor, F_GETFD) == -1) {
      // A descriptor for reading only makes each write to it fail.
      (void)open("/dev/null", descriptor == STDERR_FILENO ? O_WRONLY : O_RDONLY);
    }
  }
}

}  // namespace gdi
