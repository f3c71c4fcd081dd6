// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "halftone/screens/FileState.h"

#include <utility>

namespace gdi {
namespace {

bool sameTime(const timespec& left, const timespec& right) {
  return left.tv_sec == right.tv_sec && left.tv_nsec == right.tv_nsec;
}

}  // namespace

FileState::FileState(std::filesystem::path path) : path_(std::move(path)) {
  known_ = stat(path_.c_str(), &status_) == 0 && status_.st_mtim.tv_sec + 1 < std::time(nullptr);
}

bool FileState::isUnchanged() const {
  struct stat now {};
  return known_ && stat(path_.c_str(), &now) == 0 && now.st_dev == status_.st_dev &&
         now.st_ino == status_.st_ino && now.st_size == status_.st_size &&
         sameTime(now.st_mtim, status_.st_mtim) && sameTime(now.st_ctim, status_.st_ctim);
}

}  // namespace gdi
