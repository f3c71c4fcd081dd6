// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/superposition.h"

#include <cmath>
#include <vector>

#include "tools/eye/colour.h"
#include "tools/eye/sight.h"
#include "tools/screenquality/Spectrum.h"
#include "tools/screenquality/grain.h"
#include "tools/screenquality/window.h"

namespace gdi::screenquality {
namespace {

using eye::chromaSight;
using eye::kInks;
using eye::Lab;
using eye::labOf;
using eye::labSlopes;
using eye::lightnessSight;
using eye::NoiseSeen;
using eye::noiseSeen;
using eye::Rgb;

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

using PatchLight = std::array<std::vector<double>, 3>;  // red, green, blue

struct Variances {
  double pattern = 0.0;
  double coarse = 0.0;
};

// What an eye sees of a patch's unevenness.
class PatchEye {
 public:
  explicit PatchEye(double inches)
      : lightness_(lightnessSight(kPatchField, inches)),
        chroma_(chromaSight(kPatchField, inches)),
        coarseLightness_(coarseSight(kPatchField, lightness_)),
        coarseChroma_(coarseSight(kPatchField, chroma_)) {}

  // The variances of L*, a* and b*, added up.
  Variances variancesSeen(const PatchLight& light, const Rgb& mean) {
    static const std::vector<double> window = hannWindow(kPatchSide);
    const auto slopes = labSlopes(mean);
    std::vector<double> error(kPatchField.size());
    Variances sum;
    for (std::size_t lab = 0; lab < 3; ++lab) {
      const auto& slope = slopes.at(lab);
      for (std::size_t i = 0; i < error.size(); ++i) {
        error[i] =
            window[i] * (slope[0] * (light[0][i] - mean[0]) + slope[1] * (light[1][i] - mean[1]) +
                         slope[2] * (light[2][i] - mean[2]));
      }
      const auto [pattern, coarse] =
          lab == 0 ? spectrum_.variancesSeen(error, lightness_, coarseLightness_)
                   : spectrum_.variancesSeen(error, chroma_, coarseChroma_);
      sum.pattern += pattern;
      sum.coarse += coarse;
    }
    return sum;
  }

 private:
  Spectrum spectrum_{kPatchField};
  Sight lightness_;
  Sight chroma_;
  Sight coarseLightness_;
  Sight coarseChroma_;
};

// The colours' squared distances from their mean, added up.
double squaredDistances(std::span<const Lab> colours) {
  double total = 0.0;
  for (std::size_t lab = 0; lab < 3; ++lab) {
    double sum = 0.0;
    for (const Lab& colour : colours) {
      sum += colour.at(lab);
    }
    const double mean = sum / static_cast<double>(colours.size());
    for (const Lab& colour : colours) {
      total += (colour.at(lab) - mean) * (colour.at(lab) - mean);
    }
  }
  return total;
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
  const PatchPrinter printer(planes, conditions.paper.spread);
  const NoiseSeen noise = noiseSeen(conditions.noiseCorrelation, conditions.inches);
  const std::vector<Shifts> all = shiftsOf(registrations);
  PatchEye patchEye(conditions.inches);
  Variances sum;
  double noiseSquares = 0.0;
  double registrationSquares = 0.0;
  for (const Patch& patch : patches) {
    std::vector<Lab> colours;
    for (const Shifts& shifts : all) {
      PatchLight light;
      Rgb mean{};
      for (std::size_t rgb = 0; rgb < 3; ++rgb) {
        light.at(rgb) = printer.channel(patch, shifts, rgb);
        mean.at(rgb) = meanOf(light.at(rgb));
      }
      colours.push_back(labOf(mean));
      noiseSquares += noiseVariance(planes, conditions, patch, mean, noise);
      const Variances seen = patchEye.variancesSeen(light, mean);
      sum.pattern += seen.pattern;
      sum.coarse += seen.coarse;
    }
    registrationSquares += squaredDistances(colours);
  }
  const double count = static_cast<double>(patches.size()) * registrations;
  return {std::sqrt(sum.pattern / count), std::sqrt(sum.coarse / count),
          std::sqrt(noiseSquares / count), std::sqrt(registrationSquares / count)};
}

}  // namespace gdi::screenquality
