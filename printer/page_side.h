// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Which side of the sheet a duplex page lands on, so that back sides can be turned.
#pragma once

#include <cstdint>

namespace gdi {

// What the print system does to a duplex job before the filter sees it.
struct DuplexJob {
  std::int32_t systemVersion = 0;  // 0x1040 for 10.4.0; from there on it repeats pages upstream
  bool collate = false;
  std::uint32_t copies = 1;
};

// The page's number as the sheet counts it, from 0; odd numbers are back sides. All arithmetic is
// unsigned 32-bit, and a division by zero gives 0.
//
// For collated jobs from 10.4 on, an odd `sidesImaged` grows by the copies and stays so, at every
// page anew while it is odd: docs/quirks.md, "sidesImaged grows".
std::uint32_t duplexPageNumber(std::uint32_t page, const DuplexJob& job,
                               std::uint32_t& sidesImaged);

}  // namespace gdi
