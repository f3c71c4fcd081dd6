// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/diffused_quality.h"

#include <cmath>
#include <numeric>
#include <span>
#include <vector>

#include "tools/eye/colour.h"
#include "tools/eye/sight.h"
#include "tools/printmodel/LaserEngine.h"
#include "tools/printmodel/PaperLight.h"
#include "tools/screenquality/Spectrum.h"
#include "tools/screenquality/detail.h"
#include "tools/screenquality/error_diffusion.h"
#include "tools/screenquality/grain.h"
#include "tools/screenquality/levels.h"
#include "tools/screenquality/tones.h"
#include "tools/screenquality/window.h"

namespace gdi::screenquality {
namespace {

using eye::lightness;
using eye::lightnessSight;
using eye::lightnessSlope;
using eye::noiseSeen;

constexpr int kSide = 512;
constexpr int kBorder = 32;   // pixels in which the diffusion settles
constexpr int kMiddle = 256;  // pixels across and down that mean tones are taken of
constexpr int kReach = 8;     // pixels beyond them that still count in their print
constexpr Tile kPatternField{kSide - 2 * kBorder, kSide - 2 * kBorder};

using Values = std::vector<std::uint8_t>;

// The square of `side` pixels in the middle of a square of numbers.
template <typename Number>
std::vector<Number> middleOf(std::span<const Number> square, int from, int side) {
  const auto border = static_cast<std::size_t>(from - side) / 2;
  std::vector<Number> middle;
  for (std::size_t row = 0; row < static_cast<std::size_t>(side); ++row) {
    const auto line = square.subspan((row + border) * static_cast<std::size_t>(from) + border,
                                     static_cast<std::size_t>(side));
    middle.insert(middle.end(), line.begin(), line.end());
  }
  return middle;
}

double meanOf(std::span<const double> values) {
  return std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
}

std::vector<double> lightOf(const Tile& field, const printmodel::Exposure& exposure,
                            const printmodel::LaserEngine& engine, const PaperModel& paper,
                            double swing) {
  return printmodel::PaperLight(paper.spread)
      .reflectance(
          field, printmodel::transmissionOf(engine.coverage(field, exposure, swing), paper.solid));
}

// Mean tones of a diffused tint on one paper.
class MeanTones {
 public:
  MeanTones(const Values& tint, int steps, const PaperModel& paper)
      : paper_(paper),
        engine_(paper, steps),
        exposure_(engine_.exposure(kField, middleOf<std::uint8_t>(tint, kSide, kField.width))) {}

  [[nodiscard]] double reflectance(double swing = 1.0) const {
    return meanOf(middleOf<double>(lightOf(kField, exposure_, engine_, paper_, swing), kField.width,
                                   kMiddle));
  }
  [[nodiscard]] double sensitivity() const { return engine_.sensitivity(exposure_); }

 private:
  static constexpr Tile kField{kMiddle + 2 * kReach, kMiddle + 2 * kReach};
  PaperModel paper_;
  printmodel::LaserEngine engine_;
  printmodel::Exposure exposure_;
};

PaperModel paperIn(const StrayedPrinter& printer, PaperModel paper) {
  paper.spot += printer.spot;
  paper.threshold += printer.threshold;
  return paper;
}

class DiffusedTints {
 public:
  DiffusedTints(int steps, const Conditions& conditions)
      : steps_(steps), conditions_(conditions), paper_(conditions.paper) {}

  Quality quality() {
    std::size_t judged = 0;
    for (std::size_t level = 0; level < 256; ++level) {
      const Values tint = tintOf(level);
      const MeanTones tones(tint, steps_, paper_);
      reflectances_.push_back(tones.reflectance());
      lightnesses_.push_back(lightness(reflectances_.back()));
      if (judged < kJudgedLevels.size() && kJudgedLevels.at(judged) == level) {
        judge(tint, tones);
        ++judged;
      }
    }
    return summary();
  }

 private:
  [[nodiscard]] Values tintOf(std::size_t level) const {
    constexpr Tile kField{kSide, kSide};
    return errorDiffusion(kField, Values(kField.size(), static_cast<std::uint8_t>(level)), steps_);
  }

  void judge(const Values& tint, const MeanTones& tones) {
    const double slope = lightnessSlope(reflectances_.back());
    judgedLightnesses_.push_back(lightnesses_.back());
    addPattern(tint);
    noises_.push_back(slope * tones.sensitivity() * kNoiseGain * noise_);
    swings_.push_back(
        (lightness(tones.reflectance(1.0 - kSwing)) - lightness(tones.reflectance(1.0 + kSwing))) /
        2.0);
    for (std::size_t i = 0; i < kPrinters.size(); ++i) {
      const StrayedPrinter& printer = kPrinters.at(i);
      const bool nominal = printer.spot == 0.0 && printer.threshold == 0.0;
      printed_.at(i).push_back(
          nominal ? lightnesses_.back()
                  : lightness(MeanTones(tint, steps_, paperIn(printer, paper_)).reflectance()));
    }
  }

  void addPattern(const Values& tint) {
    constexpr Tile kField{kSide, kSide};
    const printmodel::LaserEngine engine(paper_, steps_);
    const std::vector<double> whole =
        lightOf(kField, engine.exposure(kField, tint), engine, paper_, 1.0);
    std::vector<double> light = middleOf<double>(whole, kSide, kPatternField.width);
    const double mean = meanOf(light);
    const double slope = lightnessSlope(mean);
    for (std::size_t i = 0; i < light.size(); ++i) {
      light[i] = window_[i] * slope * (light[i] - mean);
    }
    patterns_.push_back(std::sqrt(spectrum_.varianceSeen(light, sight_)));
    coarses_.push_back(std::sqrt(spectrum_.varianceSeen(light, coarse_)));
  }

  [[nodiscard]] double detail() const {
    constexpr Tile kField{kDetailSide, kDetailSide};
    const Values image = detailImage();
    std::vector<double> wanted;
    for (const std::uint8_t level : image) {
      wanted.push_back(reflectances_[level]);
    }
    return detailLoss(errorDiffusion(kField, image, steps_), steps_, wanted, conditions_);
  }

  [[nodiscard]] Quality summary() const {
    const std::vector<double> weights = levelWeights(judgedLightnesses_);
    Quality quality;
    quality.noise = rootMeanSquare(noises_, weights);
    quality.grain = std::hypot(rootMeanSquare(patterns_, weights), quality.noise);
    quality.coarse = rootMeanSquare(coarses_, weights);
    quality.swing = rootMeanSquare(swings_, weights);
    quality.detail = detail();
    double squares = 0.0;
    for (const std::vector<double>& printed : printed_) {
      const double distance = curveDistance(printed, paper_.solid);
      squares += distance * distance;
    }
    quality.curve = std::sqrt(squares / static_cast<double>(printed_.size()));
    quality.steps = toneSteps(lightnesses_);
    return quality;
  }

  int steps_;
  const Conditions& conditions_;
  PaperModel paper_;
  Spectrum spectrum_{kPatternField};
  std::vector<double> window_ = hannWindow(kPatternField.width);
  Sight sight_ = lightnessSight(kPatternField, conditions_.inches);
  Sight coarse_ = coarseSight(kPatternField, sight_);
  double noise_ =
      noiseSeen(conditions_.noiseCorrelation, conditions_.inches).lightness * conditions_.noise;
  std::vector<double> reflectances_;  // of all levels
  std::vector<double> lightnesses_;
  // Of the judged levels.
  std::vector<double> judgedLightnesses_;
  std::vector<double> patterns_;
  std::vector<double> coarses_;
  std::vector<double> noises_;
  std::vector<double> swings_;
  std::array<std::vector<double>, kPrinters.size()> printed_;
};

}  // namespace

Quality diffusedQuality(int steps, const Conditions& conditions) {
  return DiffusedTints(steps, conditions).quality();
}

}  // namespace gdi::screenquality
