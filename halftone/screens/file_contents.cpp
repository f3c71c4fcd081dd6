// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "halftone/screens/file_contents.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <system_error>

namespace gdi {

std::optional<std::vector<std::uint8_t>> contentsOfFile(const std::filesystem::path& path) {
  const auto closeFile = [](std::FILE* file) { (void)std::fclose(file); };
  const std::unique_ptr<std::FILE, decltype(closeFile)> file(std::fopen(path.c_str(), "rbe"),
                                                             closeFile);
  if (file == nullptr) {
    return std::nullopt;
  }
  // At first one byte more than the file is said to have, so that its end shows at once.
  constexpr std::uintmax_t kMostAtOnce = 1U << 24;
  std::error_code unknown;
  const std::uintmax_t said = std::filesystem::file_size(path, unknown);
  std::size_t chunk = unknown ? 1 : static_cast<std::size_t>(std::min(said, kMostAtOnce)) + 1;
  std::vector<std::uint8_t> bytes;
  std::size_t length = 0;
  do {
    bytes.resize(length + chunk);
    length += std::fread(&bytes[length], 1, chunk, file.get());
    chunk = 65536;
  } while (length == bytes.size());
  if (std::ferror(file.get()) != 0) {
    return std::nullopt;
  }
  bytes.resize(length);
  return bytes;
}

}  // namespace gdi
