// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/DebugLogCapture.h"

#include <algorithm>
#include <sstream>
#include <string_view>
#include <system_error>

#include <unistd.h>

#include "filter/log/debug_log.h"

namespace gdi::test {

DebugLogCapture::DebugLogCapture(Marker marker)
    : marker_(folder_.path() / "marker"),
      log_(folder_.path() / "log"),
      formerMarkerPath_(gDebugMarkerPath),
      formerLogPath_(gDebugLogPath) {
  DebugEnd();
  gDebugFile = nullptr;
  gDebugMarkerPath = marker_.c_str();
  gDebugLogPath = log_.c_str();
  if (marker == Marker::kPresent) {
    makeMarker();
  }
}

DebugLogCapture::~DebugLogCapture() {
  DebugEnd();
  gDebugFile = nullptr;  // a log on standard error is not closed by DebugEnd
  gDebugMarkerPath = formerMarkerPath_;
  gDebugLogPath = formerLogPath_;
}

void DebugLogCapture::makeMarker() {
  folder_.write("marker", "");
}

std::string DebugLogCapture::text() const {
  return contentsOf(log_);
}

std::vector<std::string> DebugLogCapture::lines() const {
  const std::string prefixEnd = " (" + std::to_string(getpid()) + ") ";
  const std::size_t timeLength = std::string_view("MM/DD/YYYY hh:mm:ss.uuuu").size();
  std::vector<std::string> lines;
  std::istringstream text(this->text());
  for (std::string line; std::getline(text, line);) {
    const std::size_t end = line.find(prefixEnd);
    const bool prefixed = end >= timeLength && end <= timeLength + 2;
    lines.push_back(prefixed ? line.substr(end + prefixEnd.size()) : line);
  }
  return lines;
}

std::size_t DebugLogCapture::count(const std::string& line) const {
  return static_cast<std::size_t>(std::ranges::count(lines(), line));
}

void DebugLogCapture::clear() const {
  std::error_code noLogYet;
  std::filesystem::resize_file(log_, 0, noLogYet);
}

}  // namespace gdi::test
