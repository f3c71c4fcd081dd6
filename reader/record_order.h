// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Which record may follow which: the job record, the host record, pages with their bands, the
// end-of-job mark.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "reader/record_start.h"

namespace gdi::reader {

class RecordOrder {
 public:
  // A record of that kind has come. What is wrong with its being here; the order goes on from it.
  std::optional<std::string_view> take(RecordKind kind);

 private:
  enum class Expecting : std::uint8_t { kJob, kHost, kPageOrEnd, kBandPageOrEnd };

  Expecting expecting_ = Expecting::kJob;
};

}  // namespace gdi::reader
