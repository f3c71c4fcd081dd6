// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "halftone/screens/Halftoner.h"

#include <algorithm>
#include <cstdio>
#include <limits>
#include <optional>
#include <utility>

#include "halftone/screens/depth.h"
#include "halftone/screens/file_contents.h"
#include "platform/NSBundle.h"

namespace gdi {
namespace {

constexpr std::size_t kPlanes = 4;

// Writes `message` as it stands and answers false, for the failing path of the caller.
bool fail(const char* message) {
  (void)std::fputs(message, stderr);
  return false;
}

std::optional<std::filesystem::path> screenSetsPath() {
  return NSBundle::mainBundle().pathForResource("ScreenSets", "plist");
}

// The set's "Depth", a number outside the range of int as the nearest end of it; 0 when missing.
int depthOf(const PropertyListValue& screenSet) {
  const PropertyListValue* depth = screenSet.find("Depth");
  const std::int64_t value = depth == nullptr ? 0 : depth->intValue();
  return static_cast<int>(std::clamp<std::int64_t>(value, std::numeric_limits<int>::min(),
                                                   std::numeric_limits<int>::max()));
}

}  // namespace

Halftoner::Halftoner(std::string screenSetKey) : screenSetKey_(std::move(screenSetKey)) {
}

std::unique_ptr<Halftoner> Halftoner::initWithScreenSetKey(const std::string& screenSetKey) {
  std::unique_ptr<Halftoner> halftoner(new Halftoner(screenSetKey));
  return halftoner->loadScreenSet() ? std::move(halftoner) : nullptr;
}

bool Halftoner::isCurrent(const std::string& screenSetKey) const {
  return screenSetKey == screenSetKey_ && screenSetsPath() == screenSets_ &&
         std::ranges::all_of(files_, [](const FileState& file) { return file.isUnchanged(); });
}

// ScreenSets.plist as a value; nothing, with a message, when it cannot be had.
std::optional<PropertyListValue> Halftoner::readScreenSets() {
  const auto path = screenSetsPath();
  if (!path) {
    (void)fail("ERROR: Couldn't find ScreenSets.plist\n");
    return std::nullopt;
  }
  screenSets_ = *path;
  files_.emplace_back(*path);
  const auto contents = contentsOfFile(*path);
  if (!contents) {
    (void)fail("ERROR: Couldn't load ScreenSets.plist contents\n");
    return std::nullopt;
  }
  auto screenSets = propertyListWithData(*contents);
  if (!screenSets) {
    (void)fail("ERROR: Couldn't deserialize ScreenSets.plist\n");
  }
  return screenSets;
}

bool Halftoner::loadScreenSet() {
  const auto propertyList = readScreenSets();
  if (!propertyList) {
    return false;
  }
  const PropertyListValue* screenSetsDict = propertyList->find("ScreenSets");
  if (screenSetsDict == nullptr || screenSetsDict->dictionary() == nullptr) {
    return fail("ERROR: Couldn't get screenSetsDict\n");
  }
  const PropertyListValue* screenSet = screenSetsDict->find(screenSetKey_);
  if (screenSet == nullptr || screenSet->dictionary() == nullptr) {
    return fail("ERROR: Couldn't get screenSet\n");
  }
  outputDepth_ = depthOf(*screenSet);
  if (!isValidDepth(outputDepth_)) {
    (void)std::fprintf(stderr, "ERROR: Screen's output depth is out of range (%d)\n", outputDepth_);
    return false;
  }
  const PropertyListValue* screens = screenSet->find("Screens");
  const auto* screensArray = screens == nullptr ? nullptr : screens->array();
  if (screensArray == nullptr) {
    return fail("ERROR: Couldn't get screensArray\n");
  }
  return loadScreens(*screensArray);
}

// A wrong number of names is refused without a message: docs/quirks.md, "Silent screen count".
bool Halftoner::loadScreens(const PropertyListValue::Array& names) {
  return names.size() == kPlanes &&
         std::ranges::all_of(names, [this](const auto& entry) { return appendScreen(entry); });
}

bool Halftoner::appendScreen(const PropertyListValue& entry) {
  const std::string* name = entry.string();
  const HalftoneScreen* screen = name == nullptr ? nullptr : screenNamed(*name);
  if (screen == nullptr) {
    (void)std::fprintf(stderr, "ERROR: Couldn't instantiate screen from name %s\n",
                       entry.text().value_or("").c_str());
    return false;
  }
  screenList_.push_back(screen);
  return true;
}

// The screen of that name, loaded at its first use; null when it cannot be loaded.
const HalftoneScreen* Halftoner::screenNamed(const std::string& name) {
  if (const auto cached = screenCache_.find(name); cached != screenCache_.end()) {
    return cached->second.get();
  }
  const auto path = NSBundle::mainBundle().pathForResource(name, "", "Screens");
  if (!path) {
    return nullptr;
  }
  files_.emplace_back(*path);
  auto screen = HalftoneScreen::initWithFile(*path);
  if (screen == nullptr) {
    return nullptr;
  }
  return screenCache_.emplace(name, std::move(screen)).first->second.get();
}

bool Halftoner::leavesPaperBlank() const {
  return std::ranges::all_of(screenList_,
                             [](const HalftoneScreen* s) { return s->leavesPaperBlank(); });
}

// Three of the messages have no line feed: docs/quirks.md, "Messages without a line feed".
bool Halftoner::halftoneChunkyScanlineToPlanar(const std::uint8_t* input, int width, int row,
                                               std::span<std::uint8_t* const> outputBuffer,
                                               int outputChannels) const {
  if (input == nullptr) {
    return fail("ERROR: inputBuffer is nil");
  }
  if (width < 1) {
    return fail("ERROR: width must be at least 1");
  }
  if (outputChannels != 1 && outputChannels != static_cast<int>(kPlanes)) {
    (void)std::fprintf(stderr, "ERROR: outputChannels is wrong - is %d should be 1 or 4\n",
                       outputChannels);
    return false;
  }
  if (outputBuffer.data() == nullptr) {
    return fail("ERROR: outputPlanes is nil");
  }
  const auto channels = static_cast<std::size_t>(outputChannels);
  if (outputBuffer.size() < channels) {
    return fail("ERROR: outputPlanes has no row for a channel\n");
  }
  const std::size_t firstScreen = kPlanes - channels;  // the black one for a page in black only
  for (std::size_t channel = 0; channel < channels; ++channel) {
    if (outputBuffer[channel] != nullptr &&
        !screenList_[firstScreen + channel]->processScanline(
            input + channel, width, outputChannels, row, outputBuffer[channel], outputDepth_)) {
      return false;
    }
  }
  return true;
}

}  // namespace gdi
