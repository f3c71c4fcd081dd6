// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/superposition.h"

#include <cmath>
#include <vector>

#include "tools/printmodel/PaperLight.h"
#include "tools/screenquality/Spectrum.h"
#include "tools/screenquality/colour.h"
#include "tools/screenquality/eye.h"
#include "tools/screenquality/grain.h"
#include "tools/screenquality/window.h"

namespace gdi::screenquality {
namespace {

constexpr int kSide = 512;  // pixels across and down that a patch is looked at
constexpr Tile kField{kSide, kSide};

struct Shift {
  int x = 0;
  int y = 0;
};
using Shifts = std::array<Shift, 4>;

// How the planes lie, the same in every run (a linear congruence of 32 bits).
std::vector<Shifts> shiftsOf(int registrations) {
  std::uint32_t state = 1;
  const auto next = [&state] {
    state = state * 1664525U + 1013904223U;
    return static_cast<int>((state >> 16U) % (kRegistrationError + 1));
  };
  std::vector<Shifts> all;
  for (int i = 0; i < registrations; ++i) {
    Shifts shifts{};
    for (Shift& shift : shifts) {
      shift.x = next();
      shift.y = next();
    }
    all.push_back(shifts);
  }
  return all;
}

double meanOf(std::span<const double> values) {
  double sum = 0.0;
  for (const double value : values) {
    sum += value;
  }
  return sum / static_cast<double>(values.size());
}

class PatchPrinter {
 public:
  PatchPrinter(const PrintedPlanes& planes, const Conditions& conditions)
      : planes_(planes), light_(conditions.paper.spread) {}

  // The light of one channel that comes back from the patch, pixel by pixel.
  [[nodiscard]] std::vector<double> channel(const Patch& patch, const Shifts& shifts,
                                            std::size_t rgb) const {
    std::vector<double> passed(kField.size(), 1.0);
    for (std::size_t plane = 0; plane < planes_.size(); ++plane) {
      if (patch.at(plane) > 0) {
        cover(passed, plane, patch.at(plane), shifts.at(plane), kInks.at(plane).at(rgb));
      }
    }
    return light_.reflectance(kField, passed);
  }

 private:
  void cover(std::vector<double>& passed, std::size_t plane, std::size_t level, const Shift& shift,
             double solid) const {
    const Tile& tile = planes_.at(plane)->screen().tile;
    const std::vector<double> through =
        printmodel::transmissionOf(planes_.at(plane)->coverage(level), solid);
    std::vector<double> line(kSide);
    for (int y = 0; y < kSide; ++y) {
      const double* row = &through[static_cast<std::size_t>((y + shift.y) % tile.height) *
                                   static_cast<std::size_t>(tile.width)];
      int column = shift.x % tile.width;
      double* to = &passed[static_cast<std::size_t>(y) * kSide];
      for (int x = 0; x < kSide; ++x) {
        to[x] *= row[column];
        column = column + 1 == tile.width ? 0 : column + 1;
      }
    }
  }

  const PrintedPlanes& planes_;
  printmodel::PaperLight light_;
};

// The noise of the planes' exposure in a patch, as the eye sees it: each plane's toner varies on
// its own and is seen through the others.
double noiseVariance(const PrintedPlanes& planes, const Conditions& conditions, const Patch& patch,
                     const Rgb& mean, const NoiseSeen& seen) {
  const auto slopes = labSlopes(mean);
  double variance = 0.0;
  for (std::size_t plane = 0; plane < planes.size(); ++plane) {
    Rgb change{};
    for (std::size_t rgb = 0; rgb < 3; ++rgb) {
      change.at(rgb) = kNoiseGain / (1.0 - conditions.paper.solid) *
                       (1.0 - kInks.at(plane).at(rgb)) *
                       planes.at(plane)->sensitivity(patch.at(plane)) * conditions.noise;
      for (std::size_t other = 0; other < planes.size(); ++other) {
        if (other != plane) {
          const double area = planes.at(other)->area(patch.at(other));
          change.at(rgb) *= 1.0 - area * (1.0 - kInks.at(other).at(rgb));
        }
      }
    }
    for (std::size_t lab = 0; lab < 3; ++lab) {
      double error = 0.0;
      for (std::size_t rgb = 0; rgb < 3; ++rgb) {
        error += slopes.at(lab).at(rgb) * change.at(rgb);
      }
      error *= lab == 0 ? seen.lightness : seen.chroma;
      variance += error * error;
    }
  }
  return variance;
}

}  // namespace

const std::array<Patch, 12> kPatches{{
    {26, 22, 20, 0},
    {64, 54, 52, 0},
    {120, 104, 100, 0},
    {185, 165, 160, 0},
    {40, 32, 30, 30},
    {80, 70, 66, 80},
    {150, 135, 130, 140},
    {120, 110, 0, 0},
    {110, 0, 120, 0},
    {0, 120, 130, 0},
    {14, 56, 64, 0},
    {40, 100, 120, 14},
}};

Superposition superpositionOf(const PrintedPlanes& planes, const Conditions& conditions,
                              std::span<const Patch> patches, int registrations) {
  static const std::vector<double> window = hannWindow(kSide);
  const Sight lightnessShare = lightnessSight(kField, conditions.inches);
  const Sight chromaShare = chromaSight(kField, conditions.inches);
  const Sight coarseLightness = coarseSight(kField, lightnessShare);
  const Sight coarseChroma = coarseSight(kField, chromaShare);
  const NoiseSeen noise = noiseSeen(conditions.noiseCorrelation, conditions.inches);
  const PatchPrinter printer(planes, conditions);
  const std::vector<Shifts> all = shiftsOf(registrations);
  Spectrum spectrum(kField);

  double patternSquares = 0.0;
  double coarseSquares = 0.0;
  double noiseSquares = 0.0;
  double registrationSquares = 0.0;
  for (const Patch& patch : patches) {
    std::vector<Lab> colours;
    for (const Shifts& shifts : all) {
      std::array<std::vector<double>, 3> light;
      Rgb mean{};
      for (std::size_t rgb = 0; rgb < 3; ++rgb) {
        light.at(rgb) = printer.channel(patch, shifts, rgb);
        mean.at(rgb) = meanOf(light.at(rgb));
      }
      colours.push_back(labOf(mean));
      noiseSquares += noiseVariance(planes, conditions, patch, mean, noise);
      const auto slopes = labSlopes(mean);
      std::vector<double> error(kField.size());
      for (std::size_t lab = 0; lab < 3; ++lab) {
        const auto& slope = slopes.at(lab);
        for (std::size_t i = 0; i < error.size(); ++i) {
          error[i] =
              window[i] * (slope[0] * (light[0][i] - mean[0]) + slope[1] * (light[1][i] - mean[1]) +
                           slope[2] * (light[2][i] - mean[2]));
        }
        const auto [pattern, coarse] =
            lab == 0 ? spectrum.variancesSeen(error, lightnessShare, coarseLightness)
                     : spectrum.variancesSeen(error, chromaShare, coarseChroma);
        patternSquares += pattern;
        coarseSquares += coarse;
      }
    }
    for (std::size_t lab = 0; lab < 3; ++lab) {
      double sum = 0.0;
      double squares = 0.0;
      for (const Lab& colour : colours) {
        sum += colour.at(lab);
      }
      const double mean = sum / static_cast<double>(colours.size());
      for (const Lab& colour : colours) {
        squares += (colour.at(lab) - mean) * (colour.at(lab) - mean);
      }
      registrationSquares += squares;
    }
  }
  const double count = static_cast<double>(patches.size()) * registrations;
  return {std::sqrt(patternSquares / count), std::sqrt(coarseSquares / count),
          std::sqrt(noiseSquares / count), std::sqrt(registrationSquares / count)};
}

}  // namespace gdi::screenquality
