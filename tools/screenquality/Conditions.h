// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What prints are judged under: a paper in a printer, its noise, and how far away the eye is.
#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "tools/printmodel/PaperModel.h"

namespace gdi::screenquality {

using printmodel::PaperModel;

struct Conditions {
  std::string_view name;  // of the paper class
  PaperModel paper;
  double noise = 0.04;            // of the engine's exposure, rms as a share of it
  double noiseCorrelation = 1.5;  // pixels over which the noise stays alike
  double inches = 12.0;           // from the eye to the paper
  double gain = 0.16;             // by which screens for the paper lift the middle tone's area
  bool operator==(const Conditions&) const = default;
};

// The papers that screens are made for, under which all figures compare.
extern const std::array<Conditions, 3> kPaperClasses;

// The paper types of jobs.
std::vector<std::string_view> paperTypes();

// The class of a paper type ("Plain", "Thick"); null for a name that no job carries.
const Conditions* paperClassOf(std::string_view paperType);

}  // namespace gdi::screenquality
