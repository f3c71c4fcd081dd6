// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The job stream that the user named, a file or standard input, and what to say when it is none.
#pragma once

#include <cstdint>
#include <fstream>
#include <istream>
#include <optional>
#include <ostream>
#include <string>

#include "reader/JobWalk.h"

namespace gdi::gdiview {

// Exit statuses of every command.
inline constexpr int kSound = 0;
inline constexpr int kFaulty = 1;    // violations; for diff: differences
inline constexpr int kUnusable = 2;  // no job stream, or something cannot be read or written

class JobInput {
 public:
  // A stream of the caller's, which must outlive this.
  JobInput(std::istream& stream, std::string name) : name_(std::move(name)), stream_(&stream) {}
  // The file of that name, or standard input for "-".
  explicit JobInput(const std::string& name);
  JobInput(const JobInput&) = delete;
  JobInput& operator=(const JobInput&) = delete;

  // False when the file cannot be opened; the line that says so has been written then.
  [[nodiscard]] bool isOpen(std::ostream& errors) const;
  [[nodiscard]] std::istream& stream() { return *stream_; }
  [[nodiscard]] const std::string& name() const { return name_; }
  // Of a regular file, bytes.
  [[nodiscard]] std::optional<std::uint64_t> size() const { return size_; }

 private:
  std::string name_;
  std::ifstream file_;
  std::istream* stream_;
  int error_ = 0;
  std::optional<std::uint64_t> size_;
};

// Of two regular files together, bytes.
std::optional<std::uint64_t> sizeOfBoth(const JobInput& a, const JobInput& b);

// What comes ahead of a stream's first record.
struct JobStart {
  reader::Prologue prologue;
  std::uint64_t bytes = 0;  // of the whole prologue
};

// Whether what the walk has read is of a job: it has seen more of one than an end-of-job mark, or
// that mark follows what may be a prologue. Four bytes at its end make a job of no other file.
// requires: the walk has gone past the first record
bool holdsJob(const reader::JobWalk& walk, const JobStart& start);

// Whether the walk, which is over, has seen a job stream and could read on. If not, one line says
// what there was instead: that the input cannot be read, that it is empty, or what it looks like.
bool isJobStream(const reader::JobWalk& walk, const JobStart& start, const std::string& name,
                 std::ostream& errors);

// The line for a page that the user asked for and the job, read to its end, does not have.
void tellMissingPage(const std::string& name, std::uint32_t page, const reader::JobTotals& totals,
                     std::ostream& errors);

// `status`; or kUnusable, with a line, when something that was written to standard output, which
// `out` stands for, got lost.
int statusAfterWriting(std::ostream& out, int status, std::ostream& errors);

}  // namespace gdi::gdiview
