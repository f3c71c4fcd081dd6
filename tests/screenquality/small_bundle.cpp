// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/screenquality/small_bundle.h"

#include <algorithm>

namespace gdi::screenquality {

SmallBundle::SmallBundle() {
  addScreen("flip", 1, 8, 1, [](int /*column*/, int level) { return level > 127 ? 1U : 0U; });
  for (const std::string& key : screenSetKeys()) {
    const int depth = key.starts_with("Fast") ? 1 : key.starts_with("Standard") ? 2 : 4;
    sets_[key].depth = depth;
  }
}

void SmallBundle::addScreen(const std::string& name, int width, int inputDepth, int outputDepth,
                            const std::function<unsigned(int column, int level)>& value) {
  std::string file = "1 " + std::to_string(width) + " 1 " + std::to_string(inputDepth) + ' ' +
                     std::to_string(outputDepth);
  file.push_back('\0');
  unsigned bits = 0;
  int filled = 0;
  for (int column = 0; column < width; ++column) {
    for (int level = 0; level < 1 << inputDepth; ++level) {
      bits = bits << static_cast<unsigned>(outputDepth) | value(column, level);
      filled += outputDepth;
      if (filled == 8) {
        file.push_back(static_cast<char>(bits));
        bits = 0;
        filled = 0;
      }
    }
  }
  folder_.write("Screens/" + name, file);
}

void SmallBundle::write() {
  std::string text = "<plist version=\"1.0\"><dict><key>ScreenSets</key><dict>";
  for (const auto& [key, set] : sets_) {
    text.append("<key>").append(key).append("</key><dict><key>Depth</key><integer>");
    text.append(std::to_string(set.depth)).append("</integer><key>Screens</key><array>");
    for (const std::string& screen : set.screens) {
      text.append("<string>").append(screen).append("</string>");
    }
    text.append("</array></dict>");
  }
  folder_.write("ScreenSets.plist", text.append("</dict></dict></plist>"));
}

ScreenSet validSet() {
  Screen screen{{16, 16}, 1, {}};
  for (std::size_t level = 0; level < kLevels; ++level) {
    for (std::size_t pixel = 0; pixel < kLevels; ++pixel) {
      const bool dark = pixel < level || level == kLevels - 1;
      screen.outputs.push_back(dark ? 1 : 0);
    }
  }
  ScreenSet set;
  set.quality = "Fast";
  set.mode = "Mono";
  set.papers = {"Plain", "Thin"};
  set.conditions = paperClassOf("Plain");
  set.depth = 1;
  set.screens.fill({"rising", 20'000, 8, 1, screen});
  return set;
}

}  // namespace gdi::screenquality
