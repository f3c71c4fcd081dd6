// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/ColorSync/CMProfile.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <system_error>

#include "platform/ColorSync/OpaqueCMProfile.h"
#include "platform/ColorSync/profile_path.h"

namespace gdi {

namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t kLargestProfile = 64U << 20U;  // bytes; real ones have up to some MiB

// Only regular files are opened: another one might never end.
CMError readFile(const fs::path& path, std::string& bytes) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (status.type() == fs::file_type::not_found) {
    return fnfErr;
  }
  if (error == std::errc::permission_denied) {
    return permErr;
  }
  if (status.type() != fs::file_type::regular) {
    return ioErr;
  }
  errno = 0;
  std::ifstream file(path, std::ios::binary);
  if (!file.is_open()) {
    return errno == EACCES ? permErr : ioErr;
  }
  const std::uintmax_t size = fs::file_size(path, error);
  if (error) {
    return ioErr;
  }
  if (size > kLargestProfile) {
    return cmInvalidProfile;
  }
  bytes.resize(size);
  file.read(bytes.data(), static_cast<std::streamsize>(size));
  return file ? noErr : ioErr;
}

}  // namespace

CMError CMOpenProfile(CMProfileRef& profile, const CMProfileLocation& location) {
  profile = nullptr;
  const std::optional<std::string_view> name = pathOfLocation(location);
  if (!name) {
    return cmInvalidProfileLocation;
  }
  const std::optional<fs::path> path = profilePath(*name);
  if (!path) {
    return fnfErr;
  }
  std::string bytes;
  if (const CMError error = readFile(*path, bytes); error != noErr) {
    return error;
  }
  auto opened = std::make_unique<OpaqueCMProfile>();
  opened->profile.reset(
      cmsOpenProfileFromMem(bytes.data(), static_cast<cmsUInt32Number>(bytes.size())));
  if (opened->profile == nullptr) {
    return cmInvalidProfile;
  }
  profile = opened.release();
  return noErr;
}

void CMCloseProfile(CMProfileRef profile) {
  const std::unique_ptr<OpaqueCMProfile> owned(profile);
}

}  // namespace gdi
