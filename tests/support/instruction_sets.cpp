// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/instruction_sets.h"

#include "platform/processor/instruction_sets.h"

namespace gdi::test {

std::vector<InstructionSet> instructionSets() {
  std::vector<InstructionSet> sets;
  for (const std::size_t place : supportedInstructionSets()) {
    sets.push_back({place, nameOfInstructionSet(place)});
  }
  return sets;
}

WithInstructions::WithInstructions(const InstructionSet& set) {
  useInstructionSet(set.place);
}

WithInstructions::~WithInstructions() {
  useInstructionSet(supportedInstructionSets().front());
}

}  // namespace gdi::test
