// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What is searched: the screens of one page, and what they are judged under.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "tools/makescreens/parameters.h"
#include "tools/screenquality/Conditions.h"

namespace gdi::searchscreens {

using makescreens::Parameters;
using makescreens::ScreenParameters;
using screenquality::Conditions;

struct Task {
  const Parameters* parameters = nullptr;
  std::size_t paperClass = 0;
  std::size_t quality = 0;
  std::vector<std::size_t> planes;  // the four of a colour page, or that of a mono page
  const Conditions* conditions = nullptr;

  [[nodiscard]] bool isColour() const { return planes.size() > 1; }
  [[nodiscard]] int depth() const { return parameters->qualities[quality].depth; }
  // The screens that the parameters state, plane by plane.
  [[nodiscard]] std::vector<ScreenParameters> screens() const;
  // "plain-Fast-cyan", for the plane of that place in `planes`.
  [[nodiscard]] std::string nameOf(std::size_t place) const;
};

// The task of those words ("plain", "Fast", "Color"). Nothing for a word that is unknown and for
// screens that break a rule (rules.h): `problem` is then a line without a line feed. Keeps a
// pointer to the parameters.
std::optional<Task> taskOf(const Parameters& parameters, const std::string& paperClass,
                           const std::string& quality, const std::string& mode,
                           std::string& problem);

}  // namespace gdi::searchscreens
