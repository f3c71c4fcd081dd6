// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/ColorSync/CMProfileLocation.h"

#include <algorithm>

namespace gdi {

CMProfileLocation CMPathLocation(std::string_view path) {
  CMProfileLocation location;
  location.locType = cmPathBasedProfile;
  std::ranges::copy(path.substr(0, location.path.size()), location.path.begin());
  return location;
}

std::optional<std::string_view> pathOfLocation(const CMProfileLocation& location) {
  const auto* const end = std::ranges::find(location.path, '\0');
  if (location.locType != cmPathBasedProfile || end == location.path.end()) {
    return std::nullopt;
  }
  return std::string_view(location.path.begin(), end);
}

}  // namespace gdi
