// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/PrintQueue.h"

#include <filesystem>
#include <system_error>
#include <utility>

namespace gdi::test {

namespace {

// The folder of libcups for the whole process, and the two variables that lead it there.
TemporaryFolder& serverRoot() {
  static TemporaryFolder folder;
  static const EnvironmentVariable root("CUPS_SERVERROOT", folder.path().native());
  static const EnvironmentVariable server("CUPS_SERVER", "localhost");
  return folder;
}

}  // namespace

std::string smallPPD(const std::string& lines) {
  return "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n" + lines;
}

PrintQueue::PrintQueue(std::string name, const std::optional<std::string>& ppd)
    : name_(std::move(name)),
      ppdPath_("ppd/" + name_ + ".ppd"),
      root_(serverRoot()),
      temporaryVariable_("TMPDIR", temporary_.path().native()) {
  if (ppd) {
    root_.write(ppdPath_, *ppd);
  }
}

PrintQueue::~PrintQueue() {
  std::error_code ignored;
  std::filesystem::remove(root_.path() / ppdPath_, ignored);
}

}  // namespace gdi::test
