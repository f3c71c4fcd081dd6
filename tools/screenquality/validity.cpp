// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/validity.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <set>
#include <span>
#include <sstream>
#include <utility>

#include "tools/samplepages/flat_repeat.h"

namespace gdi::screenquality {
namespace {

int depthOfQuality(const std::string& quality) {
  return quality == "Fast" ? 1 : quality == "Standard" ? 2 : 4;
}

struct Pixel {
  std::size_t place;  // in the tile, row by row
  std::size_t level;
};

std::string placeOf(const Screen& screen, const Pixel& pixel) {
  const auto width = static_cast<std::size_t>(screen.tile.width);
  std::ostringstream text;
  text << "pixel " << pixel.place % width << ", " << pixel.place / width << " at level "
       << pixel.level;
  return text.str();
}

// The first pixel of the level that has not that value.
std::optional<Pixel> otherThan(const Screen& screen, std::size_t level, int value) {
  const std::span<const std::uint8_t> values = screen.level(level);
  const auto found = std::ranges::find_if(values, [&](int here) { return here != value; });
  if (found == values.end()) {
    return std::nullopt;
  }
  return Pixel{static_cast<std::size_t>(found - values.begin()), level};
}

// The first pixel that is lighter than a level before.
std::optional<Pixel> firstFall(const Screen& screen) {
  for (std::size_t level = 1; level < kLevels; ++level) {
    const auto before = screen.level(level - 1);
    const auto here = screen.level(level);
    for (std::size_t place = 0; place < here.size(); ++place) {
      if (here[place] < before[place]) {
        return Pixel{place, level};
      }
    }
  }
  return std::nullopt;
}

std::size_t tonesOf(const Screen& screen) {
  std::set<std::uint64_t> sums;
  for (std::size_t level = 0; level < kLevels; ++level) {
    const auto values = screen.level(level);
    sums.insert(std::accumulate(values.begin(), values.end(), std::uint64_t{0}));
  }
  return sums.size();
}

class Breaches {
 public:
  explicit Breaches(const ScreenSet& set) : set_(set) {}

  void checkDepth() {
    const int needed = depthOfQuality(set_.quality);
    if (set_.depth != needed) {
      add(std::string("depth ")
              .append(std::to_string(set_.depth))
              .append(" where its pages need ")
              .append(std::to_string(needed)));
    }
  }

  void checkScreen(const BundledScreen& bundled) {
    screen_ = bundled.name;
    checkFile(bundled);
    checkValues(bundled.screen);
  }

  std::vector<std::string> take() { return std::move(lines_); }

 private:
  void checkFile(const BundledScreen& screen) {
    const auto number = [](auto value) { return std::to_string(value); };
    if (screen.inputDepth != 8) {
      add("input depth " + number(screen.inputDepth) + " where samples have 8 bits");
    }
    if (screen.outputDepth != set_.depth) {
      add("output depth " + number(screen.outputDepth) + " where the set has " +
          number(set_.depth));
    }
    if (screen.bytes < kSmallestFile || screen.bytes > kLargestFile) {
      add("the file has " + number(screen.bytes) + " bytes, outside " + number(kSmallestFile) +
          " to " + number(kLargestFile));
    }
    const std::int64_t repeat = samplepages::flatRepeatWords(screen.screen.tile.width, set_.depth);
    if (repeat > kLongestRepeat) {
      add("a flat tint repeats after " + number(repeat) + " words, more than " +
          number(kLongestRepeat));
    }
  }

  void checkValues(const Screen& screen) {
    const auto value = [&](const Pixel& pixel) {
      return std::to_string(screen.level(pixel.level)[pixel.place]);
    };
    if (const auto pixel = otherThan(screen, 0, 0)) {
      add(placeOf(screen, *pixel) + " has " + value(*pixel) + ", not blank");
    }
    if (const auto pixel = otherThan(screen, kLevels - 1, screen.steps)) {
      add(placeOf(screen, *pixel) + " has " + value(*pixel) + ", not the full " +
          std::to_string(screen.steps));
    }
    if (const auto pixel = firstFall(screen)) {
      add(placeOf(screen, *pixel) + " falls from " + value({pixel->place, pixel->level - 1}) +
          " to " + value(*pixel));
    }
    if (const std::size_t tones = tonesOf(screen); tones < kFewestTones) {
      add(std::to_string(tones) + " different mean tones, fewer than " +
          std::to_string(kFewestTones));
    }
  }

  void add(const std::string& breach) {
    std::string& line = lines_.emplace_back(set_.key()).append(": ");
    if (!screen_.empty()) {
      line.append("screen ").append(screen_).append(": ");
    }
    line.append(breach);
  }

  const ScreenSet& set_;
  std::string screen_;  // that is being checked, if any
  std::vector<std::string> lines_;
};

}  // namespace

std::vector<std::string> breachesOf(const ScreenSet& set) {
  Breaches breaches(set);
  breaches.checkDepth();
  std::set<std::string> checked;
  for (const BundledScreen& screen : set.screens) {
    if (checked.insert(screen.name).second) {
      breaches.checkScreen(screen);
    }
  }
  return breaches.take();
}

}  // namespace gdi::screenquality
