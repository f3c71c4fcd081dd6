// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/makescreens/tone_errors.h"

#include <algorithm>
#include <cmath>

#include "tools/eye/colour.h"

namespace gdi::makescreens {
namespace {

constexpr double kMostLift = 1.0;           // either way
constexpr double kSmallLift = 0.01;         // that a lift's effect is taken of
constexpr double kSettled = 1e-6;           // a fitting that moves no lift by more is the last
constexpr int kMostFittings = 1000;         // several hundred are due at a weight of 100
constexpr double kSlopeShare = 1.0 / 40.0;  // of the units, on both sides, that a slope is taken of

double printedLightness(double area, double solid) {
  return eye::lightness(1.0 - std::min(area, 1.0) * (1.0 - solid));
}

std::vector<double> lightnessesOf(const PrintedCurve& curve, double solid) {
  std::vector<double> result;
  result.reserve(curve.units() + 1);
  for (std::size_t count = 0; count <= curve.units(); ++count) {
    result.push_back(printedLightness(curve.areaAt(static_cast<double>(count)), solid));
  }
  return result;
}

std::vector<double> targetsOf(double lift, double solid) {
  std::vector<double> result;
  result.reserve(kLevels);
  for (int level = 0; level < kLevels; ++level) {
    result.push_back(printedLightness(targetArea(level, lift), solid));
  }
  return result;
}

}  // namespace

ToneErrors::ToneErrors(std::span<const PrinterCurve> printers, double gain, double solid)
    : solid_(solid) {
  double weights = 0.0;
  for (const PrinterCurve& printer : printers) {
    weights += printer.weight;
  }
  printers_.reserve(printers.size());
  for (const PrinterCurve& printer : printers) {
    printers_.push_back({lightnessesOf(printer.curve, solid), targetsOf(gain, solid),
                         printer.weight / weights, gain});
  }
  for (int fitting = 0; fitting < kMostFittings && fitLifts() > kSettled; ++fitting) {
  }
}

double ToneErrors::at(int level, std::size_t units) const {
  double sum = 0.0;
  for (const Printer& printer : printers_) {
    const double distance =
        printer.lightnesses[units] - printer.targets[static_cast<std::size_t>(level)];
    sum += printer.weight * distance * distance;
  }
  return sum;
}

double ToneErrors::slopeAt(std::size_t units) const {
  const std::vector<double>& lightnesses = printers_.front().lightnesses;
  const std::size_t all = this->units();
  const auto reach =
      std::max(std::size_t{1}, static_cast<std::size_t>(static_cast<double>(all) * kSlopeShare));
  const std::size_t from = units - std::min(units, reach);
  const std::size_t to = std::min(all, units + reach);
  return (lightnesses[to] - lightnesses[from]) / static_cast<double>(to - from);
}

// Moves each lift by the projection of the print's distance from its targets on what a small lift
// changes, at the counts that serve all printers best: a step towards the least sum of squares.
// Answers the longest move.
double ToneErrors::fitLifts() {
  const std::vector<std::size_t> nearest = nearestCounts();
  double longest = 0.0;
  for (Printer& printer : std::span(printers_).subspan(1)) {
    const std::vector<double> lifted = targetsOf(printer.lift + kSmallLift, solid_);
    double projected = 0.0;
    double squares = 0.0;
    for (std::size_t level = 1; level + 1 < kLevels; ++level) {
      const double change = (lifted[level] - printer.targets[level]) / kSmallLift;
      projected += change * (printer.lightnesses[nearest[level]] - printer.targets[level]);
      squares += change * change;
    }
    const double before = printer.lift;
    printer.lift = std::clamp(before + projected / squares, -kMostLift, kMostLift);
    printer.targets = targetsOf(printer.lift, solid_);
    longest = std::max(longest, std::abs(printer.lift - before));
  }
  return longest;
}

// The count of the least error for each level: rising, as the curves are smooth.
std::vector<std::size_t> ToneErrors::nearestCounts() const {
  std::vector<std::size_t> nearest;
  nearest.reserve(kLevels);
  std::size_t count = 0;
  for (int level = 0; level < kLevels; ++level) {
    while (count < units() && at(level, count + 1) <= at(level, count)) {
      ++count;
    }
    nearest.push_back(count);
  }
  return nearest;
}

}  // namespace gdi::makescreens
