// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/ColorSync/profile_path.h"

#include <array>
#include <system_error>

#include "platform/NSBundle.h"

namespace gdi {

namespace fs = std::filesystem;

std::span<const std::string_view> systemProfileFolders() {
  using namespace std::string_view_literals;
  // What an administrator installed goes before what packages bring along. The first is where the
  // spooler looks for profiles that a PPD names.
  static constexpr std::array kFolders{
      "/usr/share/cups/profiles"sv,         "/var/lib/color/icc"sv,
      "/usr/local/share/color/icc"sv,       "/usr/share/color/icc"sv,
      "/usr/share/color/icc/ghostscript"sv, "/usr/share/color/icc/colord"sv};
  return kFolders;
}

std::optional<fs::path> profilePath(std::string_view name,
                                    std::span<const std::string_view> folders) {
  const fs::path path(name);
  if (path.is_absolute()) {
    return path;
  }
  if (name.empty()) {
    return std::nullopt;
  }
  if (std::optional<fs::path> resource = NSBundle::mainBundle().pathForResource(name, "")) {
    return resource;
  }
  for (const std::string_view folder : folders) {
    fs::path candidate = fs::path(folder) / path;
    std::error_code error;
    if (fs::is_regular_file(candidate, error)) {
      return candidate;
    }
  }
  return std::nullopt;
}

}  // namespace gdi
