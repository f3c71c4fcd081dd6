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

std::string startsLike(const reader::Prologue& prologue) {
  for (const FileKind& kind : kOtherFiles) {
    if (prologue.start.size() >= kind.start.size() &&
        std::equal(kind.start.begin(), kind.start.end(), prologue.start.begin(),
                   [](char a, std::uint8_t b) { return static_cast<std::uint8_t>(a) == b; })) {
      return std::string(": it begins like ") + kind.name;
    }
  }
  return ": it holds no record of one";
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

bool isJobStream(const reader::JobWalk& walk, const reader::Prologue& start,
                 const std::string& name, std::ostream& errors) {
  if (walk.failed()) {
    errors << "gdiview: " << nameInLine(name) << ": the input cannot be read beyond offset "
           << walk.offset() << '\n';
    return false;
  }
  if (!walk.foundRecord()) {
    errors << "gdiview: " << nameInLine(name)
           << (walk.offset() == 0 ? ": the input is empty"
                                  : ": this is no job stream" + startsLike(start))
           << '\n';
  }
  return walk.foundRecord();
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
