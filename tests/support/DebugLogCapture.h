// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The debug log pointed at files of a test's own, and read back line by line.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "tests/support/TemporaryFolder.h"

namespace gdi::test {

class DebugLogCapture {
 public:
  enum class Marker { kPresent, kAbsent };

  // Closes the log and has it begin anew in an empty folder; with the marker absent it stays off.
  explicit DebugLogCapture(Marker marker = Marker::kPresent);
  // Closes the log and points it where it was before.
  ~DebugLogCapture();
  DebugLogCapture(const DebugLogCapture&) = delete;
  DebugLogCapture& operator=(const DebugLogCapture&) = delete;

  // Makes the marker that switches the log on.
  void makeMarker();
  [[nodiscard]] const std::filesystem::path& folder() const { return folder_.path(); }
  [[nodiscard]] const std::filesystem::path& logPath() const { return log_; }

  // Everything logged so far, as it stands.
  [[nodiscard]] std::string text() const;
  // The lines logged so far without their date, time and process id; the mark of an assertion
  // stays. A line that does not begin with this process's prefix is given whole.
  [[nodiscard]] std::vector<std::string> lines() const;
  // How often a line of exactly that text was logged.
  [[nodiscard]] std::size_t count(const std::string& line) const;
  // Empties the log, so that `lines` tells only what follows.
  void clear() const;

 private:
  TemporaryFolder folder_;
  std::filesystem::path marker_;
  std::filesystem::path log_;
  const char* formerMarkerPath_;
  const char* formerLogPath_;
};

}  // namespace gdi::test
