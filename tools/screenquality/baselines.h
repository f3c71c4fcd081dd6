// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Screens of the usual kinds, to compare with.
#pragma once

#include <array>
#include <string_view>

#include "tools/printmodel/PaperModel.h"
#include "tools/screenquality/Screen.h"

namespace gdi::screenquality {

using printmodel::PaperModel;

// The screens of cyan, magenta, yellow and black; a mono page has the last.
using FourScreens = std::array<Screen, 4>;

struct Baseline {
  std::string_view name;
  // The screens for prints of `steps` steps a pixel; compensated ones follow t + gain 4 t (1 - t)
  // on that paper.
  FourScreens (*make)(int steps, const PaperModel& paper, double gain);
};

// Bayer's dispersed matrix of 16 x 16 on all planes; a 45-degree clustered dot of 106 lines an inch
// on all planes, compensated; clustered dots at rational angles, their cells' sides (6, 2), (2, 6),
// (6, 0) and (4, 4) pixels; blue noise by void and cluster, 64 x 64 and another for each plane,
// compensated.
extern const std::array<Baseline, 4> kBaselines;

}  // namespace gdi::screenquality
