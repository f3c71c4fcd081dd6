// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/language_names.h"

#include <algorithm>
#include <climits>

namespace gdi {

namespace {

constexpr std::string_view kFolderSuffix = ".lproj";
constexpr std::size_t kLongestName = NAME_MAX - kFolderSuffix.size();  // bytes

bool isNameCharacter(char c) {
  return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' ||
         c == '-' || c == '@';
}

void addName(std::vector<std::string>& names, std::string_view name) {
  if (!name.empty() && std::ranges::all_of(name, isNameCharacter)) {
    names.emplace_back(name);
  }
}

}  // namespace

std::vector<std::string> languageNames(std::string_view language) {
  if (language.size() > kLongestName) {
    return {};  // names no folder
  }
  const std::size_t at = std::min(language.find('@'), language.size());
  const std::string_view modifier = language.substr(at);
  std::string_view base = language.substr(0, at);
  base = base.substr(0, base.find('.'));

  std::vector<std::string> names;
  if (!modifier.empty()) {
    addName(names, std::string(base).append(modifier));
  }
  while (!base.empty()) {
    addName(names, base);
    const std::size_t separator = base.find_last_of("_-");
    base = base.substr(0, separator == std::string_view::npos ? 0 : separator);
  }
  return names;
}

}  // namespace gdi
