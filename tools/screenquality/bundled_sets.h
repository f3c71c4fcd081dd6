// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The screen sets of a resources folder, read as the filter reads them.
#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "tools/screenquality/Conditions.h"
#include "tools/screenquality/Screen.h"

namespace gdi::screenquality {

struct ScreenSet {
  std::string quality;  // "Fast", "Standard", "Fine"
  std::string mode;     // "Color", "Mono"
  std::vector<std::string> papers;
  const Conditions* conditions = nullptr;  // of those papers
  int depth = 1;
  std::array<Screen, 4> screens;
};

// The keys that jobs form: quality, paper and mode, in this order.
std::vector<std::string> screenSetKeys();

// The sets of those keys, each distinct one once: papers of a class that share their screens share
// a set. Nothing, with a line on standard error, when a set cannot be loaded.
std::optional<std::vector<ScreenSet>> loadScreenSets(const std::filesystem::path& resources);

}  // namespace gdi::screenquality
