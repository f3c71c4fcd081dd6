// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/quality.h"

#include <cmath>
#include <deque>

#include "tools/screenquality/detail.h"
#include "tools/screenquality/grain.h"
#include "tools/screenquality/tones.h"

namespace gdi::screenquality {
namespace {

// What each plane's tones and details count on a colour page: hardly at all in yellow.
constexpr std::array<double, 4> kPlaneWeights{0.30, 0.35, 0.05, 0.30};

void addTerms(Quality& sum, const PlaneTerms& terms, double weight) {
  sum.swing += weight * terms.swing * terms.swing;
  sum.detail += weight * terms.detail * terms.detail;
  sum.curve += weight * terms.curve * terms.curve;
  sum.steps += weight * terms.steps * terms.steps;
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

PlaneTerms planeTerms(const PrintedScreen& print, const Conditions& conditions) {
  return {exposureSwing(print), detailLoss(print, conditions), curveError(print), toneSteps(print)};
}

Quality monoQuality(const Screen& black, const Conditions& conditions) {
  return monoQuality(PrintedScreen(black, conditions.paper), conditions);
}

Quality monoQuality(const PrintedScreen& black, const Conditions& conditions) {
  const Grain grain = grainOf(black, conditions);
  Quality quality;
  addTerms(quality, planeTerms(black, conditions), 1.0);
  takeRoots(quality);
  quality.grain = grain.whole();
  quality.coarse = grain.coarse;
  quality.noise = grain.noise;
  return quality;
}

Quality colourQuality(const PlaneScreens& planes, const Conditions& conditions) {
  std::deque<PrintedScreen> prints;
  PrintedPlanes printed{};
  std::array<PlaneTerms, 4> terms;
  for (std::size_t plane = 0; plane < planes.size(); ++plane) {
    printed.at(plane) = &prints.emplace_back(*planes.at(plane), conditions.paper);
    terms.at(plane) = planeTerms(prints.back(), conditions);
  }
  return colourQuality(terms, superpositionOf(printed, conditions));
}

Quality colourQuality(const std::array<PlaneTerms, 4>& planes, const Superposition& superposed) {
  Quality quality;
  for (std::size_t plane = 0; plane < planes.size(); ++plane) {
    addTerms(quality, planes.at(plane), kPlaneWeights.at(plane));
  }
  takeRoots(quality);
  quality.grain = superposed.pattern;
  quality.coarse = superposed.coarse;
  quality.registration = superposed.registration;
  quality.noise = superposed.noise;
  return quality;
}

}  // namespace gdi::screenquality
