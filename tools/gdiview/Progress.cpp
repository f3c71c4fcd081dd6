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

// 100 % would be read as the end: the line is gone by then.
constexpr int kMostPercent = 99;

std::string amount(std::uint64_t bytesDone, std::optional<std::uint64_t> totalBytes) {
  if (totalBytes.value_or(0) == 0) {
    return std::to_string(bytesDone / kMegabyte) + " MB";
  }
  const double percent = 100.0 * static_cast<double>(bytesDone) / static_cast<double>(*totalBytes);
  return std::to_string(static_cast<int>(std::min<double>(percent, kMostPercent))) + " %";
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
  page_ = page;
  bytesDone_ = bytesRead_;
  bytesRead_ = bytesRead;
  show(bytesDone_);
}

void Progress::work(std::uint64_t done, std::uint64_t all) {
  const double share = static_cast<double>(done) / static_cast<double>(all);
  const auto bytes = static_cast<double>(bytesRead_ - bytesDone_);
  show(bytesDone_ + static_cast<std::uint64_t>(share * bytes));
}

void Progress::show(std::uint64_t bytesDone) {
  if (!terminal_) {
    return;
  }
  const Time now = clock_();
  if (now - started_ <= kQuiet || (shown_ && now - *shown_ < kPause)) {
    return;
  }
  shown_ = now;
  std::string line = "gdiview: ";
  if (page_ != 0) {
    line.append("page ").append(std::to_string(page_)).append(", ");
  }
  line.append(amount(bytesDone, totalBytes_));
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
