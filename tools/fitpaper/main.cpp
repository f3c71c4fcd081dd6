// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// fitpaper PARAMETERS CLASS SCREEN MEASUREMENTS [SCREEN MEASUREMENTS]...: tells the figures of a
// paper class with which the model of print comes closest to what was measured of these screens.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "halftone/screens/file_contents.h"
#include "tools/fitpaper/fit_paper.h"
#include "tools/makescreens/parameters.h"

namespace {

using namespace gdi::fitpaper;
using gdi::makescreens::PaperClass;

[[noreturn]] void refuse(const std::string& problem) {
  // Nothing is left to do when even this cannot be written.
  (void)std::fprintf(stderr, "%s\n", problem.c_str());
  std::exit(1);
}

std::vector<std::uint8_t> contentsOf(const std::string& path) {
  auto contents = gdi::contentsOfFile(path);
  if (!contents) {
    refuse(path + ": cannot be read");
  }
  return std::move(*contents);
}

std::string textOf(const std::string& path) {
  const std::vector<std::uint8_t> contents = contentsOf(path);
  return {contents.begin(), contents.end()};
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv, argv + argc);
  if (argc < 5 || argc % 2 == 0) {
    refuse("usage: fitpaper PARAMETERS CLASS SCREEN MEASUREMENTS [SCREEN MEASUREMENTS]...");
  }
  const std::string text = textOf(arguments[1]);
  std::string error;
  const auto parameters = gdi::makescreens::parseParameters(text, arguments[1], error);
  if (!parameters) {
    refuse(error);
  }
  const auto stated = std::ranges::find(parameters->classes, arguments[2], &PaperClass::name);
  if (stated == parameters->classes.end()) {
    refuse(arguments[1] + ": there is no class \"" + arguments[2] + "\"");
  }
  std::vector<MeasuredScreen> screens;
  for (std::size_t i = 3; i < arguments.size(); i += 2) {
    const auto screen = readScreenTiles(contentsOf(arguments[i]));
    if (!screen) {
      refuse(arguments[i] + ": is no screen");
    }
    const std::string& path = arguments[i + 1];
    const auto measured = parseMeasurements(textOf(path), path, error);
    if (!measured) {
      refuse(error);
    }
    screens.push_back({*screen, *measured});
  }
  const auto paper = fitPaper(stated->model, screens);
  for (std::size_t i = 0; i < screens.size(); ++i) {
    const Deviation now = deviationOf(paper, screens[i]);
    std::printf("# %s: off by %.2f L* so far, by %.2f now, at most by %.2f at level %zu\n",
                arguments[2 * i + 4].c_str(), deviationOf(stated->model, screens[i]).mean, now.mean,
                now.largest, now.level);
  }
  std::printf("%s\n", classLine(text, arguments[2], paper).c_str());
  return std::fflush(stdout) == 0 ? 0 : 1;
}
