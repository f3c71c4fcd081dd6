// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/record_order.h"

#include <algorithm>

namespace gdi::reader {

std::optional<std::string_view> RecordOrder::take(RecordKind kind) {
  const Expecting expected = expecting_;
  switch (kind) {
    case RecordKind::kJob:
      expecting_ = Expecting::kHost;
      if (expected != Expecting::kJob) {
        return "the job record (GDIJ) does not come first, or once more";
      }
      return std::nullopt;
    case RecordKind::kHost:
      expecting_ = std::max(expected, Expecting::kPageOrEnd);
      if (expected != Expecting::kHost) {
        return "the host record (GJET) does not follow the job record";
      }
      return std::nullopt;
    case RecordKind::kPage:
      expecting_ = Expecting::kBandPageOrEnd;
      break;
    case RecordKind::kBand:
      expecting_ = Expecting::kBandPageOrEnd;
      if (expected == Expecting::kPageOrEnd) {
        return "a band record (GDIB) comes ahead of the first page record";
      }
      break;
    case RecordKind::kEndOfJob:
      expecting_ = Expecting::kJob;
      break;
  }
  if (expected == Expecting::kHost) {
    return "the host record (GJET) is missing";
  }
  if (expected == Expecting::kJob && kind != RecordKind::kEndOfJob) {
    return "the job record (GDIJ) is missing";
  }
  return std::nullopt;
}

}  // namespace gdi::reader
