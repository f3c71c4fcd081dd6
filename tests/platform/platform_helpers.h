// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// What several tests of this folder need: files in a fresh folder, and property lists from texts.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include <gtest/gtest.h>

#include "platform/PropertyList.h"

namespace gdi {

// A folder of its own, removed at the end.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string pattern = testing::TempDir() + "platform-XXXXXX";
    path_ = mkdtemp(pattern.data());
  }
  ~TemporaryFolder() {
    std::error_code error;
    std::filesystem::remove_all(path_, error);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  TemporaryFolder(TemporaryFolder&&) = delete;
  TemporaryFolder& operator=(TemporaryFolder&&) = delete;

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }

  // Writes a file, with the folders above it.
  void write(const std::filesystem::path& name, std::string_view contents) const {
    std::filesystem::create_directories((path_ / name).parent_path());
    std::ofstream(path_ / name, std::ios::binary) << contents;
  }

 private:
  std::filesystem::path path_;
};

inline std::optional<PropertyListValue> parsed(std::string_view bytes) {
  return propertyListWithData({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()});
}

// The text that the whole property list is; "(none)" when it is none or no text.
inline std::string parsedText(std::string_view bytes) {
  const std::optional<PropertyListValue> list = parsed(bytes);
  return list && list->string() != nullptr ? *list->string() : "(none)";
}

}  // namespace gdi
