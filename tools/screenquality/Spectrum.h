// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The waves that a field of numbers is made of, and what is left of them when some are weakened.
#pragma once

#include <array>
#include <complex>
#include <memory>
#include <span>
#include <vector>

#include "tools/printmodel/Tile.h"

namespace gdi::screenquality {

using printmodel::Tile;

// Transforms of fields of one size, taken to repeat. One thread an object.
class Spectrum {
 public:
  explicit Spectrum(const Tile& field);
  Spectrum(const Spectrum&) = delete;
  Spectrum& operator=(const Spectrum&) = delete;
  Spectrum(Spectrum&&) = delete;
  Spectrum& operator=(Spectrum&&) = delete;
  ~Spectrum();

  // The variance that a field keeps, its mean left out, when each wave is weakened to its share:
  // `shares` of the half spectrum as eye/sight.h lays it out.
  // Requires: one number for each pixel, row by row.
  double varianceSeen(std::span<const double> field, std::span<const double> shares);

  // The same for two ways of weakening.
  std::array<double, 2> variancesSeen(std::span<const double> field, std::span<const double> shares,
                                      std::span<const double> otherShares);

  // The field itself so weakened.
  std::vector<double> seen(std::span<const double> field, std::span<const double> shares);

 private:
  struct Plans;
  void transform(std::span<const double> field);
  [[nodiscard]] double varianceOfWaves(std::span<const double> shares) const;

  Tile field_;
  std::vector<double> values_;
  std::vector<std::complex<double>> waves_;
  std::unique_ptr<Plans> plans_;
};

}  // namespace gdi::screenquality
