// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A resources folder with all sets, made of screens of a few pixels.
#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <map>
#include <string>

#include "tests/support/TemporaryFolder.h"
#include "tools/screenquality/bundled_sets.h"

namespace gdi::screenquality {

struct SmallSet {
  int depth = 1;
  std::array<std::string, 4> screens{"flip", "flip", "flip", "flip"};
};

class SmallBundle {
 public:
  // Every key has a set of its quality's depth with the screen "flip" four times: of one pixel,
  // blank up to level 127 and 1 beyond.
  SmallBundle();

  [[nodiscard]] const std::filesystem::path& path() const { return folder_.path(); }
  // The set of that key, to change before write().
  SmallSet& set(const std::string& key) { return sets_[key]; }
  void remove(const std::string& key) { sets_.erase(key); }
  // Adds a screen of one row of `width` pixels.
  void addScreen(const std::string& name, int width, int inputDepth, int outputDepth,
                 const std::function<unsigned(int column, int level)>& value);
  // Writes the list of sets.
  void write();

 private:
  test::TemporaryFolder folder_;
  std::map<std::string, SmallSet> sets_;
};

// A set in memory that keeps all rules: 16 x 16 pixels of one bit that darken one by one.
ScreenSet validSet();

}  // namespace gdi::screenquality
