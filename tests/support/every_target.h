// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Tests of code that chooses its instructions at run time, run with each set of them.
#pragma once

#include <cstdint>

#include <gtest/gtest.h>
#include <hwy/targets.h>

namespace gdi {

// Calls body() once with each set of instructions that this processor has, the plainest last.
template <typename Body>
void onEveryTarget(Body body) {
  const auto targets = static_cast<std::uint64_t>(hwy::SupportedTargets());
  for (std::uint64_t rest = targets; rest != 0; rest &= rest - 1) {
    const auto target = static_cast<std::int64_t>(rest & (~rest + 1));
    hwy::SetSupportedTargetsForTest(target);
    SCOPED_TRACE(hwy::TargetName(target));
    body();
  }
  hwy::SetSupportedTargetsForTest(0);
}

}  // namespace gdi
