// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A screen's 256 levels, printed as flat tints of one ink.
#pragma once

#include <array>
#include <span>
#include <vector>

#include "tools/printmodel/PaperModel.h"
#include "tools/screenquality/Screen.h"

namespace gdi::screenquality {

using printmodel::PaperModel;

class PrintedScreen {
 public:
  // Keeps a reference to the screen.
  PrintedScreen(const Screen& screen, const PaperModel& paper);

  [[nodiscard]] const Screen& screen() const { return screen_; }
  [[nodiscard]] const PaperModel& paper() const { return paper_; }

  // The share of each pixel of the tile that toner covers.
  [[nodiscard]] std::span<const double> coverage(std::size_t level) const {
    return coverages_.at(level);
  }
  // By how much the tint's mean coverage grows with the logarithm of the laser's exposure.
  [[nodiscard]] double sensitivity(std::size_t level) const { return sensitivities_.at(level); }
  // What the tint sends back of black ink's light, on average.
  [[nodiscard]] double reflectance(std::size_t level) const { return reflectances_.at(level); }
  // The printed area that the tint looks like, of a solid's.
  [[nodiscard]] double area(std::size_t level) const {
    return (1.0 - reflectance(level)) / (1.0 - paper_.solid);
  }
  // The light that comes back at each pixel of the tile.
  [[nodiscard]] std::vector<double> light(std::size_t level) const;

 private:
  const Screen& screen_;
  PaperModel paper_;
  std::array<std::vector<double>, kLevels> coverages_;
  std::array<double, kLevels> sensitivities_{};
  std::array<double, kLevels> reflectances_{};
};

}  // namespace gdi::screenquality
