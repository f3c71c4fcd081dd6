// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A folder that exists as long as this object does, for the files of one test.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include <sys/types.h>

namespace gdi::test {

class TemporaryFolder {
 public:
  // Makes an empty folder below the system's temporary folder; the process ends when it cannot.
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }

  // Writes a file, its folders made as needed. `name` is relative to the folder.
  std::filesystem::path write(std::string_view name, std::string_view contents);
  // Makes an empty subfolder.
  std::filesystem::path makeFolder(std::string_view name);
  // The names of what lies directly in the folder, sorted; links that lead nowhere included.
  [[nodiscard]] std::vector<std::string> entries() const;

 private:
  std::filesystem::path path_;
  pid_t maker_ = 0;  // a forked child leaves the folder alone
};

// The whole file; empty when there is none.
std::string contentsOf(const std::filesystem::path& file);

}  // namespace gdi::test
