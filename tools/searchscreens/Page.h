// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The screens of a page, grown and printed, so that one of them can be changed and judged anew.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "tools/makescreens/parameters.h"
#include "tools/screenquality/quality.h"
#include "tools/searchscreens/Task.h"

namespace gdi::searchscreens {

// Copies share the planes that they have in common.
class Page {
 public:
  // With the task's screens. Keeps a reference to the task.
  explicit Page(const Task& task);

  // The page with another screen at one place. Requires: no breachOf.
  [[nodiscard]] Page with(std::size_t place, const ScreenParameters& screen) const;

  [[nodiscard]] std::vector<ScreenParameters> screens() const;
  // J by the whole measure.
  [[nodiscard]] double j() const;
  // About J, sooner: of a colour page on half the patches and a third of the registrations.
  [[nodiscard]] double quickJ() const;
  // J by the whole measure under other conditions.
  [[nodiscard]] double jUnder(const Conditions& conditions) const;
  // The square of J without what comes of planes on each other; of a mono page, all of it.
  [[nodiscard]] double ownSquares() const;

 private:
  struct Plane;
  [[nodiscard]] std::shared_ptr<const Plane> planeOf(std::size_t place,
                                                     const ScreenParameters& screen) const;
  [[nodiscard]] double colourJ(const screenquality::Superposition& superposed) const;
  [[nodiscard]] screenquality::PrintedPlanes prints() const;

  const Task* task_;
  std::vector<std::shared_ptr<const Plane>> planes_;
};

}  // namespace gdi::searchscreens
