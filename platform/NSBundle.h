// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The filter's read-only resources: one folder with an information dictionary, localised strings
// and files.
//
// The main bundle is the folder `resources` beside the running program, else the data folder fixed
// at build time. Each property list is read once, at its first use. One thread.
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "platform/PropertyList.h"

namespace gdi {

class NSBundle {
 public:
  // The running program's bundle, found once a process.
  static NSBundle& mainBundle();
  // Makes the main bundle that of `resourcePath`; for tests. The former main bundle is gone then.
  static void setMainBundle(const std::filesystem::path& resourcePath);

  explicit NSBundle(std::filesystem::path resourcePath);

  [[nodiscard]] const std::filesystem::path& resourcePath() const { return resourcePath_; }

  // The text of the information dictionary's entry (Info.plist); nothing when the file, the entry
  // or a text for it is missing.
  std::optional<std::string> objectForInfoDictionaryKey(std::string_view key);

  // The whole information dictionary, for its tables; null when there is none. Valid as long as the
  // bundle.
  const PropertyListValue* infoDictionary();

  // The file NAME.TYPE (NAME alone when the type is empty) in the bundle or in its subfolder
  // `directory`; nothing when there is no such regular file or a name would leave the bundle.
  [[nodiscard]] std::optional<std::filesystem::path> pathForResource(
      std::string_view name, std::string_view type, std::string_view directory = "") const;

  // The string of that key in <language>.lproj/<table>.strings, for the first of the preferred
  // languages ("AppleLanguages") that has it, most specific name first; `value` when none has.
  std::string localizedStringForKey(std::string_view key, std::string_view value,
                                    std::string_view table = "Localizable");

 private:
  // The property list in that file, read once; null when there is none.
  const PropertyListValue* propertyListOfResource(std::string_view name, std::string_view type,
                                                  std::string_view directory);

  std::filesystem::path resourcePath_;
  std::map<std::filesystem::path, std::optional<PropertyListValue>> propertyLists_;
};

}  // namespace gdi
