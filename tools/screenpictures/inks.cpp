// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenpictures/inks.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "tools/eye/colour.h"
#include "tools/printmodel/LaserEngine.h"

namespace gdi::screenpictures {
namespace {

using eye::kInks;

constexpr int kGreys = 16;
constexpr int kShades = 4;  // of an ink

std::vector<PngColour> greyPalette() {
  std::vector<PngColour> palette;
  for (int place = 0; place < kGreys; ++place) {
    const auto grey = static_cast<std::uint8_t>(place * 255 / (kGreys - 1));
    palette.push_back({grey, grey, grey});
  }
  return palette;
}

// A share of light as a sample of sRGB has it, 0 to 1.
double encoded(double light) {
  return light <= 0.0031308 ? 12.92 * light : 1.055 * std::pow(light, 1.0 / 2.4) - 0.055;
}

// What light a point sends back that toner of that solid reflectance covers to the share `toner`.
double lightOf(double toner, double solid) {
  const double passed = 1.0 - toner * (1.0 - std::sqrt(solid));
  return passed * passed;
}

// A colour for each four shades, the shade of cyan counting most in its place.
std::vector<PngColour> inkPalette() {
  std::vector<PngColour> palette;
  for (int place = 0; place < kShades * kShades * kShades * kShades; ++place) {
    std::array<std::uint8_t, 3> samples{};
    for (std::size_t rgb = 0; rgb < samples.size(); ++rgb) {
      double light = 1.0;
      int shades = place;
      for (std::size_t plane = kInks.size(); plane-- > 0; shades /= kShades) {
        const double toner = static_cast<double>(shades % kShades) / (kShades - 1);
        light *= lightOf(toner, kInks.at(plane).at(rgb));
      }
      samples.at(rgb) = static_cast<std::uint8_t>(std::lround(255.0 * encoded(light)));
    }
    palette.push_back({samples[0], samples[1], samples[2]});
  }
  return palette;
}

// Of the sample of that number across a pixel, the share that a centred pulse of that width fills.
double pulseShare(int sample, int samples, double width) {
  const double begin = static_cast<double>(sample) / samples;
  const double end = static_cast<double>(sample + 1) / samples;
  const double covered = std::min(end, 0.5 + width / 2) - std::max(begin, 0.5 - width / 2);
  return std::max(0.0, covered) * samples;
}

Tile pointsOf(const Tile& pictured) {
  return {pictured.width * printmodel::kPointsAcross, pictured.height * printmodel::kPointsAcross};
}

}  // namespace

Picture sentPicture(const Plane& plane, int samples) {
  const Tile pictured = plane.pictured();
  Picture picture{{pictured.width * samples, pictured.height * samples}, greyPalette(), {}};
  picture.places.reserve(picture.size.size());
  for (int y = 0; y < picture.size.height; ++y) {
    for (int x = 0; x < pictured.width; ++x) {
      const std::size_t pixel = placeOf(plane.area, x + kMargin, y / samples + kMargin);
      const double width = static_cast<double>(plane.values[pixel]) / plane.steps;
      for (int sample = 0; sample < samples; ++sample) {
        const double white = 1.0 - pulseShare(sample, samples, width);
        picture.places.push_back(static_cast<std::uint8_t>(std::lround(white * kWhitePlace)));
      }
    }
  }
  return picture;
}

Picture developedPicture(const Plane& plane, const PaperModel& paper) {
  Picture picture{pointsOf(plane.pictured()), greyPalette(), {}};
  for (const double toner : developed(plane, paper)) {
    const double grey = encoded(lightOf(toner, paper.solid));
    picture.places.push_back(static_cast<std::uint8_t>(std::lround(grey * kWhitePlace)));
  }
  return picture;
}

Picture superposedPicture(std::span<const Plane, 4> planes, const PaperModel& paper) {
  Picture picture{pointsOf(planes[0].pictured()), inkPalette(), {}};
  picture.places.resize(picture.size.size(), kPaperPlace);
  for (const Plane& plane : planes) {
    const std::vector<double> toner = developed(plane, paper);
    for (std::size_t i = 0; i < toner.size(); ++i) {
      const int shade = static_cast<int>(std::lround(toner[i] * (kShades - 1)));
      picture.places[i] = static_cast<std::uint8_t>(picture.places[i] * kShades + shade);
    }
  }
  return picture;
}

}  // namespace gdi::screenpictures
