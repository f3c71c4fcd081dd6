// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The screen sets of a resources folder, read as the filter reads them.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "halftone/screens/Halftoner.h"
#include "tools/screenquality/Conditions.h"
#include "tools/screenquality/Screen.h"

namespace gdi::screenquality {

// A screen as its file has it and as its set's pages use it.
struct BundledScreen {
  std::string name;          // of the file
  std::uintmax_t bytes = 0;  // of the file
  int inputDepth = 8;
  int outputDepth = 1;
  Screen screen;  // its values cut to the set's depth
};

struct ScreenSet {
  std::string quality;  // "Fast", "Standard", "Fine"
  std::string mode;     // "Color", "Mono"
  std::vector<std::string> papers;
  const Conditions* conditions = nullptr;  // of those papers
  int depth = 1;
  std::array<BundledScreen, 4> screens;
  std::shared_ptr<const Halftoner> halftoner;  // the set as the filter has it

  [[nodiscard]] bool isColour() const { return mode == "Color"; }
  // One of the keys that jobs find the set by.
  [[nodiscard]] std::string key() const { return quality + papers.front() + mode; }
  // Quality, mode and paper class: "Fast Color plain".
  [[nodiscard]] std::string title() const;
};

// The keys that jobs form: quality, paper and mode, in this order.
std::vector<std::string> screenSetKeys();

// The sets of those keys, each distinct one once: papers of a class that share their screens share
// a set. Nothing when a set cannot be loaded: the loader tells on standard error why, a line on
// `errors` which. Makes `resources` the main bundle.
std::optional<std::vector<ScreenSet>> loadScreenSets(const std::filesystem::path& resources,
                                                     std::ostream& errors);

}  // namespace gdi::screenquality
