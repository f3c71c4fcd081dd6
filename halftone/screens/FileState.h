// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Whether a file is still the one that was read.
#pragma once

#include <ctime>
#include <filesystem>

#include <sys/stat.h>

namespace gdi {

class FileState {
 public:
  // The state of the file now; to be taken before it is read.
  explicit FileState(std::filesystem::path path);

  // Whether the file is the same, untouched. False when that cannot be told: for a file that was
  // not there, or one that was written less than a second or two before its state was taken, since
  // it might be written again at the same time of a coarse clock.
  [[nodiscard]] bool isUnchanged() const;

 private:
  std::filesystem::path path_;
  bool known_ = false;
  struct stat status_ {};
};

}  // namespace gdi
