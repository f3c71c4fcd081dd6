// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The instruction sets that wide code is compiled for, and which of them is used.
//
// The best one that the processor has, found at the first call. One thread.
#pragma once

#include <cstddef>
#include <vector>

namespace gdi {

// How many versions a function compiled for each set has: the places of a table made by
// GDI_VERSIONS (platform/processor/dispatch.h), the widest first.
#if defined(__x86_64__)
inline constexpr std::size_t kInstructionSets = 6;
#else
inline constexpr std::size_t kInstructionSets = 1;
#endif

// The place of the set in use.
std::size_t instructionSet();
// Whether that set has vectors at all. Without them, what is made for vectors is slower than plain
// code for the same purpose.
bool hasVectors();

// The places of all that are compiled and that the processor has; at least one.
std::vector<std::size_t> supportedInstructionSets();
const char* nameOfInstructionSet(std::size_t place);

// Uses that set, one of the supported ones, from now on; for tests, since the results are the same
// with all.
void useInstructionSet(std::size_t place);

}  // namespace gdi
