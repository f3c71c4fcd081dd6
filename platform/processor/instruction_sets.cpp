// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/processor/instruction_sets.h"

#include <array>
#include <optional>

#include <hwy/highway.h>

namespace gdi {
namespace {

struct InstructionSet {
  const char* name;
  bool compiled;
  bool (*supported)();
};

bool always() {
  return true;
}

#if defined(__x86_64__)

// Each asks for what Highway lets the compiler use, but for instructions that nothing here becomes:
// F16C with AVX2, VAES and AVX-VNNI with AVX3_DL.
bool hasSSSE3() {
  return __builtin_cpu_supports("ssse3");
}

bool hasSSE4() {
  return hasSSSE3() && __builtin_cpu_supports("sse4.2") && __builtin_cpu_supports("pclmul") &&
         __builtin_cpu_supports("aes");
}

bool hasAVX2() {
  return hasSSE4() && __builtin_cpu_supports("avx2") && __builtin_cpu_supports("bmi") &&
         __builtin_cpu_supports("bmi2") && __builtin_cpu_supports("fma");
}

bool hasAVX3() {
  return hasAVX2() && __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512vl") &&
         __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512bw");
}

bool hasAVX3DL() {
  return hasAVX3() && __builtin_cpu_supports("avx512vbmi") &&
         __builtin_cpu_supports("avx512vbmi2") && __builtin_cpu_supports("avx512vnni") &&
         __builtin_cpu_supports("avx512bitalg") && __builtin_cpu_supports("avx512vpopcntdq") &&
         __builtin_cpu_supports("gfni") && __builtin_cpu_supports("vpclmulqdq");
}

constexpr std::array<InstructionSet, kInstructionSets> kSets{{
    {"AVX3_DL", (HWY_TARGETS & HWY_AVX3_DL) != 0, hasAVX3DL},
    {"AVX3", (HWY_TARGETS & HWY_AVX3) != 0, hasAVX3},
    {"AVX2", (HWY_TARGETS & HWY_AVX2) != 0, hasAVX2},
    {"SSE4", (HWY_TARGETS & HWY_SSE4) != 0, hasSSE4},
    {"SSSE3", (HWY_TARGETS & HWY_SSSE3) != 0, hasSSSE3},
    {"baseline", true, always},
}};

#else

constexpr std::array<InstructionSet, kInstructionSets> kSets{{{"baseline", true, always}}};

#endif

bool usable(const InstructionSet& set) {
  return set.compiled && set.supported();
}

std::optional<std::size_t> setInUse;

}  // namespace

std::size_t instructionSet() {
  if (!setInUse) {
    std::size_t place = 0;
    while (!usable(kSets.at(place))) {  // the last one is
      ++place;
    }
    setInUse = place;
  }
  return *setInUse;
}

bool hasVectors() {
  constexpr bool kBaselineHas = HWY_STATIC_TARGET != HWY_SCALAR && HWY_STATIC_TARGET != HWY_EMU128;
  return kBaselineHas || instructionSet() + 1 < kInstructionSets;
}

std::vector<std::size_t> supportedInstructionSets() {
  std::vector<std::size_t> places;
  for (std::size_t place = 0; place < kSets.size(); ++place) {
    if (usable(kSets.at(place))) {
      places.push_back(place);
    }
  }
  return places;
}

const char* nameOfInstructionSet(std::size_t place) {
  return kSets.at(place).name;
}

void useInstructionSet(std::size_t place) {
  setInUse = place;
}

}  // namespace gdi
