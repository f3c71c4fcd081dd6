// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/instruction_sets.h"

#include <hwy/highway.h>

namespace gdi::test {
namespace {

void leaveTargets(std::int64_t targets) {
  hwy::SetSupportedTargetsForTest(targets);
  hwy::GetChosenTarget().DeInit();
}

}  // namespace

std::vector<InstructionSet> instructionSets() {
  std::vector<InstructionSet> sets;
  for (const std::int64_t target : hwy::SupportedAndGeneratedTargets()) {
    sets.push_back({target, hwy::TargetName(target)});
  }
  return sets;
}

WithInstructions::WithInstructions(const InstructionSet& set) {
  leaveTargets(set.target);
}

WithInstructions::~WithInstructions() {
  leaveTargets(0);  // as it is
}

}  // namespace gdi::test
