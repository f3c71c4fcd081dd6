// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The screening of pages: the four screens of a screen set, applied to whole chunky scanlines.
//
// ScreenSets.plist in the main bundle names the sets under "ScreenSets": "Depth" is the bits a
// pixel of every plane, "Screens" the names of four files in the bundle's folder Screens, for cyan,
// magenta, yellow and black. Messages go to standard error.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "halftone/screens/FileState.h"
#include "halftone/screens/HalftoneScreen.h"
#include "platform/PropertyList.h"

namespace gdi {

class Halftoner {
 public:
  // The halftoner of the set with that key; null, with a message (none when the set has not
  // exactly four screens), when anything of the set is missing or wrong.
  static std::unique_ptr<Halftoner> initWithScreenSetKey(const std::string& screenSetKey);

  // Whether initWithScreenSetKey of that key would now load what this halftoner has: the same set
  // of the same bundle, no file of which was touched.
  [[nodiscard]] bool isCurrent(const std::string& screenSetKey) const;

  // Bits a pixel of every plane: 1, 2, 4 or 8.
  [[nodiscard]] int outputDepth() const { return outputDepth_; }
  // Files loaded; four at most, fewer when planes share a screen.
  [[nodiscard]] std::size_t screensLoaded() const { return screenCache_.size(); }

  // Whether a channel of samples 0 prints nothing, whatever the row: its rows need not be screened.
  [[nodiscard]] bool leavesPaperBlank() const;

  // The screens of cyan, magenta, yellow and black; they belong to the halftoner.
  [[nodiscard]] std::span<const HalftoneScreen* const> screens() const { return screenList_; }

  // Screens one scanline into one row of each plane.
  //   input           `width` pixels (at least 1) of outputChannels bytes, channels interleaved
  //   row             the page's scanline number, from 0
  //   outputBuffer    one row for each channel, each of at least ceil(width x outputDepth() / 8)
  //                   bytes, or null for a channel that is left out; the caller keeps them
  //   outputChannels  4, or 1 for a page in black only, which takes the fourth screen
  // False, with a message and nothing written, for any other arguments.
  bool halftoneChunkyScanlineToPlanar(const std::uint8_t* input, int width, int row,
                                      std::span<std::uint8_t* const> outputBuffer,
                                      int outputChannels) const;

 private:
  explicit Halftoner(std::string screenSetKey);
  bool loadScreenSet();
  std::optional<PropertyListValue> readScreenSets();
  bool loadScreens(const PropertyListValue::Array& names);
  bool appendScreen(const PropertyListValue& entry);
  const HalftoneScreen* screenNamed(const std::string& name);

  std::string screenSetKey_;
  int outputDepth_ = 0;
  std::filesystem::path screenSets_;  // ScreenSets.plist
  std::vector<FileState> files_;      // all that was read
  std::map<std::string, std::unique_ptr<HalftoneScreen>> screenCache_;
  std::vector<const HalftoneScreen*> screenList_;  // in plane order, owned by screenCache_
};

}  // namespace gdi
