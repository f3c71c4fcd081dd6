// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/detail.h"

#include <cmath>
#include <cstddef>
#include <numbers>

#include "tools/eye/colour.h"
#include "tools/eye/sight.h"
#include "tools/printmodel/LaserEngine.h"
#include "tools/printmodel/PaperLight.h"
#include "tools/screenquality/Spectrum.h"

namespace gdi::screenquality {
namespace {

using eye::lightness;
using eye::lightnessSight;
using eye::Sight;

constexpr int kQuarter = kDetailSide / 2;
constexpr int kBorder = 32;  // pixels left out, where the image's other side shines in

class Drawing {
 public:
  Drawing() : levels_(static_cast<std::size_t>(kDetailSide) * kDetailSide, 0) {}

  void set(int x, int y, int level) {
    levels_[static_cast<std::size_t>(y) * kDetailSide + static_cast<std::size_t>(x)] =
        static_cast<std::uint8_t>(level);
  }
  std::vector<std::uint8_t> take() { return std::move(levels_); }

 private:
  std::vector<std::uint8_t> levels_;
};

// Numbers without apparent order, the same everywhere (a linear congruence of 32 bits).
class Scatter {
 public:
  int upTo(int most) {
    state_ = state_ * 1664525U + 1013904223U;
    return static_cast<int>((state_ >> 8U) % static_cast<std::uint32_t>(most + 1));
  }

 private:
  std::uint32_t state_ = 8;
};

void drawDiscs(Drawing& drawing) {
  Scatter scatter;
  for (int disc = 0; disc < 60; ++disc) {
    const int centreX = scatter.upTo(kQuarter);
    const int centreY = scatter.upTo(kQuarter);
    const int radius = 3 + (60 - disc) * scatter.upTo(100) / 100;
    const int level = 20 + scatter.upTo(200);
    for (int y = 0; y < kQuarter; ++y) {
      for (int x = 0; x < kQuarter; ++x) {
        const int acrossX = x - centreX;
        const int downY = y - centreY;
        if (acrossX * acrossX + downY * downY <= radius * radius) {
          drawing.set(x, y, level);
        }
      }
    }
  }
}

// A fan of strokes 2 to 4 pixels wide, in turn solid, middling and light.
void drawStrokes(Drawing& drawing) {
  constexpr int kStrokes = 6;
  constexpr int kTints[] = {255, 150, 80};  // NOLINT: a short list
  for (int stroke = 0; stroke < kStrokes; ++stroke) {
    const double angle = std::numbers::pi * stroke / kStrokes;
    const int widening = stroke / 2;
    const double half = 1.0 + 0.5 * widening;
    const double offset = (stroke % 3 - 1) * 20.0;
    for (int y = 0; y < kQuarter; ++y) {
      for (int x = 0; x < kQuarter; ++x) {
        const double away = (x - kQuarter / 2.0) * std::sin(angle) -
                            (y - kQuarter / 2.0) * std::cos(angle) - offset;
        if (std::abs(away) <= half) {
          drawing.set(kQuarter + x, y, kTints[stroke % 3]);
        }
      }
    }
  }
}

void drawRamp(Drawing& drawing) {
  for (int y = 0; y < kQuarter; ++y) {
    for (int x = 0; x < kQuarter; ++x) {
      drawing.set(x, kQuarter + y, x * 255 / (kQuarter - 1));
    }
  }
}

// Rings that get finer outwards, down to 16 pixels at the middle of a side.
void drawZonePlate(Drawing& drawing) {
  constexpr double kFinest = 16.0;
  constexpr double kRadius = kQuarter / 2.0;
  for (int y = 0; y < kQuarter; ++y) {
    for (int x = 0; x < kQuarter; ++x) {
      const double radius = std::hypot(x - kRadius, y - kRadius);
      const double phase = std::numbers::pi * radius * radius / (kFinest * kRadius);
      drawing.set(kQuarter + x, kQuarter + y,
                  static_cast<int>(std::lround(128.0 + 80.0 * std::cos(phase))));
    }
  }
}

}  // namespace

std::vector<std::uint8_t> detailImage() {
  Drawing drawing;
  drawDiscs(drawing);
  drawStrokes(drawing);
  drawRamp(drawing);
  drawZonePlate(drawing);
  return drawing.take();
}

double detailLoss(const PrintedScreen& print, const Conditions& conditions) {
  static const std::vector<std::uint8_t> image = detailImage();
  const Screen& screen = print.screen();
  std::vector<std::uint8_t> values;
  std::vector<double> wanted;
  for (int y = 0; y < kDetailSide; ++y) {
    for (int x = 0; x < kDetailSide; ++x) {
      const std::size_t level = image[values.size()];
      const std::size_t place =
          printmodel::wrapped(y, screen.tile.height) * static_cast<std::size_t>(screen.tile.width) +
          printmodel::wrapped(x, screen.tile.width);
      values.push_back(screen.level(level)[place]);
      wanted.push_back(print.reflectance(level));
    }
  }
  return detailLoss(values, screen.steps, wanted, conditions);
}

double detailLoss(std::span<const std::uint8_t> values, int steps, std::span<const double> wanted,
                  const Conditions& conditions) {
  constexpr Tile kField{kDetailSide, kDetailSide};
  const PaperModel& paper = conditions.paper;
  const printmodel::LaserEngine engine(paper, steps);
  const std::vector<double> coverage = engine.coverage(kField, engine.exposure(kField, values));
  const std::vector<double> light =
      printmodel::PaperLight(paper.spread)
          .reflectance(kField, printmodel::transmissionOf(coverage, paper.solid));

  Spectrum spectrum(kField);
  const Sight sight = lightnessSight(kField, conditions.inches);
  const std::vector<double> printed = spectrum.seen(light, sight);
  const std::vector<double> ideal = spectrum.seen(wanted, sight);
  double squares = 0.0;
  std::size_t count = 0;
  for (int y = kBorder; y < kDetailSide - kBorder; ++y) {
    for (int x = kBorder; x < kDetailSide - kBorder; ++x) {
      const auto i = static_cast<std::size_t>(y) * kDetailSide + static_cast<std::size_t>(x);
      const double difference =
          lightness(std::max(printed[i], 0.0)) - lightness(std::max(ideal[i], 0.0));
      squares += difference * difference;
      ++count;
    }
  }
  return std::sqrt(squares / static_cast<double>(count));
}

}  // namespace gdi::screenquality
