// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/samplepages/GraphicsPage.h"

#include <algorithm>
#include <array>

namespace gdi::samplepages {
namespace {

constexpr Ink kPaper{0, 0, 0, 0};
constexpr Ink kBlack{0, 0, 0, 255};
constexpr Ink kDarkGrey{0, 0, 0, 190};
constexpr Ink kLightGrey{0, 0, 0, 26};
constexpr Ink kNavy{255, 179, 0, 51};
constexpr Ink kBlue{204, 128, 0, 0};
constexpr Ink kSky{102, 26, 0, 0};
constexpr Ink kGreen{153, 0, 204, 13};
constexpr Ink kYellow{0, 26, 230, 0};
constexpr Ink kOrange{0, 128, 242, 0};
constexpr Ink kRed{13, 230, 204, 0};
constexpr Ink kViolet{140, 191, 13, 0};
constexpr std::array kSeries{kBlue, kOrange, kGreen, kRed, kViolet, kYellow, kSky, kDarkGrey};

}  // namespace

GraphicsPage::GraphicsPage(const PageShape& shape) : PageSource(shape) {
  addTitle();
  addBarChart();
  addPieChart();
  addTintTable();
  addGradients();
  addLines();
}

void GraphicsPage::paint(int y, std::span<Ink> row) const {
  for (const Shape& shape : shapes_) {
    paintShape(shape, y, row);
  }
}

int GraphicsPage::across(int thousandths) const {
  return shape().width * thousandths / 1000;
}

int GraphicsPage::down(int thousandths) const {
  return shape().height * thousandths / 1000;
}

Box GraphicsPage::box(int left, int top, int right, int bottom) const {
  return {across(left), down(top), across(right), down(bottom)};
}

void GraphicsPage::addTitle() {
  shapes_.emplace_back(Tint{box(60, 40, 940, 90), kNavy});
  shapes_.emplace_back(Tint{box(80, 52, 420, 78), kPaper});
  shapes_.emplace_back(Tint{box(60, 95, 940, 98), kOrange});
}

// Two bars of a pair stand together, the second a lighter tint of the first.
void GraphicsPage::addBarChart() {
  constexpr std::array kHeights{120, 205, 160, 255, 230, 90, 285, 180};
  shapes_.emplace_back(Tint{box(60, 130, 520, 480), kLightGrey});
  for (int level = 160; level < 470; level += 30) {
    shapes_.emplace_back(Line{across(80), down(level), across(510), down(level), 1, kDarkGrey});
  }
  int left = 90;
  for (std::size_t i = 0; i < kHeights.size(); ++i) {
    const int top = 470 - kHeights.at(i);
    shapes_.emplace_back(Tint{box(left, top, left + 24, 470), kSeries.at(i)});
    shapes_.emplace_back(
        Tint{box(left + 24, top + 40, left + 44, 470), between(kPaper, kSeries.at(i), 2, 5)});
    left += 53;
  }
  shapes_.emplace_back(Line{across(80), down(470), across(510), down(470), 6, kBlack});
  shapes_.emplace_back(Line{across(80), down(140), across(80), down(470), 6, kBlack});
}

void GraphicsPage::addPieChart() {
  // Clockwise from the top; each share less than half a turn.
  constexpr std::array<std::array<int, 2>, 6> kDirections{
      {{0, -1}, {3, -1}, {1, 3}, {-1, 4}, {-3, -1}, {0, -1}}};
  const int x = across(745);
  const int y = down(305);
  const int radius = std::min(across(190), down(165));
  for (std::size_t i = 0; i + 1 < kDirections.size(); ++i) {
    const auto& [fromX, fromY] = kDirections.at(i);
    const auto& [toX, toY] = kDirections.at(i + 1);
    shapes_.emplace_back(Sector{x, y, radius, fromX, fromY, toX, toY, kSeries.at(i)});
    shapes_.emplace_back(
        Sector{x, y, radius / 2, fromX, fromY, toX, toY, between(kPaper, kSeries.at(i), 1, 2)});
  }
}

// Five rows of ten steps: the inks one by one, then all three colours.
void GraphicsPage::addTintTable() {
  constexpr std::array kInks{Ink{255, 0, 0, 0}, Ink{0, 255, 0, 0}, Ink{0, 0, 255, 0},
                             Ink{0, 0, 0, 255}, Ink{230, 200, 200, 0}};
  int top = 520;
  for (const Ink& ink : kInks) {
    for (int step = 1; step <= 10; ++step) {
      const int left = 60 + (step - 1) * 88;
      shapes_.emplace_back(
          Tint{box(left, top, left + 84, top + 28), between(kPaper, ink, step, 10)});
    }
    top += 32;
  }
}

void GraphicsPage::addGradients() {
  shapes_.emplace_back(Gradient{box(60, 700, 480, 750), kPaper, kBlack, false});
  shapes_.emplace_back(Gradient{box(520, 700, 940, 750), kNavy, kPaper, false});
  shapes_.emplace_back(Gradient{box(60, 760, 480, 820), kYellow, kRed, false});
  shapes_.emplace_back(Gradient{box(520, 760, 940, 820), kSky, kGreen, true});
}

// Lines of every thickness from 1 pixel up: upright, level, and a fan.
void GraphicsPage::addLines() {
  constexpr int kThickest = 12;
  for (int thickness = 1; thickness <= kThickest; ++thickness) {
    const int x = across(60 + 20 * thickness);
    const int y = down(840 + 9 * thickness);
    shapes_.emplace_back(Line{x, down(845), x, down(955), thickness, kBlack});
    shapes_.emplace_back(
        Line{across(350), y, across(600), y, thickness, thickness % 2 == 0 ? kNavy : kRed});
    shapes_.emplace_back(Line{across(640), down(955), across(680 + 22 * thickness), down(845),
                              (thickness + 1) / 2, kBlack});
  }
}

}  // namespace gdi::samplepages
