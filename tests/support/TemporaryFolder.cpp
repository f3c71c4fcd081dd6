// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/TemporaryFolder.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <system_error>

#include <unistd.h>

namespace gdi::test {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() {
  // Asked once: a print queue moves the place of temporary files, and means libcups's alone.
  static const fs::path place = fs::temp_directory_path();
  std::string pattern = (place / "gdi-test-XXXXXX").native();
  if (mkdtemp(pattern.data()) == nullptr) {
    std::perror("cannot make a temporary folder");
    std::abort();
  }
  path_ = pattern;
  maker_ = getpid();
}

TemporaryFolder::~TemporaryFolder() {
  if (maker_ == getpid()) {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }
}

fs::path TemporaryFolder::write(std::string_view name, std::string_view contents) {
  fs::path file = path_ / name;
  fs::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << contents;
  return file;
}

fs::path TemporaryFolder::makeFolder(std::string_view name) {
  fs::path folder = path_ / name;
  fs::create_directories(folder);
  return folder;
}

std::vector<std::string> TemporaryFolder::entries() const {
  std::vector<std::string> names;
  for (const fs::directory_entry& entry : fs::directory_iterator(path_)) {
    names.push_back(entry.path().filename());
  }
  std::ranges::sort(names);
  return names;
}

std::string contentsOf(const fs::path& file) {
  const std::ifstream stream(file, std::ios::binary);
  std::ostringstream text;
  if (stream.is_open()) {
    text << stream.rdbuf();
  }
  return text.str();
}

}  // namespace gdi::test
