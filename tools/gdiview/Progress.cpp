// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/Progress.h"

#include <algorithm>
#include <utility>

namespace gdi::gdiview {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds kQuiet{1000};
constexpr milliseconds kPause{200};
constexpr std::uint64_t kMegabyte = 1000000;

std::string amount(std::uint64_t bytesRead, std::optional<std::uint64_t> totalBytes) {
  if (totalBytes.value_or(0) == 0) {
    return std::to_string(bytesRead / kMegabyte) + " MB";
  }
  const double percent = 100.0 * static_cast<double>(bytesRead) / static_cast<double>(*totalBytes);
  return std::to_string(static_cast<int>(std::min(percent, 100.0))) + " %";
}

}  // namespace

Progress::Progress(std::ostream& out, bool terminal, std::optional<std::uint64_t> totalBytes,
                   Clock clock)
    : out_(out),
      terminal_(terminal),
      totalBytes_(totalBytes),
      clock_(std::move(clock)),
      started_(clock_()) {
}

Progress::~Progress() {
  clear();
}

void Progress::update(std::uint32_t page, std::uint64_t bytesRead) {
  if (!terminal_) {
    return;
  }
  const Time now = clock_();
  if (now - started_ <= kQuiet || (shown_ && now - *shown_ < kPause)) {
    return;
  }
  shown_ = now;
  std::string line =
      "gdiview: page " + std::to_string(page) + ", " + amount(bytesRead, totalBytes_);
  const std::size_t length = line.size();
  line.resize(std::max(length, length_), ' ');
  length_ = length;
  out_ << '\r' << line << std::flush;
}

void Progress::clear() {
  if (length_ > 0) {
    out_ << '\r' << std::string(length_, ' ') << '\r' << std::flush;
    length_ = 0;
  }
}

}  // namespace gdi::gdiview
