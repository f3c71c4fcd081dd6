// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/NSBundle.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <memory>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/CFPreferences.h"
#include "platform/language_names.h"
#include "platform/property_list_forms.h"

namespace gdi {

namespace {

namespace fs = std::filesystem;

std::unique_ptr<NSBundle>& mainBundleSlot() {
  static std::unique_ptr<NSBundle> bundle;
  return bundle;
}

// The program's name in its arguments is no help: the spooler puts the queue's name there.
fs::path mainResourcePath() {
  std::error_code error;
  const fs::path program = fs::read_symlink("/proc/self/exe", error);
  const fs::path beside = program.parent_path() / "resources";
  return !error && fs::is_directory(beside, error) ? beside : fs::path(GDI_DATA_DIR);
}

bool staysInside(const fs::path& path) {
  return path.is_relative() && path.native().find('\0') == std::string::npos &&
         std::ranges::none_of(path, [](const fs::path& part) { return part == ".."; });
}

std::optional<PropertyListValue> propertyListWithContentsOfFile(const fs::path& path) {
  std::error_code error;
  const std::uintmax_t size = fs::file_size(path, error);
  if (error || size > kPropertyListMaxSize) {
    return std::nullopt;
  }
  std::ifstream file(path, std::ios::binary);
  const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
  if (!file.is_open() || file.bad()) {
    return std::nullopt;
  }
  return propertyListWithData({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()});
}

}  // namespace

NSBundle& NSBundle::mainBundle() {
  std::unique_ptr<NSBundle>& bundle = mainBundleSlot();
  if (!bundle) {
    bundle = std::make_unique<NSBundle>(mainResourcePath());
  }
  return *bundle;
}

void NSBundle::setMainBundle(const fs::path& resourcePath) {
  mainBundleSlot() = std::make_unique<NSBundle>(resourcePath);
}

NSBundle::NSBundle(fs::path resourcePath) : resourcePath_(std::move(resourcePath)) {
}

std::optional<std::string> NSBundle::objectForInfoDictionaryKey(std::string_view key) {
  const PropertyListValue* information = infoDictionary();
  const PropertyListValue* entry = information == nullptr ? nullptr : information->find(key);
  return entry == nullptr ? std::nullopt : entry->text();
}

const PropertyListValue* NSBundle::infoDictionary() {
  return propertyListOfResource("Info", "plist", "");
}

std::optional<fs::path> NSBundle::pathForResource(std::string_view name, std::string_view type,
                                                  std::string_view directory) const {
  fs::path file(name);
  if (!type.empty()) {
    file += ".";
    file += type;
  }
  const fs::path folder(directory);
  if (name.empty() || !staysInside(file) || !staysInside(folder)) {
    return std::nullopt;
  }
  fs::path path = resourcePath_ / folder / file;
  std::error_code error;
  return fs::is_regular_file(path, error) ? std::optional(std::move(path)) : std::nullopt;
}

std::string NSBundle::localizedStringForKey(std::string_view key, std::string_view value,
                                            std::string_view table) {
  for (const std::string& language : CFPreferencesCopyAppValue("AppleLanguages")) {
    for (const std::string& name : languageNames(language)) {
      const PropertyListValue* strings = propertyListOfResource(table, "strings", name + ".lproj");
      const PropertyListValue* entry = strings == nullptr ? nullptr : strings->find(key);
      if (entry != nullptr && entry->string() != nullptr) {
        return *entry->string();
      }
    }
  }
  return std::string(value);
}

const PropertyListValue* NSBundle::propertyListOfResource(std::string_view name,
                                                          std::string_view type,
                                                          std::string_view directory) {
  const std::optional<fs::path> path = pathForResource(name, type, directory);
  if (!path) {
    return nullptr;
  }
  auto known = propertyLists_.find(*path);
  if (known == propertyLists_.end()) {
    known = propertyLists_.emplace(*path, propertyListWithContentsOfFile(*path)).first;
  }
  return known->second ? &*known->second : nullptr;
}

}  // namespace gdi
