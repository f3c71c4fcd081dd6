// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "halftone/screens/file_contents.h"

#include <cstdio>
#include <memory>

namespace gdi {

std::optional<std::vector<std::uint8_t>> contentsOfFile(const std::filesystem::path& path) {
  const auto closeFile = [](std::FILE* file) { (void)std::fclose(file); };
  const std::unique_ptr<std::FILE, decltype(closeFile)> file(std::fopen(path.c_str(), "rbe"),
                                                             closeFile);
  if (file == nullptr) {
    return std::nullopt;
  }
  constexpr std::size_t chunk = 65536;
  std::vector<std::uint8_t> bytes;
  std::size_t length = 0;
  std::size_t got = 0;
  do {
    bytes.resize(length + chunk);
    got = std::fread(&bytes[length], 1, chunk, file.get());
    length += got;
  } while (got > 0);
  if (std::ferror(file.get()) != 0) {
    return std::nullopt;
  }
  bytes.resize(length);
  return bytes;
}

}  // namespace gdi
