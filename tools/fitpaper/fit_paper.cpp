// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/fitpaper/fit_paper.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <sstream>
#include <vector>

#include "tools/makescreens/parameter_text.h"
#include "tools/printmodel/PrintModel.h"

namespace gdi::fitpaper {
namespace {

using printmodel::PaperModel;

using Figures = std::array<double, 3>;  // spot, threshold, spread
constexpr Figures kSteps = {0.08, 0.04, 0.4};
constexpr int kSearches = 3;     // each begins where the one before ended, with whole steps
constexpr int kMoves = 120;      // of one search, at most
constexpr double kClose = 1e-7;  // difference of errors that ends a search

struct Point {
  Figures figures{};
  double error = 0.0;
  bool operator<(const Point& other) const { return error < other.error; }
};
using Simplex = std::array<Point, 4>;
using PointAt = std::function<Point(const Figures&)>;

// Figures beyond what a class may state count as the nearest that it may.
PaperModel withFigures(PaperModel paper, const Figures& figures) {
  paper.spot = std::clamp(figures[0], 0.1, 1.0);
  paper.threshold = std::clamp(figures[1], 0.05, 0.95);
  paper.spread = std::clamp(figures[2], 0.1, 5.0);
  return paper;
}

// The figures `share` of the way from one point to the other.
Figures between(const Figures& from, const Figures& to, double share) {
  Figures figures = from;
  for (std::size_t i = 0; i < figures.size(); ++i) {
    figures.at(i) += share * (to.at(i) - from.at(i));
  }
  return figures;
}

// One move of Nelder and Mead's downhill simplex, whose best point comes first: the worst point
// goes through the middle of the others, or all others draw nearer to the best.
void improve(Simplex& simplex, const PointAt& pointAt) {
  const Point best = simplex.front();
  Point& worst = simplex.back();
  const Figures middle =
      between(between(simplex[0].figures, simplex[1].figures, 0.5), simplex[2].figures, 1.0 / 3.0);
  const Point mirrored = pointAt(between(worst.figures, middle, 2.0));
  if (mirrored < best) {
    worst = std::min(mirrored, pointAt(between(worst.figures, middle, 3.0)));
  } else if (mirrored < simplex[2]) {
    worst = mirrored;
  } else {
    const Point nearer = pointAt(between(worst.figures, middle, mirrored < worst ? 1.5 : 0.5));
    if (nearer < std::min(worst, mirrored)) {
      worst = nearer;
      return;
    }
    for (Point& point : simplex) {
      point = pointAt(between(best.figures, point.figures, 0.5));
    }
  }
}

Figures lowestFrom(const Figures& start, const PointAt& pointAt) {
  Simplex simplex = {pointAt(start)};
  for (std::size_t i = 0; i < start.size(); ++i) {
    Figures figures = start;
    figures.at(i) += kSteps.at(i);
    simplex.at(i + 1) = pointAt(figures);
  }
  for (int move = 0; move < kMoves; ++move) {
    std::stable_sort(simplex.begin(), simplex.end());
    if (simplex.back().error - simplex.front().error < kClose) {
      break;
    }
    improve(simplex, pointAt);
  }
  return std::min_element(simplex.begin(), simplex.end())->figures;
}

}  // namespace

Deviation deviationOf(const PaperModel& paper, const MeasuredScreen& screen) {
  PaperModel model = paper;
  model.solid = screen.measured.solid;
  const printmodel::PrintModel print(model, screen.screen.tile, screen.screen.steps);
  Deviation deviation;
  double squares = 0.0;
  for (const Patch& patch : screen.measured.patches) {
    const double area = print.printedArea(screen.screen.levels[patch.level]);
    const double modelled = lightnessOf(1.0 - area * (1.0 - model.solid));
    const double off = std::abs(modelled - lightnessOf(patch.reflectance));
    squares += off * off;
    if (off > deviation.largest) {
      deviation.largest = off;
      deviation.level = patch.level;
    }
  }
  deviation.mean = std::sqrt(squares / static_cast<double>(screen.measured.patches.size()));
  return deviation;
}

PaperModel fitPaper(const PaperModel& start, std::span<const MeasuredScreen> screens) {
  const PointAt pointAt = [&](const Figures& figures) {
    Point point{figures, 0.0};
    for (const MeasuredScreen& screen : screens) {
      const double mean = deviationOf(withFigures(start, figures), screen).mean;
      point.error += mean * mean / static_cast<double>(screens.size());
    }
    return point;
  };
  Figures figures = {start.spot, start.threshold, start.spread};
  for (int i = 0; i < kSearches; ++i) {
    figures = lowestFrom(figures, pointAt);
  }
  PaperModel paper = withFigures(start, figures);
  paper.solid = 0.0;
  for (const MeasuredScreen& screen : screens) {
    paper.solid += screen.measured.solid / static_cast<double>(screens.size());
  }
  return paper;
}

std::string classLine(std::string_view parameters, std::string_view name, const PaperModel& paper) {
  const auto thousandths = [](double value) {
    return makescreens::decimal(std::round(value * 1000.0) / 1000.0);
  };
  std::istringstream lines{std::string(parameters)};
  for (std::string line; std::getline(lines, line);) {
    const std::vector<std::string_view> fields = makescreens::fieldsOf(line);
    // class NAME SPOT THRESHOLD SOFTNESS SPREAD SOLID, and what follows
    if (fields.size() < 7 || fields[0] != "class" || fields[1] != name) {
      continue;
    }
    std::vector<std::string> words(fields.begin(), fields.end());
    words[2] = thousandths(paper.spot);
    words[3] = thousandths(paper.threshold);
    words[5] = thousandths(paper.spread);
    words[6] = thousandths(paper.solid);
    std::string text = "class";
    for (std::size_t i = 1; i < words.size(); ++i) {
      text += ' ' + words[i];
    }
    return text;
  }
  return "";
}

}  // namespace gdi::fitpaper
