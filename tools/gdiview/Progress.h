// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A line on the terminal that tells a waiting person how far a job has been read.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <ostream>
#include <string>

namespace gdi::gdiview {

class Progress {
 public:
  using Time = std::chrono::steady_clock::time_point;
  using Clock = std::function<Time()>;

  // out: where the line goes, if it is a terminal; nothing is ever written otherwise. It must
  // outlive this. totalBytes: of the input, when it is known.
  Progress(std::ostream& out, bool terminal, std::optional<std::uint64_t> totalBytes = std::nullopt,
           Clock clock = std::chrono::steady_clock::now);
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  Progress(Progress&&) = delete;
  Progress& operator=(Progress&&) = delete;

  // Shows the page, counted from 1, and the bytes read so far; only when more than a second has
  // passed since the beginning, and not sooner than a fifth of a second after the last time.
  void update(std::uint32_t page, std::uint64_t bytesRead);
  // Wipes the line, and leaves the terminal's cursor at its beginning; to be called before anything
  // else is written to the terminal.
  void clear();

 private:
  std::ostream& out_;
  bool terminal_;
  std::optional<std::uint64_t> totalBytes_;
  Clock clock_;
  Time started_;
  std::optional<Time> shown_;  // last time
  std::size_t length_ = 0;     // of the line that stands on the terminal
};

}  // namespace gdi::gdiview
