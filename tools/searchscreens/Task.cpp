// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/searchscreens/Task.h"

#include <algorithm>
#include <utility>

#include "tools/makescreens/parameter_text.h"
#include "tools/makescreens/screen_sets.h"
#include "tools/searchscreens/rules.h"

namespace gdi::searchscreens {
namespace {

using makescreens::quoted;

template <typename List>
std::optional<std::size_t> placeOf(const List& list, const std::string& name) {
  const auto found = std::ranges::find_if(list, [&](const auto& one) { return one.name == name; });
  return found == list.end() ? std::nullopt
                             : std::optional(static_cast<std::size_t>(found - list.begin()));
}

std::string problemOf(const Task& task) {
  const std::vector<ScreenParameters> screens = task.screens();
  for (std::size_t place = 0; place < screens.size(); ++place) {
    const std::string breach = breachOf(screens, place, task.depth());
    if (!breach.empty()) {
      return task.nameOf(place) + ": " + breach;
    }
  }
  return "";
}

}  // namespace

std::vector<ScreenParameters> Task::screens() const {
  std::vector<ScreenParameters> result;
  result.reserve(planes.size());
  for (const std::size_t plane : planes) {
    result.push_back(parameters->screen(paperClass, quality, plane));
  }
  return result;
}

std::string Task::nameOf(std::size_t place) const {
  return makescreens::screenName(*parameters, paperClass, quality, planes[place]);
}

std::optional<Task> taskOf(const Parameters& parameters, const std::string& paperClass,
                           const std::string& quality, const std::string& mode,
                           std::string& problem) {
  const auto refuse = [&problem](std::string why) {
    problem = std::move(why);
    return std::nullopt;
  };
  const auto statedClass = placeOf(parameters.classes, paperClass);
  if (!statedClass) {
    return refuse("there is no class " + quoted(paperClass));
  }
  const auto statedQuality = placeOf(parameters.qualities, quality);
  if (!statedQuality) {
    return refuse("there is no quality " + quoted(quality));
  }
  if (mode != "Color" && mode != "Mono") {
    return refuse("the mode " + quoted(mode) + " is none of Color and Mono");
  }
  const auto conditions = placeOf(screenquality::kPaperClasses, paperClass);
  if (!conditions) {
    return refuse("there are no conditions to judge the class " + quoted(paperClass) + " under");
  }
  Task task{&parameters, *statedClass, *statedQuality,
            mode == "Color" ? std::vector<std::size_t>{0, 1, 2, 3} : std::vector<std::size_t>{4},
            &screenquality::kPaperClasses.at(*conditions)};
  problem = problemOf(task);
  return problem.empty() ? std::optional(std::move(task)) : std::nullopt;
}

}  // namespace gdi::searchscreens
