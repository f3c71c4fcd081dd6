// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/quality.h"

#include <array>
#include <cmath>
#include <deque>

#include "tools/screenquality/PrintedScreen.h"
#include "tools/screenquality/detail.h"
#include "tools/screenquality/grain.h"
#include "tools/screenquality/superposition.h"
#include "tools/screenquality/tones.h"

namespace gdi::screenquality {
namespace {

// What each plane's tones and details count on a colour page: hardly at all in yellow.
constexpr std::array<double, 4> kPlaneWeights{0.30, 0.35, 0.05, 0.30};

void addTones(Quality& sum, const PrintedScreen& print, const Conditions& conditions,
              double weight) {
  const double swing = exposureSwing(print);
  const double detail = detailLoss(print, conditions);
  const double curve = curveError(print);
  const double steps = toneSteps(print);
  sum.swing += weight * swing * swing;
  sum.detail += weight * detail * detail;
  sum.curve += weight * curve * curve;
  sum.steps += weight * steps * steps;
}

void takeRoots(Quality& squares) {
  squares.swing = std::sqrt(squares.swing);
  squares.detail = std::sqrt(squares.detail);
  squares.curve = std::sqrt(squares.curve);
  squares.steps = std::sqrt(squares.steps);
}

}  // namespace

double Quality::composite() const {
  const std::array<double, 7> weighted{grain,       1.5 * coarse, 0.2 * swing,        0.6 * detail,
                                       0.4 * curve, steps,        0.35 * registration};
  double squares = 0.0;
  for (const double term : weighted) {
    squares += term * term;
  }
  return std::sqrt(squares);
}

Quality monoQuality(const Screen& black, const Conditions& conditions) {
  const PrintedScreen print(black, conditions.paper);
  const Grain grain = grainOf(print, conditions);
  Quality quality;
  addTones(quality, print, conditions, 1.0);
  takeRoots(quality);
  quality.grain = grain.whole();
  quality.coarse = grain.coarse;
  quality.noise = grain.noise;
  return quality;
}

Quality colourQuality(const PlaneScreens& planes, const Conditions& conditions) {
  std::deque<PrintedScreen> prints;
  PrintedPlanes printed{};
  Quality quality;
  for (std::size_t plane = 0; plane < planes.size(); ++plane) {
    printed.at(plane) = &prints.emplace_back(*planes.at(plane), conditions.paper);
    addTones(quality, prints.back(), conditions, kPlaneWeights.at(plane));
  }
  takeRoots(quality);
  const Superposition superposed = superpositionOf(printed, conditions);
  quality.grain = superposed.pattern;
  quality.coarse = superposed.coarse;
  quality.registration = superposed.registration;
  quality.noise = superposed.noise;
  return quality;
}

}  // namespace gdi::screenquality
