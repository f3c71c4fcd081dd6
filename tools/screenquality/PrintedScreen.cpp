// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/PrintedScreen.h"

#include <numeric>

#include "tools/printmodel/LaserEngine.h"
#include "tools/printmodel/PaperLight.h"

namespace gdi::screenquality {

PrintedScreen::PrintedScreen(const Screen& screen, const PaperModel& paper)
    : screen_(screen), paper_(paper) {
  const printmodel::LaserEngine engine(paper, screen.steps);
  for (std::size_t level = 0; level < kLevels; ++level) {
    const printmodel::Exposure exposure = engine.exposure(screen.tile, screen.level(level));
    coverages_.at(level) = engine.coverage(screen.tile, exposure);
    sensitivities_.at(level) = engine.sensitivity(exposure);
    const std::vector<double> back = light(level);
    reflectances_.at(level) =
        std::accumulate(back.begin(), back.end(), 0.0) / static_cast<double>(back.size());
  }
}

std::vector<double> PrintedScreen::light(std::size_t level) const {
  const printmodel::PaperLight paperLight(paper_.spread);
  return paperLight.reflectance(screen_.tile,
                                printmodel::transmissionOf(coverage(level), paper_.solid));
}

}  // namespace gdi::screenquality
