// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What was judged, as tables for the maintainer to read.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "tools/screenquality/judging.h"

namespace gdi::screenquality {

// A line a set: J, its goal, the best baseline's J, the terms.
void writeSets(std::ostream& out, std::span<const JudgedSet> sets);

// A line a baseline, and what error diffusion leaves out.
void writeBaselines(std::ostream& out, std::span<const JudgedBaseline> baselines);

// The goals that the sets miss, a line each.
std::vector<std::string> missesOf(std::span<const JudgedSet> sets);

}  // namespace gdi::screenquality
