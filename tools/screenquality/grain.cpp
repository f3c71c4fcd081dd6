// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/grain.h"

#include <cmath>
#include <vector>

#include "tools/eye/colour.h"
#include "tools/screenquality/Spectrum.h"
#include "tools/screenquality/levels.h"

namespace gdi::screenquality {

using eye::kCoarse;
using eye::kDotsPerInch;
using eye::lightness;
using eye::lightnessSight;
using eye::lightnessSlope;
using eye::noiseSeen;

double Grain::whole() const {
  return std::hypot(pattern, noise);
}

Sight coarseSight(const Tile& field, Sight sight) {
  const int columns = field.width / 2 + 1;
  for (std::size_t i = 0; i < sight.size(); ++i) {
    const int row = static_cast<int>(i) / columns;
    const int down = 2 * row > field.height ? row - field.height : row;
    const double x = static_cast<double>(static_cast<int>(i) % columns) / field.width;
    const double y = static_cast<double>(down) / field.height;
    if (std::hypot(x, y) * kDotsPerInch >= kCoarse) {
      sight[i] = 0.0;
    }
  }
  return sight;
}

Grain grainOf(const PrintedScreen& print, const Conditions& conditions) {
  const Tile& tile = print.screen().tile;
  const Sight sight = lightnessSight(tile, conditions.inches);
  const Sight coarse = coarseSight(tile, sight);
  const double noise =
      noiseSeen(conditions.noiseCorrelation, conditions.inches).lightness * conditions.noise;
  Spectrum spectrum(tile);
  std::vector<double> lightnesses;
  std::vector<double> patterns;
  std::vector<double> coarses;
  std::vector<double> noises;
  for (const std::size_t level : kJudgedLevels) {
    const double reflectance = print.reflectance(level);
    const double slope = lightnessSlope(reflectance);
    const std::vector<double> light = print.light(level);
    lightnesses.push_back(lightness(reflectance));
    patterns.push_back(slope * std::sqrt(spectrum.varianceSeen(light, sight)));
    coarses.push_back(slope * std::sqrt(spectrum.varianceSeen(light, coarse)));
    noises.push_back(slope * print.sensitivity(level) * kNoiseGain * noise);
  }
  const std::vector<double> weights = levelWeights(lightnesses);
  return {rootMeanSquare(patterns, weights), rootMeanSquare(coarses, weights),
          rootMeanSquare(noises, weights)};
}

}  // namespace gdi::screenquality
