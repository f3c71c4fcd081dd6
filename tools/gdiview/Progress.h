// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A line on the terminal that tells a waiting person how much of a job is done.
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

  // The page that is worked on from now on, counted from 1 (0 = none yet), and the bytes read so
  // far. What had been read at the last call is done, what was read since is the work. Shows the
  // page and the share that is done; only when more than a second has passed since the beginning,
  // and not sooner than a fifth of a second after the last time.
  void update(std::uint32_t page, std::uint64_t bytesRead);
  // Shows, as seldom, how much is done when `done` of the work's `all` parts are. requires: all > 0
  void work(std::uint64_t done, std::uint64_t all);
  // Wipes the line, and leaves the terminal's cursor at its beginning; to be called before anything
  // else is written to the terminal.
  void clear();

 private:
  void show(std::uint64_t bytesDone);

  std::ostream& out_;
  bool terminal_;
  std::optional<std::uint64_t> totalBytes_;
  Clock clock_;
  Time started_;
  std::uint32_t page_ = 0;
  std::uint64_t bytesDone_ = 0;  // where the work on the page begins
  std::uint64_t bytesRead_ = 0;  // and where it ends
  std::optional<Time> shown_;    // last time
  std::size_t length_ = 0;       // of the line that stands on the terminal
};

}  // namespace gdi::gdiview
