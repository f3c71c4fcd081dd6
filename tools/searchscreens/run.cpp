// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/searchscreens/run.h"

#include <iomanip>
#include <optional>
#include <sstream>
#include <string>

#include "halftone/screens/file_contents.h"
#include "tools/makescreens/screen_line.h"
#include "tools/searchscreens/Task.h"
#include "tools/searchscreens/search.h"

namespace gdi::searchscreens {
namespace {

std::string fixed(double number, int digits) {
  std::ostringstream text;
  text << std::fixed << std::setprecision(digits) << number;
  return text.str();
}

const char* scoreName(const Limits& limits) {
  return limits.robust ? "score" : "J";
}

void writeFound(std::ostream& out, const CommandLine& line, const Task& task, const Found& found) {
  out << "# searchscreens " << line.paperClass << ' ' << line.quality << ' ' << line.mode
      << ", seed " << line.limits.seed << ", " << found.tries
      << " tries: " << scoreName(line.limits) << ' ' << fixed(found.before, 4) << " before, "
      << fixed(found.after, 4) << " after";
  if (line.limits.robust) {
    out << ", J " << fixed(found.j, 4);
  }
  out << '\n';
  for (std::size_t place = 0; place < task.planes.size(); ++place) {
    const std::size_t plane = task.planes[place];
    const ScreenParameters& screen = found.screens[place];
    out << makescreens::screenLine(*task.parameters, task.paperClass, task.quality, plane, screen)
        << '\n';
    for (const std::string& order :
         makescreens::orderLines(*task.parameters, task.paperClass, task.quality, plane, screen)) {
      out << order << '\n';
    }
  }
}

}  // namespace

int run(const CommandLine& line, std::ostream& out, std::ostream& errors) {
  const auto refuse = [&errors](const std::string& problem) {
    errors << "searchscreens: " << problem << '\n';
    return kUnusable;
  };
  const auto contents = contentsOfFile(line.parameters);
  if (!contents) {
    return refuse(line.parameters.string() + ": cannot be read");
  }
  std::string problem;
  const std::optional<Parameters> parameters = makescreens::parseParameters(
      std::string(contents->begin(), contents->end()), line.parameters.string(), problem);
  if (!parameters) {
    return refuse(problem);
  }
  const std::optional<Task> task =
      taskOf(*parameters, line.paperClass, line.quality, line.mode, problem);
  if (!task) {
    return refuse(line.parameters.string() + ": " + problem);
  }
  const Found found = search(*task, line.limits, [&](double seconds, long tries, double score) {
    errors << fixed(seconds, 0) << " s, " << tries << " tries, " << scoreName(line.limits) << ' '
           << fixed(score, 4) << std::endl;
  });
  writeFound(out, line, *task, found);
  if (!out.flush()) {
    return refuse("the screens cannot be written");
  }
  return kSearched;
}

}  // namespace gdi::searchscreens
