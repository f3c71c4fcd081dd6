// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/samplepages/stroke_font.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace gdi::samplepages {
namespace {

constexpr int kBlankAdvance = 7 * kUnit / 2;
constexpr int kSideBearings = 5 * kUnit / 2;  // stem to stem, from one letter to the next
constexpr int kRoundings = 3;

// Lines of grid points, two digits a point (A is 10). A line after "~" is a curve, whose corners
// are rounded off; one that ends where it began is closed.
struct Drawing {
  char character;
  std::string_view lines;
};

constexpr std::array kDrawings = {
    Drawing{'A', "083068 1656"},
    Drawing{'B', "0008 ~00404404 ~04545808"},
    Drawing{'C', "~515000085857"},
    Drawing{'D', "0008 ~00606808"},
    Drawing{'E', "50000858 0444"},
    Drawing{'F', "500008 0444"},
    Drawing{'G', "~51500008585755 5535"},
    Drawing{'H', "0008 5058 0454"},
    Drawing{'I', "0008"},
    Drawing{'J', "4045 ~45480806"},
    Drawing{'K', "0008 5004 1358"},
    Drawing{'L', "000848"},
    Drawing{'M', "0800366068"},
    Drawing{'N', "08005850"},
    Drawing{'O', "~0060680800"},
    Drawing{'P', "0008 ~00505404"},
    Drawing{'R', "0008 ~00505404 2458"},
    Drawing{'S', "~5150000355580807"},
    Drawing{'T', "0060 3038"},
    Drawing{'U', "0005 ~05085855 5550"},
    Drawing{'V', "003860"},
    Drawing{'W', "0028426880"},
    Drawing{'Y', "003460 3438"},
    Drawing{'a', "4348 ~0343480803"},
    Drawing{'b', "0008 ~0343480803"},
    Drawing{'c', "~444303084847"},
    Drawing{'d', "4048 ~0343480803"},
    Drawing{'e', "0545 ~05034345 ~05084847"},
    Drawing{'f', "~301013 1318 0333"},
    Drawing{'g', "4348 ~0343480803 ~484A1A0A"},
    Drawing{'h', "0008 ~05034345 4548"},
    Drawing{'i', "0308 0101"},
    Drawing{'j', "1318 ~181A0A 1111"},
    Drawing{'k', "0008 4306 1548"},
    Drawing{'l', "0008"},
    Drawing{'m', "0308 ~05033335 3538 ~35336365 6568"},
    Drawing{'n', "0308 ~05034345 4548"},
    Drawing{'o', "~0343480803"},
    Drawing{'p', "030A ~0343480803"},
    Drawing{'q', "434A ~0343480803"},
    Drawing{'r', "0308 ~050333"},
    Drawing{'s', "~4443030546480807"},
    Drawing{'t', "1116 ~161838 0333"},
    Drawing{'u', "0306 ~06084846 4348"},
    Drawing{'v', "032843"},
    Drawing{'w', "0318345863"},
    Drawing{'x', "0348 4308"},
    Drawing{'y', "0328 431A"},
    Drawing{'z', "03430848"},
    Drawing{'.', "0808"},
    Drawing{',', "0809"},
    Drawing{'-', "0535"},
};

constexpr int gridNumber(char digit) {
  return (digit == 'A' ? 10 : digit - '0') * kUnit;
}

std::vector<Point> pointsOf(std::string_view digits) {
  std::vector<Point> points;
  for (std::size_t i = 0; i + 1 < digits.size(); i += 2) {
    points.push_back({gridNumber(digits[i]), gridNumber(digits[i + 1])});
  }
  return points;
}

Point threeQuarters(const Point& near, const Point& far) {
  return {(3 * near.x + far.x + 2) / 4, (3 * near.y + far.y + 2) / 4};
}

// Cuts every corner at a quarter of its sides; the ends of an open line stay.
std::vector<Point> cornersCut(const std::vector<Point>& line) {
  const bool closed = line.front() == line.back();
  std::vector<Point> cut;
  for (std::size_t i = 0; i + 1 < line.size(); ++i) {
    cut.push_back(threeQuarters(line[i], line[i + 1]));
    cut.push_back(threeQuarters(line[i + 1], line[i]));
  }
  if (closed) {
    cut.push_back(cut.front());
  } else {
    cut.front() = line.front();
    cut.back() = line.back();
  }
  return cut;
}

void appendLine(std::string_view text, std::vector<Stroke>& strokes) {
  const bool curved = text.starts_with('~');
  std::vector<Point> line = pointsOf(curved ? text.substr(1) : text);
  for (int i = 0; curved && i < kRoundings; ++i) {
    line = cornersCut(line);
  }
  for (std::size_t i = 0; i + 1 < line.size(); ++i) {
    strokes.push_back({line[i], line[i + 1]});
  }
}

}  // namespace

Letter letterOf(char character) {
  const auto* const drawing = std::ranges::find(kDrawings, character, &Drawing::character);
  if (drawing == kDrawings.end()) {
    return {{}, kBlankAdvance};
  }
  Letter letter;
  std::string_view lines = drawing->lines;
  while (!lines.empty()) {
    const std::size_t length = std::min(lines.find(' '), lines.size());
    appendLine(lines.substr(0, length), letter.strokes);
    lines.remove_prefix(std::min(length + 1, lines.size()));
  }
  int right = 0;
  for (const Stroke& stroke : letter.strokes) {
    right = std::max({right, stroke.from.x, stroke.to.x});
  }
  letter.advance = right + kSideBearings;
  return letter;
}

}  // namespace gdi::samplepages
