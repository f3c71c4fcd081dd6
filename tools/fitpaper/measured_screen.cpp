// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/fitpaper/measured_screen.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <sstream>

#include "halftone/screens/HalftoneScreen.h"
#include "halftone/screens/screen_header.h"
#include "tools/makescreens/parameter_text.h"

namespace gdi::fitpaper {
namespace {

constexpr std::size_t kSolid = 255;
constexpr double kDark = 216.0 / 24389.0;  // reflectance below which lightness is a straight line
constexpr double kDarkSlope = 24389.0 / 27.0;

struct Readings {
  double sum = 0.0;
  int count = 0;
  [[nodiscard]] double mean() const { return sum / count; }
};

template <typename Number>
bool readNumber(std::string_view field, Number& number) {
  const char* const end = field.data() + field.size();
  const auto [stop, error] = std::from_chars(field.data(), end, number);
  return error == std::errc() && stop == end;
}

// What is wrong with the line of these fields; nothing for a good one.
std::string readLine(const std::vector<std::string_view>& fields, std::string& unit,
                     std::span<Readings> readings) {
  if (fields.size() != 2) {
    return "expected LEVEL VALUE or unit NAME";
  }
  if (fields[0] == "unit") {
    unit = fields[1];
    const bool known = unit == "reflectance" || unit == "density" || unit == "lightness";
    return known ? "" : "unknown unit " + makescreens::quoted(unit);
  }
  std::size_t level = 0;
  if (!readNumber(fields[0], level) || level > kSolid) {
    return makescreens::quoted(fields[0]) + " is no level of 0 to 255";
  }
  double value = 0.0;
  bool valid = readNumber(fields[1], value);
  if (unit == "density") {
    value = std::pow(10.0, -value);
  } else if (unit == "lightness") {
    value = reflectanceOf(value);
  }
  valid = valid && std::isfinite(value) && value >= 0.0;
  readings[level].sum += value;
  ++readings[level].count;
  return valid ? "" : makescreens::quoted(fields[1]) + " is no " + unit;
}

// What the readings lack; nothing when `measurements` has been filled in.
std::string summarise(std::span<const Readings> readings, Measurements& measurements) {
  constexpr std::size_t kFewestPatches = 5;
  const Readings& paper = readings.front();
  if (paper.count == 0) {
    return "level 0, the paper, is missing";
  }
  for (std::size_t level = 1; level <= kSolid; ++level) {
    if (readings[level].count > 0) {
      measurements.patches.push_back({level, readings[level].mean() / paper.mean()});
    }
  }
  if (readings.back().count == 0) {
    return "level 255, the solid, is missing";
  }
  measurements.solid = measurements.patches.back().reflectance;
  measurements.patches.pop_back();
  if (!(measurements.solid < 1.0)) {
    return "the solid is no darker than the paper";
  }
  return measurements.patches.size() < kFewestPatches ? "fewer than 5 levels from 1 to 254" : "";
}

}  // namespace

std::optional<ScreenTiles> readScreenTiles(std::span<const std::uint8_t> data) {
  // Loading also holds the table against the header, which bounds the tile.
  const auto screen = HalftoneScreen::loadFromData(data);
  if (screen == nullptr) {
    return std::nullopt;
  }
  const auto header = parseScreenHeader(data.first(screenHeaderLength(data).value_or(0)));
  if (!header || header->inputDepth != 8) {
    (void)std::fprintf(stderr, "ERROR: the screen has not 256 input levels\n");
    return std::nullopt;
  }
  const auto width = static_cast<std::size_t>(header->width);
  ScreenTiles tiles{{header->width, header->height}, (1 << header->outputDepth) - 1, {}};
  for (std::size_t level = 0; level <= kSolid; ++level) {
    const std::vector<std::uint8_t> input(width, static_cast<std::uint8_t>(level));
    std::vector<std::uint8_t>& values = tiles.levels.emplace_back(tiles.tile.size());
    for (int row = 0; row < header->height; ++row) {
      std::uint8_t* const line = &values[static_cast<std::size_t>(row) * width];
      screen->processScanline(input.data(), header->width, 1, row, line, 8);  // a byte a pixel
    }
  }
  return tiles;
}

std::optional<Measurements> parseMeasurements(std::string_view text, std::string_view name,
                                              std::string& error) {
  std::array<Readings, kSolid + 1> readings;
  std::string unit = "reflectance";
  std::istringstream lines{std::string(text)};
  int number = 0;
  std::string problem;
  for (std::string line; problem.empty() && std::getline(lines, line); ++number) {
    const std::vector<std::string_view> fields = makescreens::fieldsOf(line);
    problem = fields.empty() ? "" : readLine(fields, unit, readings);
  }
  Measurements measurements;
  if (problem.empty()) {
    problem = summarise(readings, measurements);
  }
  if (!problem.empty()) {
    error = std::string(name) + ':' + std::to_string(number) + ": " + problem;
    return std::nullopt;
  }
  return measurements;
}

double lightnessOf(double reflectance) {
  return reflectance > kDark ? 116.0 * std::cbrt(reflectance) - 16.0 : kDarkSlope * reflectance;
}

double reflectanceOf(double lightness) {
  return lightness > kDarkSlope * kDark ? std::pow((lightness + 16.0) / 116.0, 3.0)
                                        : lightness / kDarkSlope;
}

}  // namespace gdi::fitpaper
