// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/tones.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numeric>

#include "tools/eye/colour.h"
#include "tools/printmodel/LaserEngine.h"
#include "tools/printmodel/PaperLight.h"
#include "tools/screenquality/levels.h"

namespace gdi::screenquality {
namespace {

using eye::lightness;

// The mean reflectance of a level's tile, printed by that engine.
double reflectanceOf(const Screen& screen, const printmodel::LaserEngine& engine,
                     const PaperModel& paper, std::size_t level, double swing) {
  const std::vector<double> coverage =
      engine.coverage(screen.tile, engine.exposure(screen.tile, screen.level(level)), swing);
  const std::vector<double> light =
      printmodel::PaperLight(paper.spread)
          .reflectance(screen.tile, printmodel::transmissionOf(coverage, paper.solid));
  return std::accumulate(light.begin(), light.end(), 0.0) / static_cast<double>(light.size());
}

double areaLightness(double area, double solid) {
  return lightness(1.0 - std::min(area, 1.0) * (1.0 - solid));
}

// The root mean square distance of the printed lightnesses from the curve of that gain.
double distanceFrom(double gain, std::span<const double> printed, std::span<const double> weights,
                    double solid) {
  std::vector<double> distances;
  for (std::size_t i = 0; i < printed.size(); ++i) {
    const double tone = static_cast<double>(kJudgedLevels.at(i)) / (kLevels - 1);
    const double area = tone + gain * 4.0 * tone * (1.0 - tone);
    distances.push_back(printed[i] - areaLightness(area, solid));
  }
  return rootMeanSquare(distances, weights);
}

}  // namespace

double exposureSwing(const PrintedScreen& print) {
  const Screen& screen = print.screen();
  const printmodel::LaserEngine engine(print.paper(), screen.steps);
  std::vector<double> lightnesses;
  std::vector<double> swings;
  for (const std::size_t level : kJudgedLevels) {
    const double strong =
        lightness(reflectanceOf(screen, engine, print.paper(), level, 1.0 + kSwing));
    const double weak =
        lightness(reflectanceOf(screen, engine, print.paper(), level, 1.0 - kSwing));
    lightnesses.push_back(lightness(print.reflectance(level)));
    swings.push_back((weak - strong) / 2.0);
  }
  return rootMeanSquare(swings, levelWeights(lightnesses));
}

double curveError(const PrintedScreen& print) {
  double squares = 0.0;
  for (const StrayedPrinter& printer : kPrinters) {
    PaperModel paper = print.paper();
    paper.spot += printer.spot;
    paper.threshold += printer.threshold;
    const printmodel::LaserEngine engine(paper, print.screen().steps);
    std::vector<double> printed;
    printed.reserve(kJudgedLevels.size());
    for (const std::size_t level : kJudgedLevels) {
      printed.push_back(lightness(reflectanceOf(print.screen(), engine, paper, level, 1.0)));
    }
    const double distance = curveDistance(printed, paper.solid);
    squares += distance * distance;
  }
  return std::sqrt(squares / kPrinters.size());
}

// By ever narrower intervals.
double curveDistance(std::span<const double> lightnesses, double solid) {
  const std::vector<double> weights(lightnesses.size(),
                                    1.0 / static_cast<double>(lightnesses.size()));
  double low = -1.0;
  double high = 1.0;
  for (int narrowing = 0; narrowing < 28; ++narrowing) {
    const double third = (high - low) / 3.0;
    if (distanceFrom(low + third, lightnesses, weights, solid) <
        distanceFrom(high - third, lightnesses, weights, solid)) {
      high -= third;
    } else {
      low += third;
    }
  }
  return distanceFrom((low + high) / 2.0, lightnesses, weights, solid);
}

double toneSteps(const PrintedScreen& print) {
  std::vector<double> tones;
  for (std::size_t level = 0; level < kLevels; ++level) {
    tones.push_back(lightness(print.reflectance(level)));
  }
  return toneSteps(tones);
}

double toneSteps(std::span<const double> lightnesses) {
  const std::vector<double> smooth = smoothed(lightnesses);
  double squares = 0.0;
  for (std::size_t level = 0; level < lightnesses.size(); ++level) {
    squares += (lightnesses[level] - smooth[level]) * (lightnesses[level] - smooth[level]);
  }
  return std::sqrt(squares / static_cast<double>(lightnesses.size()));
}

std::vector<double> smoothed(std::span<const double> values) {
  constexpr int kHalf = 12;
  constexpr std::size_t kWindow = 2 * kHalf + 1;
  constexpr std::size_t kPowers = 4;
  // Polynomials of degree 0 to 3 that are orthonormal over the window.
  std::array<std::array<double, kWindow>, kPowers> basis{};
  for (std::size_t power = 0; power < kPowers; ++power) {
    std::array<double, kWindow>& row = basis.at(power);
    for (std::size_t i = 0; i < kWindow; ++i) {
      row.at(i) = std::pow((static_cast<double>(i) - kHalf) / kHalf, static_cast<double>(power));
    }
    for (std::size_t lower = 0; lower < power; ++lower) {
      const auto& other = basis.at(lower);
      const double common = std::inner_product(row.begin(), row.end(), other.begin(), 0.0);
      for (std::size_t i = 0; i < kWindow; ++i) {
        row.at(i) -= common * other.at(i);
      }
    }
    const double length = std::sqrt(std::inner_product(row.begin(), row.end(), row.begin(), 0.0));
    for (double& value : row) {
      value /= length;
    }
  }
  std::vector<double> result;
  for (std::size_t at = 0; at < values.size(); ++at) {
    const std::size_t first = std::min(at < kHalf ? 0 : at - kHalf, values.size() - kWindow);
    double value = 0.0;
    for (const auto& row : basis) {
      value += row.at(at - first) *
               std::inner_product(row.begin(), row.end(),
                                  values.begin() + static_cast<std::ptrdiff_t>(first), 0.0);
    }
    result.push_back(value);
  }
  return result;
}

}  // namespace gdi::screenquality
