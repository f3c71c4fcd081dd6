// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Calls the version of a function that is compiled for the instruction set in use.
//
//   constexpr auto kAdd = GDI_VERSIONS(add);   // after the per-target code, #if HWY_ONCE
//   version(kAdd)(a, b);
//
// To be included after hwy/highway.h.
#pragma once

#include <array>

#include "platform/processor/instruction_sets.h"

#if defined(__x86_64__)
#define GDI_VERSIONS(FUNCTION)                                                               \
  std::array<decltype(&HWY_STATIC_DISPATCH(FUNCTION)), ::gdi::kInstructionSets> {            \
    HWY_CHOOSE_AVX3_DL(FUNCTION), HWY_CHOOSE_AVX3(FUNCTION), HWY_CHOOSE_AVX2(FUNCTION),      \
        HWY_CHOOSE_SSE4(FUNCTION), HWY_CHOOSE_SSSE3(FUNCTION), HWY_CHOOSE_FALLBACK(FUNCTION) \
  }
#else
#define GDI_VERSIONS(FUNCTION)                                                    \
  std::array<decltype(&HWY_STATIC_DISPATCH(FUNCTION)), ::gdi::kInstructionSets> { \
    &HWY_STATIC_DISPATCH(FUNCTION)                                                \
  }
#endif

namespace gdi {

// The function of the table, as GDI_VERSIONS makes it, to be called now.
template <typename Function>
Function version(const std::array<Function, kInstructionSets>& versions) {
  return versions[instructionSet()];
}

}  // namespace gdi
