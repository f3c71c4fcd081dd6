// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/makescreens/screen_line.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

namespace gdi::makescreens {
namespace {

// The fewest digits that read back as the same number.
std::string shortest(double value) {
  std::array<char, 400> text{};
  const auto [end, error] =
      std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
  return {text.data(), error == std::errc() ? end : text.data()};
}

class Line {
 public:
  explicit Line(std::string_view keyword) : text_(keyword) {}

  void word(std::string_view word, std::size_t width) {
    text_.append(" ").append(word);
    text_.append(width - std::min(width, word.size()), ' ');
  }
  void number(const std::string& number, std::size_t width) {
    text_.append(" ");
    text_.append(width - std::min(width, number.size()), ' ').append(number);
  }
  void number(int value, std::size_t width) { number(std::to_string(value), width); }
  void number(double value, std::size_t width) { number(shortest(value), width); }

  void shape(const SpotShape& shape) {
    number(shape.ellipse, 5);
    number(shape.roundness, 6);
    number(shape.pairs, 6);
  }

  void place(const Parameters& parameters, std::size_t paperClass, std::size_t quality,
             std::size_t plane) {
    word(parameters.classes[paperClass].name, 6);
    word(parameters.qualities[quality].name, 8);
    word(kPlanes.at(plane), 7);
  }

  [[nodiscard]] const std::string& text() const { return text_; }

 private:
  std::string text_;
};

}  // namespace

std::string screenLine(const Parameters& parameters, std::size_t paperClass, std::size_t quality,
                       std::size_t plane, const ScreenParameters& screen) {
  const Lattice& lattice = screen.lattice;
  Line line("screen");
  line.place(parameters, paperClass, quality, plane);
  line.number(lattice.n, 3);
  for (const int coefficient : {lattice.a, lattice.b, lattice.c, lattice.d}) {
    line.number(coefficient, 3);
  }
  line.number(lattice.phaseU / 1000.0, 6);
  line.number(lattice.phaseV / 1000.0, 6);
  line.number(screen.leastCells, 6);
  line.number(screen.softEdge, 5);
  line.number(screen.growth.evenness, 6);
  line.number(screen.growth.reach, 5);
  line.shape(screen.growth.dots);
  line.shape(screen.growth.holes);
  line.number(screen.growth.leastDot, 2);
  line.number(screen.growth.leastHole, 2);
  line.number(screen.gradualWeight, 5);
  return line.text();
}

std::vector<std::string> orderLines(const Parameters& parameters, std::size_t paperClass,
                                    std::size_t quality, std::size_t plane,
                                    const ScreenParameters& screen) {
  std::vector<std::string> lines;
  for (const bool dots : {true, false}) {
    const SpotShape& shape = dots ? screen.growth.dots : screen.growth.holes;
    if (shape.order.empty()) {
      continue;
    }
    Line line("order ");
    line.place(parameters, paperClass, quality, plane);
    line.word(dots ? "dots" : "holes", 5);
    for (const int place : shape.order) {
      line.number(place, 2);
    }
    lines.push_back(line.text());
  }
  return lines;
}

}  // namespace gdi::makescreens
