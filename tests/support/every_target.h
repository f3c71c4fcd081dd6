// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// For code that chooses its instructions at run time: a check made with each set of them.
#pragma once

#include <cstdint>

#include <hwy/targets.h>

namespace gdi::test {

// Calls check(name) once with each set of instructions that this processor has, then leaves the
// choice to the processor again.
template <typename Check>
void onEveryTarget(Check check) {
  auto left = static_cast<std::uint64_t>(hwy::SupportedTargets());
  while (left != 0) {
    const auto target = static_cast<std::int64_t>(left & (~left + 1));
    hwy::SetSupportedTargetsForTest(target);
    check(hwy::TargetName(target));
    left &= left - 1;
  }
  hwy::SetSupportedTargetsForTest(0);
}

}  // namespace gdi::test
