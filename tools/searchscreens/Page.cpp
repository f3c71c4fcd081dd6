// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/searchscreens/Page.h"

#include <array>

#include "tools/makescreens/grown_screen.h"
#include "tools/screenquality/ordered_screen.h"
#include "tools/screenquality/superposition.h"

namespace gdi::searchscreens {
namespace {

using makescreens::GrownScreen;
using screenquality::kPatches;
using screenquality::Patch;
using screenquality::PlaneTerms;
using screenquality::PrintedPlanes;
using screenquality::PrintedScreen;
using screenquality::Quality;
using screenquality::Screen;
using screenquality::Superposition;

constexpr int kFewRegistrations = 2;

// Greys of three and four inks, a two-colour tint, skin.
const std::array<Patch, 6>& fewPatches() {
  static const std::array<Patch, 6> patches{kPatches[1], kPatches[2], kPatches[5],
                                            kPatches[6], kPatches[7], kPatches[11]};
  return patches;
}

Screen grown(const Task& task, std::size_t place, const ScreenParameters& screen) {
  const makescreens::Parameters& all = *task.parameters;
  const GrownScreen grown =
      makescreens::growScreen(screen, task.depth(), all.classes[task.paperClass], all.variation,
                              all.starts.at(task.planes[place]));
  return screenquality::orderedScreen(grown.tile, (1 << grown.depth) - 1, grown.order,
                                      grown.levels);
}

}  // namespace

// The print refers to the screen: both stay where they are.
struct Page::Plane {
  Plane(const Task& task, std::size_t place, const ScreenParameters& stated)
      : parameters(stated),
        screen(grown(task, place, stated)),
        print(screen, task.conditions->paper) {
    if (task.isColour()) {
      terms = screenquality::planeTerms(print, *task.conditions);
    } else {
      alone = screenquality::monoQuality(print, *task.conditions);
    }
  }
  Plane(const Plane&) = delete;
  Plane& operator=(const Plane&) = delete;
  Plane(Plane&&) = delete;
  Plane& operator=(Plane&&) = delete;
  ~Plane() = default;

  ScreenParameters parameters;
  Screen screen;
  PrintedScreen print;
  PlaneTerms terms;  // of a colour page's plane
  Quality alone;     // of a mono page's
};

Page::Page(const Task& task) : task_(&task) {
  const std::vector<ScreenParameters> screens = task.screens();
  for (std::size_t place = 0; place < screens.size(); ++place) {
    planes_.push_back(planeOf(place, screens[place]));
  }
}

Page Page::with(std::size_t place, const ScreenParameters& screen) const {
  Page page = *this;
  page.planes_[place] = planeOf(place, screen);
  return page;
}

std::vector<ScreenParameters> Page::screens() const {
  std::vector<ScreenParameters> screens;
  screens.reserve(planes_.size());
  for (const auto& plane : planes_) {
    screens.push_back(plane->parameters);
  }
  return screens;
}

double Page::j() const {
  return task_->isColour() ? colourJ(screenquality::superpositionOf(prints(), *task_->conditions))
                           : planes_.front()->alone.composite();
}

double Page::jUnder(const Conditions& conditions) const {
  if (task_->isColour()) {
    screenquality::PlaneScreens screens{};
    for (std::size_t place = 0; place < screens.size(); ++place) {
      screens.at(place) = &planes_.at(place)->screen;
    }
    return screenquality::colourQuality(screens, conditions).composite();
  }
  const Plane& plane = *planes_.front();
  const bool samePrint = conditions.paper == task_->conditions->paper;
  return (samePrint ? screenquality::monoQuality(plane.print, conditions)
                    : screenquality::monoQuality(plane.screen, conditions))
      .composite();
}

double Page::quickJ() const {
  return task_->isColour() ? colourJ(screenquality::superpositionOf(
                                 prints(), *task_->conditions, fewPatches(), kFewRegistrations))
                           : planes_.front()->alone.composite();
}

double Page::ownSquares() const {
  const double own =
      task_->isColour() ? colourJ(Superposition{}) : planes_.front()->alone.composite();
  return own * own;
}

std::shared_ptr<const Page::Plane> Page::planeOf(std::size_t place,
                                                 const ScreenParameters& screen) const {
  return std::make_shared<const Plane>(*task_, place, screen);
}

double Page::colourJ(const Superposition& superposed) const {
  std::array<PlaneTerms, 4> terms;
  for (std::size_t place = 0; place < terms.size(); ++place) {
    terms.at(place) = planes_.at(place)->terms;
  }
  return screenquality::colourQuality(terms, superposed).composite();
}

PrintedPlanes Page::prints() const {
  PrintedPlanes prints{};
  for (std::size_t place = 0; place < prints.size(); ++place) {
    prints.at(place) = &planes_.at(place)->print;
  }
  return prints;
}

}  // namespace gdi::searchscreens
