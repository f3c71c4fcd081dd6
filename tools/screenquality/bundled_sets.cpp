// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/bundled_sets.h"

#include <algorithm>
#include <string_view>
#include <system_error>
#include <utility>

#include "halftone/screens/file_contents.h"
#include "platform/NSBundle.h"
#include "platform/PropertyList.h"

namespace gdi::screenquality {
namespace {

constexpr std::array<std::string_view, 3> kQualities{"Fast", "Standard", "Fine"};
constexpr std::array<std::string_view, 2> kModes{"Color", "Mono"};

std::string keyOf(std::string_view quality, std::string_view paper, std::string_view mode) {
  return std::string(quality).append(paper).append(mode);
}

// The names of a set's screens, by the list that the filter takes them from.
class ScreenNames {
 public:
  ScreenNames() {
    const auto path = NSBundle::mainBundle().pathForResource("ScreenSets", "plist");
    const auto contents = path ? contentsOfFile(*path) : std::nullopt;
    list_ = contents ? propertyListWithData(*contents) : std::nullopt;
  }

  // Empty for a place where there is no name.
  [[nodiscard]] std::string name(std::string_view key, std::size_t plane) const {
    const PropertyListValue* sets = list_ ? list_->find("ScreenSets") : nullptr;
    const PropertyListValue* set = sets == nullptr ? nullptr : sets->find(key);
    const PropertyListValue* screens = set == nullptr ? nullptr : set->find("Screens");
    const auto* names = screens == nullptr ? nullptr : screens->array();
    const std::string* name =
        names == nullptr || plane >= names->size() ? nullptr : (*names)[plane].string();
    return name == nullptr ? "" : *name;
  }

 private:
  std::optional<PropertyListValue> list_;
};

std::uintmax_t bytesOfScreen(const std::string& name) {
  const auto path = NSBundle::mainBundle().pathForResource(name, "", "Screens");
  std::error_code unknown;
  const std::uintmax_t bytes = path ? std::filesystem::file_size(*path, unknown) : 0;
  return unknown ? 0 : bytes;
}

// The pixels that pages of `depth` bits a pixel get of the screen at each of the 256 levels.
Screen screenOf(const HalftoneScreen& loaded, int depth) {
  const ScreenHeader& header = loaded.header();
  Screen screen{{header.width, header.height}, (1 << depth) - 1, {}};
  const auto levels = static_cast<std::size_t>(header.levels());
  const int inputShift = 8 - header.inputDepth;
  const int outputShift = std::max(header.outputDepth - depth, 0);
  const std::vector<std::uint8_t> table = loaded.table();
  screen.outputs.reserve(kLevels * screen.tile.size());
  for (std::size_t level = 0; level < kLevels; ++level) {
    for (std::size_t pixel = 0; pixel < screen.tile.size(); ++pixel) {
      const unsigned entry = table[pixel * levels + (level >> inputShift)];
      screen.outputs.push_back(static_cast<std::uint8_t>(entry >> outputShift));
    }
  }
  return screen;
}

bool haveTheSameScreens(const ScreenSet& one, const ScreenSet& other) {
  return std::ranges::equal(
      one.screens, other.screens, [](const BundledScreen& a, const BundledScreen& b) {
        return a.inputDepth == b.inputDepth && a.outputDepth == b.outputDepth &&
               a.screen.tile == b.screen.tile && a.screen.outputs == b.screen.outputs;
      });
}

bool areOne(const ScreenSet& one, const ScreenSet& other) {
  return one.quality == other.quality && one.mode == other.mode &&
         one.conditions == other.conditions && one.depth == other.depth &&
         haveTheSameScreens(one, other);
}

// The set of that key but for its quality, mode and paper; nothing when it cannot be loaded.
std::optional<ScreenSet> loadSet(const std::string& key, const ScreenNames& names) {
  ScreenSet set;
  set.halftoner = Halftoner::initWithScreenSetKey(key);
  if (set.halftoner == nullptr) {
    return std::nullopt;
  }
  set.depth = set.halftoner->outputDepth();
  for (std::size_t plane = 0; plane < set.screens.size(); ++plane) {
    const HalftoneScreen& loaded = *set.halftoner->screens()[plane];
    BundledScreen& screen = set.screens.at(plane);
    screen.name = names.name(key, plane);
    screen.bytes = bytesOfScreen(screen.name);
    screen.inputDepth = loaded.header().inputDepth;
    screen.outputDepth = loaded.header().outputDepth;
    screen.screen = screenOf(loaded, set.depth);
  }
  return set;
}

}  // namespace

std::string ScreenSet::title() const {
  return std::string(quality).append(" ").append(mode).append(" ").append(conditions->name);
}

std::vector<std::string> screenSetKeys() {
  std::vector<std::string> keys;
  for (const std::string_view quality : kQualities) {
    for (const std::string_view paper : paperTypes()) {
      for (const std::string_view mode : kModes) {
        keys.push_back(keyOf(quality, paper, mode));
      }
    }
  }
  return keys;
}

std::optional<std::vector<ScreenSet>> loadScreenSets(const std::filesystem::path& resources,
                                                     std::ostream& errors) {
  NSBundle::setMainBundle(resources);
  const ScreenNames names;
  std::vector<ScreenSet> sets;
  for (const std::string_view quality : kQualities) {
    for (const std::string_view mode : kModes) {
      for (const std::string_view paper : paperTypes()) {
        const std::string key = keyOf(quality, paper, mode);
        std::optional<ScreenSet> set = loadSet(key, names);
        if (!set) {
          errors << "screenquality: " << resources.string() << ": the set " << key
                 << " cannot be loaded\n";
          return std::nullopt;
        }
        set->quality = quality;
        set->mode = mode;
        set->conditions = paperClassOf(paper);
        const auto known =
            std::ranges::find_if(sets, [&](const ScreenSet& other) { return areOne(*set, other); });
        if (known != sets.end()) {
          known->papers.emplace_back(paper);
        } else {
          set->papers.emplace_back(paper);
          sets.push_back(std::move(*set));
        }
      }
    }
  }
  return sets;
}

}  // namespace gdi::screenquality
