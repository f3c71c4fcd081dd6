// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The parts of a job that are neither its prologue nor of a page, of which `diff` keeps a checksum.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "reader/RecordReader.h"

namespace gdi::gdiview {

class OtherSteps {
 public:
  // ignored: names of fields; their bytes stay out of the checksum.
  explicit OtherSteps(std::vector<std::string> ignored) : ignored_(std::move(ignored)) {}

  // pages: so many have begun ahead of it.
  void add(const reader::RecordStep& step, std::uint32_t pages);

  [[nodiscard]] const reader::Checksum& checksum() const { return checksum_; }

 private:
  [[nodiscard]] std::vector<std::uint8_t> withoutIgnored(reader::RecordKind kind,
                                                         std::vector<std::uint8_t> record);

  std::vector<std::string> ignored_;
  std::map<reader::RecordKind, std::vector<bool>> ignoredBytes_;
  reader::Checksum checksum_;
};

}  // namespace gdi::gdiview
