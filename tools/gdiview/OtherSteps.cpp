// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/OtherSteps.h"

#include <utility>

#include "tools/gdiview/header_difference.h"

namespace gdi::gdiview {

void OtherSteps::add(const reader::RecordStep& step, std::uint32_t pages) {
  checksum_.mark(pages);
  checksum_.mark(step.record.index());
  if (std::holds_alternative<reader::BrokenOff>(step.record)) {
    checksum_.add(step.checksum);
    return;
  }
  if (!step.header.empty()) {
    if (const auto kind = reader::kindOfTag(step.header)) {
      checksum_.add(withoutIgnored(*kind, step.header));
    }
  }
  if (const auto* band = std::get_if<reader::Band>(&step.record)) {
    checksum_.add(band->data);
  }
  checksum_.add(step.checksum);
}

std::vector<std::uint8_t> OtherSteps::withoutIgnored(reader::RecordKind kind,
                                                     std::vector<std::uint8_t> record) {
  auto bytes = ignoredBytes_.find(kind);
  if (bytes == ignoredBytes_.end()) {
    bytes = ignoredBytes_.emplace(kind, bytesOfFields(kind, ignored_)).first;
  }
  for (std::size_t at = 0; at < record.size(); ++at) {
    if (bytes->second[at]) {
      record[at] = 0;
    }
  }
  return record;
}

}  // namespace gdi::gdiview
