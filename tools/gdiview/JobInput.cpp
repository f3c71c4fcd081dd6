// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/JobInput.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <iostream>
#include <string_view>
#include <system_error>

#include "printer/format/job_stream_format.h"
#include "reader/counted.h"
#include "tools/gdiview/escaped_text.h"

namespace gdi::gdiview {

namespace {

struct FileKind {
  std::string_view start;
  const char* name;
};

// What people hand over by mistake.
constexpr std::array<FileKind, 11> kOtherFiles{{
    {"\x89PNG", "a PNG picture"},
    {"%PDF", "a PDF document"},
    {"%!", "a PostScript document"},
    {"RaSt", "a CUPS raster"},
    {"RaS2", "a CUPS raster"},
    {"RaS3", "a CUPS raster"},
    {"tSaR", "a CUPS raster"},
    {"2SaR", "a CUPS raster"},
    {"3SaR", "a CUPS raster"},
    {"\x1f\x8b", "a gzip file"},
    {"PK\x03\x04", "a ZIP file"},
}};

// Longer than any prologue that somebody has seen, bytes.
constexpr std::uint64_t kLongPrologue = 65536;

// The kind of another file that these bytes begin like; null when they do not.
const char* nameOfOtherFile(const reader::Prologue& prologue) {
  for (const FileKind& kind : kOtherFiles) {
    if (prologue.start.size() >= kind.start.size() &&
        std::equal(kind.start.begin(), kind.start.end(), prologue.start.begin(),
                   [](char a, std::uint8_t b) { return static_cast<std::uint8_t>(a) == b; })) {
      return kind.name;
    }
  }
  return nullptr;
}

// Why the walk, which is over, holds no job.
std::string reasonAgainst(const reader::JobWalk& walk, const JobStart& start) {
  if (walk.offset() == 0) {
    return "the input is empty";
  }
  std::string reason = "this is no job stream: ";
  if (const char* const name = nameOfOtherFile(start.prologue); name != nullptr) {
    return reason.append("it begins like ").append(name);
  }
  return walk.foundRecord()
             ? reason.append("no job record in ").append(reader::counted(walk.offset(), "byte"))
             : reason.append("it holds no record of one");
}

}  // namespace

JobInput::JobInput(const std::string& name) : name_(name), stream_(&file_) {
  if (name == "-") {
    stream_ = &std::cin;
    return;
  }
  std::error_code unknown;
  if (std::filesystem::is_directory(name, unknown)) {
    error_ = EISDIR;
    return;
  }
  errno = 0;
  file_.open(name, std::ios::binary);
  error_ = file_ ? 0 : (errno == 0 ? EIO : errno);
  if (std::filesystem::is_regular_file(name, unknown)) {
    size_ = std::filesystem::file_size(name, unknown);
  }
}

bool JobInput::isOpen(std::ostream& errors) const {
  if (error_ != 0) {
    errors << "gdiview: " << nameInLine(name_) << ": " << std::generic_category().message(error_)
           << '\n';
  }
  return error_ == 0;
}

std::optional<std::uint64_t> sizeOfBoth(const JobInput& a, const JobInput& b) {
  return a.size() && b.size() ? std::optional(*a.size() + *b.size()) : std::nullopt;
}

bool holdsJob(const reader::JobWalk& walk, const JobStart& start) {
  const bool onlyEndMark = walk.totals().bytes == start.bytes + sizeof(Tag);
  const bool likeAJobs = start.prologue.asExpected || (start.bytes <= kLongPrologue &&
                                                       nameOfOtherFile(start.prologue) == nullptr);
  return walk.foundRecord() && (!onlyEndMark || likeAJobs);
}

bool isJobStream(const reader::JobWalk& walk, const JobStart& start, const std::string& name,
                 std::ostream& errors) {
  if (walk.failed()) {
    errors << "gdiview: " << nameInLine(name) << ": the input cannot be read beyond offset "
           << walk.offset() << '\n';
    return false;
  }
  const bool job = holdsJob(walk, start);
  if (!job) {
    errors << "gdiview: " << nameInLine(name) << ": " << reasonAgainst(walk, start) << '\n';
  }
  return job;
}

void tellMissingPage(const std::string& name, std::uint32_t page, const reader::JobTotals& totals,
                     std::ostream& errors) {
  errors << "gdiview: " << nameInLine(name) << ": there is no page " << page << "; the job has "
         << totals.pages << '\n';
}

int statusAfterWriting(std::ostream& out, int status, std::ostream& errors) {
  const bool lost = !out;
  out.clear();  // what failed before fails again, and says why
  errno = 0;
  if (out.flush() && !lost) {
    return status;
  }
  errors << "gdiview: standard output: "
         << std::generic_category().message(errno == 0 ? EIO : errno) << '\n';
  return kUnusable;
}

}  // namespace gdi::gdiview
