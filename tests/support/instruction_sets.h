// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Runs what chooses its instructions by the processor with each set that this one has, the widest
// and the plain ones alike.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace gdi::test {

struct InstructionSet {
  std::size_t place;
  std::string name;
};

// Those that the code is compiled for and the processor has.
std::vector<InstructionSet> instructionSets();

// Leaves the processor that set alone while the object lives. One at a time.
class WithInstructions {
 public:
  explicit WithInstructions(const InstructionSet& set);
  WithInstructions(const WithInstructions&) = delete;
  WithInstructions& operator=(const WithInstructions&) = delete;
  WithInstructions(WithInstructions&&) = delete;
  WithInstructions& operator=(WithInstructions&&) = delete;
  ~WithInstructions();
};

// Calls check(name) once with each set.
template <typename Check>
void withEveryInstructionSet(Check check) {
  for (const InstructionSet& set : instructionSets()) {
    const WithInstructions only(set);
    check(set.name.c_str());
  }
}

}  // namespace gdi::test
