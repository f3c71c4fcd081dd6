// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Real profiles of Debian's packages, and profiles and colour worlds that close themselves.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "platform/ColorSync/CMProfile.h"
#include "platform/ColorSync/CMWorld.h"

namespace gdi::test {

// Of Ghostscript; both CMYK, one by formula, one measured.
inline const std::string kFormulaCMYK = "/usr/share/color/icc/ghostscript/ps_cmyk.icc";
inline const std::string kMeasuredCMYK = "/usr/share/color/icc/ghostscript/default_cmyk.icc";
// Of icc-profiles-free: linear grey, grey of the eye's own steps, and others.
inline const std::string kGrey = "/usr/share/color/icc/Gray.icc";
inline const std::string kEvenGrey = "/usr/share/color/icc/Gray-CIE_L.icc";
inline const std::string kRGB = "/usr/share/color/icc/sRGB.icc";
inline const std::string kAbstract = "/usr/share/color/icc/CineLogCurve.icc";

// One line of pixels of 4 bytes, CMYK, or of 1 byte, grey.
inline CMBitmap lineOf(std::span<std::uint8_t> pixels, std::uint32_t channels = 4) {
  CMBitmap line;
  line.image = pixels.data();
  line.width = static_cast<std::uint32_t>(pixels.size()) / channels;
  line.height = 1;
  line.rowBytes = static_cast<std::uint32_t>(pixels.size());
  line.pixelSize = 8 * channels;
  line.space = channels == 1 ? cmGray8Space : cmCMYK32Space;
  return line;
}

class OpenProfile {
 public:
  explicit OpenProfile(const std::string& path)
      : error(CMOpenProfile(profile, CMPathLocation(path))) {}
  ~OpenProfile() { CMCloseProfile(profile); }
  OpenProfile(const OpenProfile&) = delete;
  OpenProfile& operator=(const OpenProfile&) = delete;

  CMProfileRef profile = nullptr;
  CMError error;
};

class ColorWorld {
 public:
  ColorWorld(const std::string& source, const std::string& destination) {
    const OpenProfile from(source);
    const OpenProfile to(destination);
    error = NCWNewColorWorld(world, from.profile, to.profile);
  }
  ~ColorWorld() { CWDisposeColorWorld(world); }
  ColorWorld(const ColorWorld&) = delete;
  ColorWorld& operator=(const ColorWorld&) = delete;

  CMWorldRef world = nullptr;
  CMError error;
};

}  // namespace gdi::test
