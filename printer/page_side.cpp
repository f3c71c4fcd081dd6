// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "printer/page_side.h"

namespace gdi {

namespace {

constexpr std::int32_t kFirstVersionRepeatingPages = 0x1040;  // 10.4.0

std::uint32_t quotient(std::uint32_t dividend, std::uint32_t divisor) {
  return divisor == 0 ? 0 : dividend / divisor;
}

std::uint32_t remainder(std::uint32_t dividend, std::uint32_t divisor) {
  return divisor == 0 ? 0 : dividend % divisor;
}

}  // namespace

std::uint32_t duplexPageNumber(std::uint32_t page, const DuplexJob& job,
                               std::uint32_t& sidesImaged) {
  if (job.systemVersion < kFirstVersionRepeatingPages) {
    return job.collate ? remainder(page, quotient(sidesImaged, job.copies))
                       : quotient(page, job.copies);
  }
  if (!job.collate) {
    return page;
  }
  if (sidesImaged % 2 == 1) {
    sidesImaged += job.copies;
  }
  return remainder(page, sidesImaged);
}

}  // namespace gdi
